#pragma once

#include "devtools/script_text/parsed_script.h"
#include "tgx/script/vocabulary.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// What can be found wrong with scripts without playing them.
namespace script_check {

/// Where a line stands among the blocks of its script.
struct LinePlace {
    static constexpr int none = -1;   // no window: the root of all
    static constexpr int caller = -2; // the window on which the subroutine runs

    int depth = 0;         // of blocks around it, counted from its subroutine or from the top
    int opener = none;     // line of the window in whose block it stands, or one of the above
    int block = none;      // line of the BEGIN around it
    int subroutine = none; // line of the SUBROUTINE whose body it is in, or that it is
};

struct Subroutine {
    std::string name;
    int line;    // of the definition
    bool isUsed; // by a GOTO somewhere
};

/// A script that is looked at, or that is there because others use it.
struct Script {
    Script(std::string runtimeName, bool compiled, bool reported, script_text::ParsedScript parsed,
           std::string compiledBytes);

    std::string name;          // by which scripts and the game ask for it: "menu.tgx"
    bool isCompiled;           // it was given as bytes; text is what dump prints of them
    bool isReported;           // else its own faults are nobody's business
    bool isBroken;             // lines are missing or refused: what the others mean cannot be told
    bool isUnbalanced = false; // a block has no END: its windows are not looked at
    script_text::ParsedScript text;
    std::shared_ptr<const std::string> bytes;
    std::vector<std::size_t> offsets; // of each line in bytes

    // Filled by outline().
    std::vector<LinePlace> places; // one for each line
    std::vector<Subroutine> subroutines;
    std::vector<int> topWindows; // lines

    int lineCount() const { return static_cast<int>(text.lines.size()); }
    const script_text::StatementLine& line(int index) const
    {
        return text.lines[static_cast<std::size_t>(index)];
    }
    const LinePlace& place(int index) const { return places[static_cast<std::size_t>(index)]; }
    /// Null for a line without a known keyword.
    const Statement* statement(int index) const { return line(index).statement(); }
    bool isKeyword(int index, std::string_view keyword) const
    {
        const Statement* row = statement(index);
        return row && row->keyword == keyword;
    }
    /// Number of the line in its file, as messages give it.
    int numberOf(int index) const { return line(index).number; }
    int tokenCount(int index) const { return static_cast<int>(line(index).tokens.size()); }
    /// 0 and "" behind the line's end, as the toolkit reads it.
    int number(int index, int token) const;
    const std::string& string(int index, int token) const;
    /// ADDFONT lines outside of subroutines.
    int fontCount() const;
    /// Line at that offset of bytes, or -1.
    int lineAt(std::size_t offset) const;
    /// The first subroutine of that name, or null.
    Subroutine* subroutine(std::string_view wanted);

    std::map<std::string, std::size_t, std::less<>> subroutineByName; // the first of each name
};

/// Finds blocks, subroutines and top-level windows.
void outline(Script& script);

/// Scripts by the name that others use, ignoring case.
class ScriptSet {
public:
    void add(Script& script);
    Script* find(std::string_view name) const;

private:
    std::map<std::string, Script*> byName;
};

/// What an id means to the searches of the toolkit: its letters without case.
std::string folded(std::string_view text);
/// A text of a script as a message shows it, in quotes.
std::string inQuotes(std::string_view text);
/// Whether the statement makes a window that bears a name of the script's own, which is its first argument.
bool namesItsWindow(const Statement& statement);
/// Whether it makes the small window that a control finds by a fixed name: CHECKBOXSTATE, COMBOMENU.
bool makesPart(const Statement& statement);
inline bool makesWindow(const Statement& statement)
{
    return statement.kind == StatementKind::Window || statement.kind == StatementKind::Screen;
}

} // namespace script_check
