// Rules for blocks: which statements belong to which window.

#include "language/check/pointers.h"
#include "language/check/rules.h"
#include "platform/framework/text.h"
#include "tgx/script/token.h"

#include <unordered_map>
#include <utility>
#include <vector>

namespace tgx::script_check {

namespace {

bool isTabList(std::string_view keyword)
{
    return keyword == "TABORDER" || keyword == "TABLIST1" || keyword == "TABLIST2";
}

/// Returns whether the attribute fits any window, so that a wrong target is not an error.
bool fitsAnyWindow(const Statement& statement)
{
    return statement.kind == StatementKind::Attribute && statement.target.types == TargetRule{}.types &&
           !isTabList(statement.keyword);
}

std::string lineNumber(const Script& script, int line)
{
    return "line " + std::to_string(script.numberOf(line));
}

int columnOf(const Script& script, int line)
{
    return script.line(line).tokens[0].at.column;
}

/// Returns whether the line follows a one-line body of a subroutine and looks like part of it. A plain window
/// does not count: it may well start there.
bool followsBody(const Script& script, int line)
{
    const Statement* statement = script.statement(line);
    if (!statement || line < 2 || script.place(line).depth > 0 ||
        script.place(line).subroutine != LinePlace::none || script.place(line - 1).subroutine != line - 2)
        return false;
    switch (statement->kind) {
    case StatementKind::BlockBegin:
    case StatementKind::Command:
    case StatementKind::Reference:
        return true;
    case StatementKind::Attribute:
        return !script.isKeyword(line, "FONT"); // reported as outside of all blocks
    case StatementKind::Window:
        return makesControl(*statement);
    default:
        return false;
    }
}

class BlockRules {
public:
    BlockRules(const Script& checked, Findings& found) : script(checked), findings(found) {}

    bool run()
    {
        for (int line = 0; line < script.lineCount(); ++line)
            if (const Statement* statement = script.statement(line)) {
                if (followsBody(script, line))
                    reportAfterBody(line);
                check(line, *statement);
            }
        if (!open.empty())
            reportUnclosed();
        return open.empty();
    }

private:
    void reportAfterBody(int line)
    {
        findings.add("after-body", script, line,
                     "the subroutine " + inQuotes(script.string(line - 2, 1)) + " ends with " +
                         lineNumber(script, line - 1) +
                         ", and this is not part of it; a body of several lines needs BEGIN and END");
    }

    void check(int line, const Statement& statement)
    {
        const LinePlace& place = script.place(line);
        switch (statement.kind) {
        case StatementKind::BlockBegin:
            open.push_back(line);
            unclosed.push_back(line);
            if (place.subroutine == LinePlace::none || place.depth > 0)
                checkOpener(line);
            return;
        case StatementKind::BlockEnd:
            close(line);
            return;
        case StatementKind::Definition:
            if (place.depth > 0)
                findings.add(
                    "nested-subroutine", script, line,
                    "SUBROUTINE inside a block; move it to the top level, preferably of a separate script");
            return;
        case StatementKind::Screen:
            if (place.depth > 0 && place.subroutine == LinePlace::none)
                findings.add("nested-screen", script, line,
                             "a SCREEN inside the block that begins in " + lineNumber(script, place.block) +
                                 "; it becomes a top-level window anyway. Is an END missing?");
            break;
        case StatementKind::Attribute:
            checkTarget(line, statement);
            break;
        default:
            break;
        }
        checkDepth(line, statement);
    }

    void checkDepth(int line, const Statement& statement)
    {
        const bool isTooDeep = script.place(line).depth > deepestLevel(statement.kind);
        if (isTooDeep && !wasTooDeep)
            findings.add("too-deep", script, line,
                         std::string(statement.keyword) + " is inside " +
                             std::to_string(script.place(line).depth) + " blocks; at most " +
                             std::to_string(deepestLevel(statement.kind)) + " are allowed");
        wasTooDeep = isTooDeep;
    }

    void close(int line)
    {
        if (open.empty()) {
            findings.add("end-without-begin", script, line, "no block is open here; expected BEGIN first");
            return;
        }
        open.pop_back();
        // A BEGIN that is indented further than the END is missing its own END.
        if (script.isCompiled)
            return;
        for (; !unclosed.empty(); unclosed.pop_back()) {
            const int each = unclosed.back();
            if (script.line(each).in != script.line(line).in ||
                columnOf(script, each) <= columnOf(script, line))
                break;
            misclosed.emplace_back(each, line);
        }
        if (!unclosed.empty())
            unclosed.pop_back();
    }

