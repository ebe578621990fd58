#pragma once

#include "player/export.h"
#include "player/json.h"
#include "player/words.h"
#include "tgx/controls/button.h"
#include "tgx/frame/mainwin.h"

#include <concepts>
#include <limits>
#include <span>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>

namespace tgx {

/// The object that a call is made on: the main window or a window of the tree. The other pointer is null.
struct CallTarget {
    AMainWin* main = nullptr;
    AWnd* wnd = nullptr;
};

/// A word in argument position, with everything that it could mean.
struct CallArgument {
    Word word;
    std::optional<std::int64_t> number; // a plain number
    std::optional<std::int64_t> fixed;  // a number with a decimal point, as a raw fixed-point value
    AWnd* wnd = nullptr;                // the window with that id
    bool isNull = false;                // the word null, without quotes
};

/// One operation that an events file can call. operation() makes a row from the member function alone and
/// derives the kinds of the arguments and of the result from its type.
struct Operation {
    const char* name;
    int (*countArguments)();
    bool (*isOperationOf)(const CallTarget& target);
    /// Returns how far the arguments are from the parameters: 0 for an exact match, -1 if they do not fit.
    int (*distance)(std::span<const CallArgument> arguments);
    /// Calls the operation, virtually if it is virtual. Returns the result as JSON; if there are results by
    /// reference, an array of all results.
    std::string (*call)(const CallTarget& target, std::span<const CallArgument> arguments);
    /// Returns the kinds of the arguments for messages: "(number, text)".
    std::string (*describe)();
};

/// Makes operations of a game's own classes callable; they take precedence over the toolkit's. Not owned: the
/// rows must live as long as they can be called.
TGX_PLAYER_API void addOperations(std::span<const Operation> rows);

namespace callable {

enum Distance { exact = 0, close = 1, far = 2, doesNotFit = -1 };

/// Describes how one type of argument is read. Specialised for each kind.
template<class T>
struct Kind;

template<class T>
requires std::integral<T>
struct Kind<T> {
    static const char* describe() { return "number"; }
    static int distance(const CallArgument& argument)
    {
        // At most 32 bits, whatever the size of long; an unsigned parameter also accepts -1, as C++ does.
        constexpr std::int64_t lowest = std::numeric_limits<std::int32_t>::min();
        constexpr std::int64_t highest = std::is_unsigned_v<T> ? std::numeric_limits<std::uint32_t>::max()
                                                               : std::numeric_limits<std::int32_t>::max();
        constexpr bool small = sizeof(T) < 4;
        constexpr std::int64_t low = small ? -(std::int64_t(1) << (8 * sizeof(T) - 1)) : lowest;
        constexpr std::int64_t high = small ? (std::int64_t(1) << (8 * sizeof(T))) - 1 : highest;
        return argument.number && *argument.number >= low && *argument.number <= high ? exact : doesNotFit;
    }
    static T read(const CallArgument& argument)
    {
        using Narrow = std::conditional_t<std::is_unsigned_v<T>, std::uint32_t, std::int32_t>;
        return static_cast<T>(static_cast<Narrow>(*argument.number));
    }
};

/// The last value of an enumeration whose values run from 0 without a gap.
template<class E>
constexpr int lastOf = -1;
template<>
inline constexpr int lastOf<AWnd::E_WNDTYPE> = AWnd::WND_GRAPH;
template<>
inline constexpr int lastOf<AWnd::E_MOUSEACTION> = AWnd::MA_KEY;
template<>
inline constexpr int lastOf<AWnd::E_TEXTJUSTIFY> = AWnd::TJ_RIGHT;
template<>
inline constexpr int lastOf<AButton::E_BUTTON_STATE> = AButton::BS_DISABLED;

template<class T>
requires std::is_enum_v<T>
struct Kind<T> {
    static_assert(lastOf<T> >= 0, "add the enumeration's last value above");
    static std::string describe() { return "number from 0 to " + std::to_string(lastOf<T>); }
    static int distance(const CallArgument& argument)
    {
        return argument.number && *argument.number >= 0 && *argument.number <= lastOf<T> ? exact : doesNotFit;
    }
    static T read(const CallArgument& argument) { return static_cast<T>(*argument.number); }
};

template<>
struct Kind<ZnFixed> {
    static const char* describe() { return "fixed-point number"; }
    static int distance(const CallArgument& argument)
    {
        const auto& raw = argument.fixed ? argument.fixed : argument.number;
        if (!raw || *raw != static_cast<std::int32_t>(*raw))
            return doesNotFit;
        return argument.fixed ? exact : close; // a plain number prefers an int overload
    }
    static ZnFixed read(const CallArgument& argument)
    {
        return ZnFixed::fromRaw(
            static_cast<std::int32_t>(argument.fixed ? *argument.fixed : *argument.number));
    }
};

template<>
struct Kind<CString> {
    static const char* describe() { return "text"; }
    static int distance(const CallArgument& argument)
    {
        // A number is text only if nothing else fits, and null prefers a window overload.
        if (argument.number || argument.fixed)
            return far;
        return argument.isNull ? close : exact;
    }
    static CString read(const CallArgument& argument) { return CString(argument.word.text); }
};
template<>
struct Kind<const char*> : Kind<CString> {};

template<class T>
requires std::derived_from<T, AWnd>
struct Kind<T*> {
    static const char* describe() { return "window or null"; }
    static int distance(const CallArgument& argument)
    {
        return argument.isNull || dynamic_cast<T*>(argument.wnd) ? exact : doesNotFit;
    }
    static T* read(const CallArgument& argument)
    {
        return argument.isNull ? nullptr : dynamic_cast<T*>(argument.wnd);
    }
};

/// A pointer to an object that no word can name. Only null fits.
template<class T>
struct Kind<T*> {
    static const char* describe() { return "null"; }
    static int distance(const CallArgument& argument) { return argument.isNull ? exact : doesNotFit; }
    static T* read(const CallArgument&) { return nullptr; }
};

/// Whether a parameter returns a result: a non-const reference does, and takes no word of the line.
template<class P>
constexpr bool isResult = std::is_lvalue_reference_v<P> && !std::is_const_v<std::remove_reference_t<P>>;

/// The type that holds an argument during the call. A const char* points into a CString.
template<class P>
using Plain = std::remove_cvref_t<P>;
template<class P>
using Kept = std::conditional_t<std::is_same_v<Plain<P>, const char*>, CString, Plain<P>>;

inline void writeResult(JsonWriter& json, const AWnd* wnd)
{
    if (wnd)
        json.value(wnd->getID().view());
    else
        json.null();
}
// Look-ups return these two types without checking the window's real type, so the pointer may be to any
// window. The cast is sound because both classes derive from AWnd alone, so that their AWnd has the same
// address.
inline void writeResult(JsonWriter& json, AButton* wnd)
{
    writeResult(json, reinterpret_cast<const AWnd*>(wnd));
}
inline void writeResult(JsonWriter& json, AListBox* wnd)
{
    writeResult(json, reinterpret_cast<const AWnd*>(wnd));
}
inline void writeResult(JsonWriter& json, const CString& text)
{
    json.value(text.view());
}
inline void writeResult(JsonWriter& json, const char* text)
{
    if (text)
        json.value(std::string_view(text));
    else
        json.null();
}
inline void writeResult(JsonWriter& json, ZnFixed number)
{
    json.value(number.raw);
}
template<class T>
requires std::integral<T> || std::is_enum_v<T>
void writeResult(JsonWriter& json, T number)
{
    json.value(static_cast<std::int64_t>(number));
}

template<class Class>
Class* objectOf(const CallTarget& target)
{
    if constexpr (std::derived_from<Class, AWnd>)
        return dynamic_cast<Class*>(target.wnd);
    else
        return dynamic_cast<Class*>(target.main);
}

template<class Class, class Result, class... P>
struct Caller {
    static constexpr bool hasResults = (isResult<P> || ...);

