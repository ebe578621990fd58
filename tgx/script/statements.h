#pragma once

#include "tgx/controls/combobox.h"
#include "tgx/controls/graph.h"
#include "tgx/script/script_stage.h"
#include "tgx/script/vocabulary.h"
#include "tgx/wnd/tabstops.h"
#include "tgx/wnd/window_cast.h"

#include <type_traits>
#include <utility>

namespace tgx {

class ScriptRun;

/// A line and its context, as passed to a handler.
struct ScriptLine {
    ScriptStage& window;
    ScriptRun& run;
    CFile* stream;            // the line's stream, used only to search for subroutines
    const TOKEN_INFO* tokens; // entries after the line's end are 0 and empty
    int count;
    AWnd* current; // window of the block; null at the top level of a script
    int depth;
    CArray<CFile*, CFile*>& gotoFiles;

    int number(int token) const { return tokens[token].value; }
    const CString& text(int token) const { return tokens[token].text; }
};

/// Makes a table entry from a handler. A handler is one of
///     void f(Target&, const ScriptLine&)     cannot fail
///     bool f(Target&, const ScriptLine&)     false: the line fails
///     AWnd* f(AWnd& target, const ScriptLine&)   the window that it made; null: the line fails
///     bool f(const ScriptLine&)              a command, which has no target
///     void Target::f(...)                    a setter, which receives tokens 1, 2 and so on
/// The row's target rule has checked the window's type; a line for a window of another class fails.
template<auto handler>
struct HandlerOf;

template<class Target, class Result, Result (*handler)(Target&, const ScriptLine&)>
struct HandlerOf<handler> {
    static bool run(AWnd& target, const ScriptLine& line, AWnd*& made)
    {
        if constexpr (std::is_same_v<Target, AWnd>) {
            return runOn(target, line, made);
        } else {
            // The row has checked the window's type, but a game's class may use any type.
            auto* typed = windowAs<Target>(&target);
            return typed && runOn(*typed, line, made);
        }
    }
    static bool runOn(Target& target, const ScriptLine& line, AWnd*& made)
    {
        if constexpr (std::is_void_v<Result>) {
            handler(target, line);
            return true;
        } else if constexpr (std::is_same_v<Result, bool>) {
            return handler(target, line);
        } else {
            made = handler(target, line);
            return made != nullptr;
        }
    }
};

/// The value of a token as an argument of that type.
template<class Argument>
Argument argumentOf(const ScriptLine& line, int token)
{
    static_assert(std::is_same_v<Argument, int> || std::is_same_v<Argument, const CString&>);
    if constexpr (std::is_same_v<Argument, int>)
        return line.number(token);
    else
        return line.text(token);
}

template<class Target, class Result, class... Argument, Result (Target::*setter)(Argument...)>
struct HandlerOf<setter> {
    static void set(Target& target, const ScriptLine& line)
    {
        pass(target, line, std::index_sequence_for<Argument...>());
    }
    template<std::size_t... place>
    static void pass(Target& target, const ScriptLine& line, std::index_sequence<place...>)
    {
        (target.*setter)(argumentOf<Argument>(line, static_cast<int>(place) + 1)...);
    }
    static bool run(AWnd& target, const ScriptLine& line, AWnd*& made)
    {
        return HandlerOf<&HandlerOf::set>::run(target, line, made);
    }
};

template<bool (*handler)(const ScriptLine&)>
struct HandlerOf<handler> {
    static bool run(AWnd&, const ScriptLine& line, AWnd*&) { return handler(line); }
};

template<auto handler>
constexpr StatementHandler on = &HandlerOf<handler>::run;

// Commands (commands.cpp).
bool addFont(const ScriptLine& line);
bool goTo(const ScriptLine& line);

// Windows (windows.cpp).
AWnd* bitmap(AWnd& target, const ScriptLine& line);
AWnd* pointer(AWnd& target, const ScriptLine& line);
AWnd* screen(AWnd& target, const ScriptLine& line);
AWnd* textWnd(AWnd& target, const ScriptLine& line);
AWnd* userDef(AWnd& target, const ScriptLine& line);
AWnd* window(AWnd& target, const ScriptLine& line);

// Attributes of any window (attributes.cpp).
void bmpFile(AWnd& target, const ScriptLine& line);
void border(AWnd& target, const ScriptLine& line);
bool font(AWnd& target, const ScriptLine& line);
void justify(AWnd& target, const ScriptLine& line);
void text(AWnd& target, const ScriptLine& line);
/// Appends the windows below target that the tokens from 1 on name. Returns false at the first name that is
/// not found; the windows before it stay in the list.
bool appendWnds(AWnd& target, const ScriptLine& line, WndList ATabStopInfo::*list);
template<WndList ATabStopInfo::*list>
bool tabStops(AWnd& target, const ScriptLine& line)
{
    return appendWnds(target, line, list);
}

// Makers of controls. A form is the tokens after id and box, which several statements share.
/// Adds a control with the line's id and box to target and returns it.
template<class Control>
Control* addControl(AWnd& target, const ScriptLine& line)
{
    auto* made = new Control(line.text(1), line.number(2), line.number(3), line.number(4), line.number(5));
    target.addChildWindow(made);
    return made;
}
void applyTextForm(AWnd& wnd, const ScriptLine& line);
template<class Control>
Control* addTextControl(AWnd& target, const ScriptLine& line)
{
    auto* made = addControl<Control>(target, line);
    applyTextForm(*made, line);
    return made;
}
void applyButtonForm(AButton& button, const ScriptLine& line);
template<class Button>
Button* addButton(AWnd& target, const ScriptLine& line)
{
    auto* made = addControl<Button>(target, line);
    applyButtonForm(*made, line);
    return made;
}
void applyBarForm(AWnd& bar, const ScriptLine& line);
template<class Bar, bool isHorizontal>
Bar* addBar(AWnd& target, const ScriptLine& line)
{
    auto* made = addControl<Bar>(target, line);
    made->setHorizontal(isHorizontal);
    applyBarForm(*made, line);
    return made;
}
AWnd* addStateButton(const char* name, AWnd& target, const ScriptLine& line);
/// Makes a part that its control finds by the id.
template<const char* id>
AWnd* stateButton(AWnd& target, const ScriptLine& line)
{
    return addStateButton(id, target, line);
}
/// Stores the justification that token names. Returns false if it names none.
bool justificationOf(const TOKEN_INFO& token, AWnd::E_TEXTJUSTIFY& justify);

// Buttons and their parts (buttons.cpp).
AWnd* checkBox(AWnd& target, const ScriptLine& line);
AWnd* radioButton(AWnd& target, const ScriptLine& line);
AWnd* comboMenu(AWnd& target, const ScriptLine& line);

// Graphs (displays.cpp).
AWnd* lineGraph(AWnd& target, const ScriptLine& line);
void graphInfo(AGraph& target, const ScriptLine& line);

// List boxes, and the items of combo boxes (lists.cpp).
bool item(AWnd& target, const ScriptLine& line);
void columns(AListBox& list, const ScriptLine& line);
void listFixedColumns(AListBox& list, const ScriptLine& line);
void listFixedRows(AListBox& list, const ScriptLine& line);
bool listFonts(AListBox& list, const ScriptLine& line);
void listHighlight(AListBox& list, const ScriptLine& line);
void listIcons(AListBox& list, const ScriptLine& line);
void listLook(AListBox& list, const ScriptLine& line);
void listOptions(AListBox& list, const ScriptLine& line);
void titles(AListBox& list, const ScriptLine& line);

} // namespace tgx