    /// Reports the blocks that the indentation shows to be missing their END, or else those that are still
    /// open.
    void reportUnclosed()
    {
        if (misclosed.size() + unclosed.size() != open.size() || script.isCompiled) {
            misclosed.clear();
            unclosed = open;
        }
        for (const auto& [begin, end] : misclosed)
            findings.add("begin-without-end", script, begin,
                         "this block has no END of its own: it is closed by the one in " +
                             lineNumber(script, end) + ", which is further to the left");
        for (const int begin : unclosed)
            findings.add("begin-without-end", script, begin, "this block has no END");
    }

    void checkOpener(int begin)
    {
        int opener = LinePlace::none;
        if (begin + 1 < script.lineCount())
            opener = script.place(begin + 1).opener;
        if (begin + 1 < script.lineCount() && opener == LinePlace::none &&
            script.place(begin + 1).block == begin && !followsBody(script, begin))
            findings.add("block-without-window", script, begin,
                         "no window precedes this block, so its lines act on the root of all windows");
    }

    void checkTarget(int line, const Statement& statement)
    {
        const LinePlace& place = script.place(line);
        const Statement* before = line > 0 ? script.statement(line - 1) : nullptr;
        const bool followsWindow = before && namesItsWindow(*before);
        const std::string keyword = statement.keyword;
        if (followsBody(script, line))
            return;
        if (place.depth == 0 && place.subroutine == LinePlace::none) {
            // A statement that requires a type of window fails there and is reported then.
            if (keyword != "FONT" && (fitsAnyWindow(statement) || isTabList(keyword)))
                findings.add("outside-block", script, line,
                             keyword + " outside of all blocks acts on the root of all windows" +
                                 (followsWindow ? "; to apply it to " + inQuotes(script.string(line - 1, 1)) +
                                                      ", put it between BEGIN and END"
                                                : ""));
        } else if (followsWindow && fitsAnyWindow(statement) && script.place(line - 1).block == place.block &&
                   !(keyword == "FONT" && makesWindowAfter(line)) && !isForPopup(keyword, place)) {
            const std::string around = place.opener >= 0 && script.tokenCount(place.opener) > 1 &&
                                               !makesPart(*script.statement(place.opener))
                                           ? inQuotes(script.string(place.opener, 1))
                                           : "the enclosing window";
            findings.add("attribute-on-parent", script, line,
                         keyword + " acts on " + around + " here; to apply it to " +
                             inQuotes(script.string(line - 1, 1)) + ", put it between BEGIN and END");
        }
    }

    /// Returns whether the keyword is EASYCLOSE, which only has an effect on a popup, in the block of a
    /// window that may be one.
    bool isForPopup(std::string_view keyword, const LinePlace& place) const
    {
        return keyword == "EASYCLOSE" && (place.depth == 1 || place.opener == LinePlace::caller);
    }

    /// Returns whether the same block makes a window that takes the font after this line, or may do so
    /// through a subroutine.
    bool makesWindowAfter(int line) const
    {
        const LinePlace& place = script.place(line);
        for (int each = line + 1; each < script.lineCount() && script.place(each).depth >= place.depth;
             ++each)
            if (const Statement* statement = script.statement(each);
                statement && script.place(each).block == place.block &&
                (makesWindow(*statement) || statement->kind == StatementKind::Reference ||
                 script.isKeyword(each, "GOTO")))
                return true;
        return false;
    }

