#pragma once

#include "language/text/parsed_script.h"
#include "tgx/script/vocabulary.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

/// Static checks of interface scripts.
namespace tgx::script_check {

/// The position of a line in the block structure of its script.
struct LinePlace {
    static constexpr int none = -1;   // no window: the root of all windows
    static constexpr int caller = -2; // the window on which the subroutine is called

    int depth = 0;         // number of enclosing blocks within its subroutine or script
    int opener = none;     // line of the window whose block contains it, or one of the constants above
    int block = none;      // line of the enclosing BEGIN
    int subroutine = none; // line of the SUBROUTINE that it belongs to
};

struct Subroutine {
    std::string name;
    int line;                 // of the SUBROUTINE statement
    bool isUsed;              // whether any GOTO names it
    bool reachesRing = false; // whether it calls, directly or not, a recursive subroutine
};

struct Script;

/// Refers to a line of a script. script is null if there is none.
struct LineRef {
    const Script* script = nullptr;
    int line = 0;

    explicit operator bool() const { return script != nullptr; }
};

/// A script that is checked, or that was loaded because others use it.
struct Script {
    Script(std::string runtimeName, bool compiled, bool reported, script_text::ParsedScript parsed,
           std::string compiledBytes);

    std::string name;          // by which scripts and the game refer to it: "menu.tgx", "sub\\menu.tgx"
    bool isCompiled;           // was given as bytes; text is then the dump of these
    bool isReported;           // whether its own findings are reported
    bool isBroken;             // has invalid lines, so that the meaning of the others is uncertain
    bool isUnbalanced = false; // a block has no END, so its windows are not checked
    script_text::ParsedScript text;
    std::shared_ptr<const std::string> bytes;
    std::vector<std::size_t> offsets; // where each line starts in bytes

    // Filled by outline().
    std::vector<LinePlace> places; // one for each line
    std::vector<Subroutine> subroutines;
    std::vector<int> topWindows; // lines that make top-level windows

    // Filled by findFonts().
    std::vector<LineRef> fontLines; // each ADDFONT executed when the script is read from top to bottom
    bool mayAddMoreFonts = false;   // whether it calls a script that is not available

    int lineCount() const { return static_cast<int>(text.lines.size()); }
    const script_text::StatementLine& line(int index) const
    {
        return text.lines[static_cast<std::size_t>(index)];
    }
    const LinePlace& place(int index) const { return places[static_cast<std::size_t>(index)]; }
    /// Returns the vocabulary's row, or null for a line without a known keyword.
    const Statement* statement(int index) const { return line(index).statement(); }
    bool isKeyword(int index, std::string_view keyword) const
    {
        const Statement* row = statement(index);
        return row && row->keyword == keyword;
    }
    /// Returns the number of the line in its file, for messages.
    int numberOf(int index) const { return line(index).number; }
    int tokenCount(int index) const { return static_cast<int>(line(index).tokens.size()); }
    /// Returns the value of a number or string. A missing argument reads as 0 or "", as in the toolkit.
    int number(int index, int token) const;
    const std::string& string(int index, int token) const;
    /// Returns how many fonts are added when the script is read from top to bottom.
    int fontCount() const { return static_cast<int>(fontLines.size()); }
    /// Returns the line that starts at that offset in bytes, or -1.
    int lineAt(std::size_t offset) const;
    /// Returns the first subroutine of that name, or null.
    Subroutine* subroutine(std::string_view wanted)
    {
        return const_cast<Subroutine*>(std::as_const(*this).subroutine(wanted));
    }
    const Subroutine* subroutine(std::string_view wanted) const;
    /// Returns the line after the last one of the subroutine's body.
    int bodyEnd(const Subroutine& of) const;

    std::map<std::string, std::size_t, std::less<>>
        subroutineByName; // index of the first subroutine of each name
};

/// Determines the blocks, subroutines and top-level windows of script.
void outline(Script& script);

/// Looks up scripts by the name that other scripts use, ignoring case and the kind of slash.
class ScriptSet {
public:
    void add(Script& script);
    Script* find(std::string_view name) const;
    /// Returns all scripts with that file name, in any folder.
    const std::vector<Script*>& ofFile(std::string_view name) const;
    /// Returns the script in which the GOTO of that line looks for its subroutine, or null if it is not
    /// available.
    const Script* calledBy(const Script& script, int line) const;

private:
    std::map<std::string, Script*> byName;
    std::map<std::string, std::vector<Script*>> byFile; // by file name without folder
};

/// Finds the fonts that scripts add, also through subroutines. Call outline() for all scripts first.
void findFonts(const std::vector<Script*>& scripts, const ScriptSet& set);

/// Calls visit(script, line, isCalled) for each line from first to end (exclusive). If visit returns true for
/// a GOTO, continues with the lines of the called subroutine. Visits each subroutine once.
template<class Visit>
void forEachLineThroughCalls(const Script& script, int first, int end, const ScriptSet& set, Visit visit)
{
    struct Part {
        const Script* script;
        int next, end;
    };
    std::vector<Part> parts{{&script, first, end}};
    std::unordered_set<const Subroutine*> seen;
    while (!parts.empty()) {
        if (parts.back().next >= parts.back().end) {
            parts.pop_back();
            continue;
        }
        const Script& at = *parts.back().script;
        const int line = parts.back().next++;
        if (!visit(at, line, parts.size() > 1) || !at.isKeyword(line, "GOTO"))
            continue;
        const Script* called = set.calledBy(at, line);
        const Subroutine* body = called ? called->subroutine(at.string(line, 1)) : nullptr;
        if (body && seen.insert(body).second)
            parts.push_back({called, body->line + 1, called->bodyEnd(*body)});
    }
}

/// Returns whether the script is the main script, which a game reads first.
bool isMain(const Script& script);
/// Returns a text of a script in quotes, for messages.
std::string inQuotes(std::string_view text);
/// Returns whether the statement makes a window whose name is the first argument.
bool namesItsWindow(const Statement& statement);
/// Returns whether the statement makes a part that a control finds by a fixed name, such as CHECKBOXSTATE or
/// COMBOMENU.
bool makesPart(const Statement& statement);
/// Returns whether the statement makes a window or a screen.
inline bool makesWindow(const Statement& statement)
{
    return statement.kind == StatementKind::Window || statement.kind == StatementKind::Screen;
}

} // namespace tgx::script_check
