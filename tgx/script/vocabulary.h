#pragma once

#include "tgx/export.h"
#include "tgx/script/token.h"
#include "tgx/wnd/wnd.h"

#include <cstdint>
#include <span>
#include <string_view>

struct ScriptLine;

/// The ids that code asks for by name. All others stand in the table alone.
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
    Command,      // acts on no window and leaves the window stack alone
    Window,       // makes a child of the target and opens it for the block behind it
    Screen,       // the same for a child of the root, whatever the target
    Reference,    // shows a window that there is in the target too, and opens it
    Attribute,    // changes the target
    Definition,   // found by a search; as a line that is executed it fails
    ArgumentWord, // stands behind another keyword only
};

/// Blocks that may stand around a statement of that kind: one level below the stack's last a block may still
/// hold commands.
constexpr int deepestLevel(StatementKind kind)
{
    return kind == StatementKind::Command ? wndStackSize : wndStackSize - 1;
}

enum class ArgumentKind { Number, String, Word, NumberOrWord };

/// The numbers of tokens that a line may have, the keyword included.
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

/// What a statement asks of its target window.
struct TargetRule {
    enum Otherwise { Fails, DoesNothing };

    std::uint32_t types = ~0u; // bit n: the window type n fits
    Otherwise otherwise = Fails;

    constexpr bool fits(int type) const { return (types >> type & 1) != 0; }
};

/// Carries a line out on its target. made receives the window that it made, if it made one. False: the line
/// fails.
using StatementHandler = bool (*)(AWnd& target, const ScriptLine& line, AWnd*& made);

/// A row of the vocabulary.
struct Statement {
    int id;
    const char* keyword;
    StatementKind kind;
    TokenCounts counts;
    /// The arguments in order, each by a name: "in quotes" a string, UPPER|CASE a word, lower case a number,
    /// number|WORD either; a trailing ... repeats the last one.
    const char* form;
    TargetRule target = {};
    StatementHandler handler = nullptr; // null: the interpreter does not know it, the line fails
};

/// The whole language, in id order.
TGX_API std::span<const Statement> vocabulary();
/// Null for an id without a row.
TGX_API const Statement* statementById(int id);
/// Exact. Null when there is none.
TGX_API const Statement* statementByKeyword(std::string_view keyword);
/// The argument's name in the form, with quotes around that of a string: token 1 is the first; what stands
/// behind the last of the form counts as that one. Empty when there is none.
TGX_API std::string_view argumentName(const Statement& statement, int token);
/// Kind of the argument at that token, 1 for the first; what stands behind the last of the form counts as
/// that one. The interpreter never asks: a string where a number is expected reads as 0.
TGX_API ArgumentKind argumentKind(const Statement& statement, int token);