    const Script& script;
    Findings& findings;
    std::vector<int> open;     // BEGIN lines without an END so far
    std::vector<int> unclosed; // BEGIN lines without an END of the same indentation so far
    /// BEGIN lines whose own END is missing, each with the END further left that closes it instead.
    std::vector<std::pair<int, int>> misclosed;
    bool wasTooDeep = false;
};

/// Returns whether a second line with this keyword replaces the values of the first one. Statements that
/// append have no fixed count.
bool setsOnce(const Statement& statement)
{
    return statement.kind == StatementKind::Attribute && !statement.counts.allow(maxLineTokens);
}

/// Returns whether the line sets everything that the earlier line with the same keyword has set. With fewer
/// arguments it may not, and negative numbers keep the present value.
bool setsAllOf(const Script& script, int line, int earlier)
{
    for (int token = 1; token < script.tokenCount(line); ++token)
        if (script.number(line, token) < 0)
            return false;
    return script.tokenCount(line) >= script.tokenCount(earlier);
}

} // namespace

bool checkBlocks(const Script& script, Findings& findings)
{
    return BlockRules(script, findings).run();
}

void checkOverridden(const Script& script, Findings& findings)
{
    const auto report = [&](int line, int by, const char* what) {
        findings.add("no-effect", script, line,
                     std::string(script.statement(line)->keyword) + what + lineNumber(script, by));
    };
    struct Level {
        std::unordered_map<int, int> setters; // last line of each keyword
        int resetInfo = -1;                   // a BMPINFO whose size a BMPFILE has reset, and that BMPFILE
        int resetBy = -1;
    };
    std::vector<Level> levels(1);
    const auto leave = [&] {
        if (levels.back().resetInfo >= 0)
            report(levels.back().resetInfo, levels.back().resetBy,
                   " sets a frame size that is reset by the BMPFILE in ");
        levels.pop_back();
    };
    const int font = statementByKeyword("FONT")->id;
    const int bmpInfo = statementByKeyword("BMPINFO")->id;
    for (int line = 0; line < script.lineCount(); ++line) {
        const Statement* statement = script.statement(line);
        if (!statement)
            continue;
        if (statement->kind == StatementKind::BlockBegin) {
            levels.emplace_back();
            continue;
        }
        if (statement->kind == StatementKind::BlockEnd) {
            if (levels.size() > 1)
                leave();
            continue;
        }
        Level& level = levels.back();
        // Windows take the font that is set when they are made.
        if (makesWindow(*statement) || statement->kind == StatementKind::Command ||
            statement->kind == StatementKind::Reference)
            level.setters.erase(font);
        // At the top level, each FONT is for the windows that follow, and other attributes have no effect.
        if (!setsOnce(*statement) || levels.size() == 1)
            continue;
        const auto [before, isFirst] = level.setters.try_emplace(statement->id, line);
        if (!isFirst) {
            if (setsAllOf(script, line, before->second))
                report(before->second, line, " is overridden by the same statement in ");
            before->second = line;
        }
        if (statement->id == bmpInfo)
            level.resetInfo = -1;
        else if (script.isKeyword(line, "BMPFILE") && level.setters.contains(bmpInfo) &&
                 level.resetInfo < 0) {
            level.resetInfo = level.setters[bmpInfo];
            level.resetBy = line;
        }
    }
    while (!levels.empty())
        leave();
}

/// A screen with a backdrop may be meant to show only that, unless a control comes next.
void checkEmptyScreens(const Script& script, Findings& findings)
{
    for (const int line : script.topWindows) {
        const Statement* next = line + 1 < script.lineCount() ? script.statement(line + 1) : nullptr;
        const bool hasBlock = next && next->kind == StatementKind::BlockBegin;
        const bool isMeantFull = script.string(line, 6).empty() || (next && makesControl(*next));
        if (script.isKeyword(line, "SCREEN") && !hasBlock && isMeantFull)
            findings.add(
                "empty-screen", script, line,
                "this screen is empty, because no block follows it; put its windows between BEGIN and "
                "END after this line");
    }
}

void checkMissingBlocks(const Script& script, const PointerTargets& pointerTargets, Findings& findings)
{
    const bool isLibrary = !script.subroutines.empty() || lowercased(script.name) == commonScriptFile;
    for (const int line : script.topWindows) {
        const std::string& name = script.string(line, 1);
        if (isMain(script) || !(isLibrary || pointerTargets.contains(script, name)) ||
            followsBody(script, line))
            continue;
        const Statement* next = line + 1 < script.lineCount() ? script.statement(line + 1) : nullptr;
        if (!next || name.empty() || name == "static" || next->kind == StatementKind::BlockBegin ||
            next->kind == StatementKind::BlockEnd || next->kind == StatementKind::Attribute)
            continue; // an attribute outside of blocks is reported
        findings.add("missing-block", script, line, 1,
                     "reading " + inQuotes(name) + " also executes " + lineNumber(script, line + 1) +
                         ", which does not belong to it; add BEGIN and END after this line");
    }
}

void checkTopNames(const Script& script, Findings& findings)
{
    std::unordered_map<std::string_view, int> first; // line whose first argument is that string
    for (int line = 0; line < script.lineCount(); ++line)
        if (script.tokenCount(line) > 1 && !script.string(line, 1).empty())
            first.try_emplace(script.string(line, 1), line);
    std::unordered_map<std::string_view, int> defined;
    for (const int line : script.topWindows) {
        const std::string& name = script.string(line, 1);
        if (name.empty() || name == "static")
            continue;
        const auto [other, isFirst] = defined.try_emplace(name, line);
        if (!isFirst) {
            findings.add("duplicate-id", script, line, 1,
                         inQuotes(name) + " is already defined in " + lineNumber(script, other->second) +
                             "; reading it always uses that definition");
        } else if (const int taker = first[name]; taker != line) {
            findings.add("name-taken", script, taker, 1,
                         "reading the window " + inQuotes(name) + ", which is defined in " +
                             lineNumber(script, line) + ", starts here; use another name here");
        }
    }
}

} // namespace tgx::script_check
