// Rules for blocks: what belongs to which window.

#include "tgx/script/token.h"
#include "tools/tgx/check/rules.h"

#include <unordered_map>

namespace script_check {

namespace {

bool isTabList(std::string_view keyword)
{
    return keyword == "TABORDER" || keyword == "TABLIST1" || keyword == "TABLIST2";
}

/// An attribute of any window, which does not tell by itself which one is meant.
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

class BlockRules {
public:
    BlockRules(const Script& checked, Findings& found) : script(checked), findings(found) {}

    bool run()
    {
        for (int line = 0; line < script.lineCount(); ++line)
            if (const Statement* statement = script.statement(line))
                check(line, *statement);
        if (!open.empty())
            reportUnclosed();
        return open.empty();
    }

private:
    void check(int line, const Statement& statement)
    {
        const LinePlace& place = script.place(line);
        switch (statement.kind) {
        case StatementKind::BlockBegin:
            open.push_back(line);
            if (place.subroutine == LinePlace::none || place.depth > 0)
                checkOpener(line);
            return;
        case StatementKind::BlockEnd:
            close(line);
            return;
        case StatementKind::Definition:
            if (place.depth > 0)
                findings.add("nested-subroutine", script, line,
                             "SUBROUTINE inside a block; it stands at the top level, best in a script of "
                             "its own");
            return;
        case StatementKind::Screen:
            if (place.depth > 0 && place.subroutine == LinePlace::none)
                findings.add("nested-screen", script, line,
                             "a SCREEN inside the block that begins in " + lineNumber(script, place.block) +
                                 "; it goes to the top level all the same. Is an END missing?");
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
        const int most =
            statement.kind == StatementKind::Command ? wndStackSize : wndStackSize - 1; // as the interpreter
        const bool isTooDeep = script.place(line).depth > most;
        if (isTooDeep && !wasTooDeep)
            findings.add("too-deep", script, line,
                         std::string(statement.keyword) + " stands inside " +
                             std::to_string(script.place(line).depth) + " blocks; it may stand inside " +
                             std::to_string(most));
        wasTooDeep = isTooDeep;
    }

    void close(int line)
    {
        if (open.empty()) {
            findings.add("end-without-begin", script, line, "no block is open here; expected BEGIN first");
            return;
        }
        const int begin = open.back();
        open.pop_back();
        // Of the blocks that close otherwise than they look, the first is the one that lost its END.
        if (!script.isCompiled && oddBegin < 0 && script.line(begin).in == script.line(line).in &&
            columnOf(script, begin) > columnOf(script, line)) {
            oddBegin = begin;
            oddEnd = line;
        }
    }

    void reportUnclosed()
    {
        if (oddBegin >= 0)
            findings.add("begin-without-end", script, oddBegin,
                         "no END of its own closes this block: the one in " + lineNumber(script, oddEnd) +
                             " does, and stands further to the left");
        else
            findings.add("begin-without-end", script, open.front(), "no END closes this block");
    }

    void checkOpener(int begin)
    {
        int opener = LinePlace::none;
        if (begin + 1 < script.lineCount())
            opener = script.place(begin + 1).opener;
        if (begin + 1 < script.lineCount() && opener == LinePlace::none &&
            script.place(begin + 1).block == begin)
            findings.add("block-without-window", script, begin,
                         "no window stands in front of this block, so its lines act on the root of all "
                         "windows");
    }

    void checkTarget(int line, const Statement& statement)
    {
        const LinePlace& place = script.place(line);
        const Statement* before = line > 0 ? script.statement(line - 1) : nullptr;
        const bool followsWindow = before && namesItsWindow(*before);
        const std::string keyword = statement.keyword;
        if (place.depth == 0 && place.subroutine == LinePlace::none) {
            // What asks for a type of window fails there, which is told when it does.
            if (keyword != "FONT" && (fitsAnyWindow(statement) || isTabList(keyword)))
                findings.add("outside-block", script, line,
                             keyword + " outside of all blocks acts on the root of all windows" +
                                 (followsWindow ? "; for " + inQuotes(script.string(line - 1, 1)) +
                                                      " it stands between BEGIN and END"
                                                : ""));
        } else if (followsWindow && fitsAnyWindow(statement) && script.place(line - 1).block == place.block &&
                   !(keyword == "FONT" && makesWindowBehind(line))) {
            const std::string around = place.opener >= 0 && script.tokenCount(place.opener) > 1 &&
                                               !makesPart(*script.statement(place.opener))
                                           ? inQuotes(script.string(place.opener, 1))
                                           : "the window around";
            findings.add("attribute-on-parent", script, line,
                         keyword + " acts on " + around + " here; for " +
                             inQuotes(script.string(line - 1, 1)) + " it stands between BEGIN and END");
        }
    }

    /// Whether a window that takes the font comes in the same block.
    bool makesWindowBehind(int line) const
    {
        const LinePlace& place = script.place(line);
        for (int each = line + 1; each < script.lineCount() && script.place(each).depth >= place.depth;
             ++each)
            if (const Statement* statement = script.statement(each);
                statement && makesWindow(*statement) && script.place(each).block == place.block)
                return true;
        return false;
    }

    const Script& script;
    Findings& findings;
    std::vector<int> open; // BEGIN lines
    int oddBegin = -1;     // closed by an END further to the left
    int oddEnd = -1;
    bool wasTooDeep = false;
};

/// A line that sets what another line of its kind would set again. Those that append have no fixed count.
bool setsOnce(const Statement& statement)
{
    return statement.kind == StatementKind::Attribute && !statement.counts.allow(maxLineTokens);
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
        std::unordered_map<int, int> setters; // by keyword, the last line
        int resetInfo = -1;                   // a BMPINFO whose size a BMPFILE took back, and that one
        int resetBy = -1;
    };
    std::vector<Level> levels(1);
    const auto leave = [&] {
        if (levels.back().resetInfo >= 0)
            report(levels.back().resetInfo, levels.back().resetBy,
                   " sets a frame size that is taken back by the BMPFILE in ");
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
        // Windows take the font that holds when they are made.
        if (makesWindow(*statement) || statement->kind == StatementKind::Command ||
            statement->kind == StatementKind::Reference)
            level.setters.erase(font);
        // At the top level each FONT is for the windows behind it, and the rest acts on nothing.
        if (!setsOnce(*statement) || levels.size() == 1)
            continue;
        const auto [before, isFirst] = level.setters.try_emplace(statement->id, line);
        if (!isFirst) {
            report(before->second, line, " is undone by the same statement in ");
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
                         inQuotes(name) + " is defined already, in " + lineNumber(script, other->second) +
                             "; a read of it takes that one");
        } else if (const int taker = first[name]; taker != line) {
            findings.add("name-taken", script, taker, 1,
                         "a read of the window " + inQuotes(name) + ", which is defined in " +
                             lineNumber(script, line) + ", begins here; give this another name");
        }
    }
}

} // namespace script_check
