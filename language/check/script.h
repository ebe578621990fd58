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
    int line;                 // of the definition
    bool isUsed;              // by a GOTO somewhere
    bool reachesRing = false; // calls of its own lead to one that reaches itself
};

struct Script;

/// A line of a script. script is null for none.
struct LineRef {
    const Script* script = nullptr;
    int line = 0;

    explicit operator bool() const { return script != nullptr; }
};

/// A script that is looked at, or that is there because others use it.
struct Script {
    Script(std::string runtimeName, bool compiled, bool reported, script_text::ParsedScript parsed,
           std::string compiledBytes);

    std::string name;          // by which scripts and the game ask for it: "menu.tgx", "sub\\menu.tgx"
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

    // Filled by findFonts().
    std::vector<LineRef> fontLines; // each ADDFONT of a read from top to bottom
    bool mayAddMoreFonts = false;   // in a script that is not known

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
    /// Fonts that a read from top to bottom adds.
    int fontCount() const { return static_cast<int>(fontLines.size()); }
    /// Line at that offset of bytes, or -1.
    int lineAt(std::size_t offset) const;
    /// The first subroutine of that name, or null.
    Subroutine* subroutine(std::string_view wanted)
    {
        return const_cast<Subroutine*>(std::as_const(*this).subroutine(wanted));
    }
    const Subroutine* subroutine(std::string_view wanted) const;
    /// Behind the last line of its body.
    int bodyEnd(const Subroutine& of) const;

    std::map<std::string, std::size_t, std::less<>> subroutineByName; // the first of each name
};

/// Finds blocks, subroutines and top-level windows.
void outline(Script& script);

/// Scripts by the name that others use, ignoring case and the kind of slash.
class ScriptSet {
public:
    void add(Script& script);
    Script* find(std::string_view name) const;
    /// All whose file bears the name, in whatever folder.
    const std::vector<Script*>& ofFile(std::string_view name) const;
    /// In which the GOTO looks for its subroutine; null when there is none.
    const Script* calledBy(const Script& script, int line) const;

private:
    std::map<std::string, Script*> byName;
    std::map<std::string, std::vector<Script*>> byFile; // without folders
};

/// Finds the fonts that scripts add, also by way of subroutines. All of them are outlined.
void findFonts(const std::vector<Script*>& scripts, const ScriptSet& set);

/// visit(script, line, isCalled) for each line from first to below end and, where it gives true for a GOTO,
/// for those of the subroutine that this calls. Each subroutine is gone through once.
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

/// What an id means to the searches of the toolkit: its letters without case.
std::string folded(std::string_view text);
/// Whether it is the one that a game reads first.
bool isMain(const Script& script);
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
