#pragma once

#include "tgx/export.h"
#include "tgx/script/token.h"
#include "tgx/wnd/wnd.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace tgx {

struct ScriptLine;

/// The ids that code uses by name. All others are only in the table.
namespace keyword {
constexpr int begin = 14;
constexpr int end = 15;
constexpr int centre = 48;
constexpr int left = 73;
constexpr int right = 89;
constexpr int subroutine = 96;
} // namespace keyword

enum class StatementKind {
    BlockBegin,
    BlockEnd,
    Command,      // acts on no window and does not change the window stack
    Window,       // makes a child of the target and opens it for the block that follows
    Screen,       // makes a child of the root, whatever the target, and opens it
    Reference,    // shows an existing window in the target too, and opens it
    Attribute,    // changes the target
    Definition,   // found by a search; fails if it is executed
    ArgumentWord, // only valid after another keyword
};

/// Returns the number of blocks that may be around a statement of that kind. Commands are still allowed one
/// level deeper than the window stack.
constexpr int deepestLevel(StatementKind kind)
{
    return kind == StatementKind::Command ? wndStackSize : wndStackSize - 1;
}

enum class ArgumentKind { Number, String, Word, NumberOrWord };

/// The numbers of tokens that a line may have, including the keyword.
struct TokenCounts {
    std::uint32_t mask = 0; // bit n: n tokens

    constexpr bool allow(int count) const
    {
        return count >= 0 && count <= maxLineTokens && (mask >> count & 1) != 0;
    }
};
template<class... Count>
constexpr TokenCounts counts(Count... each)
{
    return {(0u | ... | (1u << each))};
}
constexpr TokenCounts atLeast(int count)
{
    return {((1u << (maxLineTokens + 1)) - 1) & ~((1u << count) - 1)};
}

/// What a statement requires of its target window.
struct TargetRule {
    enum Otherwise { Fails, DoesNothing };

    std::uint32_t types = ~0u; // bit n: window type n is allowed
    Otherwise otherwise = Fails;

    constexpr bool fits(int type) const { return (types >> type & 1) != 0; }
};

/// Executes a line on its target and stores in made the window that it made, if any. Returns false if the
/// line fails.
using StatementHandler = bool (*)(AWnd& target, const ScriptLine& line, AWnd*& made);

/// A row of the vocabulary.
struct Statement {
    int id;
    const char* keyword;
    StatementKind kind;
    TokenCounts counts;
    /// The names of the arguments in order: "in quotes" a string, UPPER|CASE a word, lower case a number,
    /// number|WORD either; a trailing ... repeats the last one.
    const char* form;
    TargetRule target = {};
    StatementHandler handler = nullptr; // null: not supported by the interpreter; the line fails
};

/// Returns all statements of the language, in id order.
TGX_API std::span<const Statement> vocabulary();
/// Returns the row of id, or null if there is none.
TGX_API const Statement* statementById(int id);
/// Returns the row with exactly this keyword, or null if there is none.
TGX_API const Statement* statementByKeyword(std::string_view keyword);
/// Returns an argument's name in the form, in quotes if it is a string; token 1 is the first. Tokens after
/// the last argument of the form count as that one. Empty if there is none.
TGX_API std::string_view argumentName(const Statement& statement, int token);
/// Returns the kind of the argument at token; token 1 is the first. Tokens after the last argument of the
/// form count as that one. The interpreter does not check kinds: a string where a number is expected counts
/// as 0.
TGX_API ArgumentKind argumentKind(const Statement& statement, int token);

} // namespace tgx