    static int countArguments() { return (0 + ... + !isResult<P>); }

    static bool isOperationOf(const CallTarget& target) { return objectOf<Class>(target) != nullptr; }

    static int distance(std::span<const CallArgument> arguments)
    {
        if (arguments.size() != static_cast<std::size_t>(countArguments()))
            return doesNotFit;
        std::size_t next = 0;
        int sum = 0;
        bool fits = true;
        [[maybe_unused]] auto add = [&]<class Q>() {
            if constexpr (!isResult<Q>) {
                int one = Kind<Plain<Q>>::distance(arguments[next++]);
                fits = fits && one != doesNotFit;
                sum += one;
            }
        };
        (add.template operator()<P>(), ...);
        return fits ? sum : doesNotFit;
    }

    static std::string describe()
    {
        std::string text;
        [[maybe_unused]] auto add = [&]<class Q>() {
            if constexpr (!isResult<Q>)
                text += (text.empty() ? "" : ", ") + std::string(Kind<Plain<Q>>::describe());
        };
        (add.template operator()<P>(), ...);
        return '(' + text + ')';
    }

    template<auto method>
    static std::string call(const CallTarget& target, std::span<const CallArgument> arguments)
    {
        [[maybe_unused]] std::size_t next = 0;
        [[maybe_unused]] auto read = [&]<class Q>() -> Kept<Q> {
            if constexpr (isResult<Q>)
                return Kept<Q>{};
            else
                return Kind<Plain<Q>>::read(arguments[next++]);
        };
        std::tuple<Kept<P>...> kept{
            read.template operator()<P>()...}; // braces guarantee the order of evaluation
        Class& object = *objectOf<Class>(target);
        JsonWriter json;
        if constexpr (hasResults)
            json.open('[');
        std::apply(
            [&](Kept<P>&... argument) {
                if constexpr (std::is_void_v<Result>) {
                    (object.*method)(argument...);
                    json.null();
                } else {
                    writeResult(json, (object.*method)(argument...));
                }
                [[maybe_unused]] auto addResult = [&]<class Q>([[maybe_unused]] const Kept<Q>& value) {
                    if constexpr (isResult<Q>)
                        writeResult(json, value);
                };
                (addResult.template operator()<P>(argument), ...);
            },
            kept);
        if constexpr (hasResults)
            json.close(']');
        return json.text();
    }
};

template<class Method>
struct CallerOf;
template<class Class, class Result, class... P>
struct CallerOf<Result (Class::*)(P...)> : Caller<Class, Result, P...> {};
template<class Class, class Result, class... P>
struct CallerOf<Result (Class::*)(P...) const> : Caller<Class, Result, P...> {};

} // namespace callable

/// Makes the row of an operation that has no overload: operation<&AWnd::setEnabled>("setEnabled").
template<auto method>
constexpr Operation operation(const char* name)
{
    using Caller = callable::CallerOf<decltype(method)>;
    return {name,
            &Caller::countArguments,
            &Caller::isOperationOf,
            &Caller::distance,
            &Caller::template call<method>,
            &Caller::describe};
}

/// Makes the row of one overload: overload<void (AWnd::*)(int), &AWnd::setWindowText>("setWindowText").
template<class Method, Method method>
constexpr Operation overload(const char* name)
{
    return operation<method>(name);
}

} // namespace tgx
