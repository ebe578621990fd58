#include "language/check/script.h"

#include "language/text/emit.h"
#include "language/text/statement_form.h"
#include "language/text/text_files.h"
#include "platform/framework/text.h"
#include "platform/media/encoding.h"
#include "tgx/script/reader.h"

#include <algorithm>

namespace tgx::script_check {

namespace {

/// A block that is open at the current line.
struct Level {
    int begin;  // line of its BEGIN
    int opener; // line of the window that it belongs to
    int last;   // line of the window made by the previous statement in it
};

class Outliner {
public:
    explicit Outliner(Script& outlined) : script(outlined) {}

    void run()
    {
        script.places.resize(script.text.lines.size());
        for (int line = 0; line < script.lineCount(); ++line) {
            placeLine(line);
            // A body is one statement: a block or a single line.
            if (subroutine != LinePlace::none && subroutine != line && levels.size() == 1)
                leaveSubroutine();
        }
    }

private:
    void placeLine(int line)
    {
        const Statement* statement = script.statement(line);
        const StatementKind kind = statement ? statement->kind : StatementKind::ArgumentWord;
        if (kind == StatementKind::Definition && levels.size() == 1)
            enterSubroutine(line);
        if (kind == StatementKind::BlockEnd && levels.size() > 1)
            levels.pop_back();
        const Level& level = levels.back();
        script.places[static_cast<std::size_t>(line)] = {static_cast<int>(levels.size()) - 1, level.opener,
                                                         level.begin, subroutine};
        if (!statement || !statement->counts.allow(script.tokenCount(line)))
            return; // the line fails and does not change the window stack
        if (kind == StatementKind::BlockBegin) {
            levels.push_back({line, level.last, LinePlace::none});
        } else if (makesWindow(*statement) || kind == StatementKind::Reference) {
            levels.back().last = line;
            if (subroutine == LinePlace::none && levels.size() == 1 && makesWindow(*statement))
                script.topWindows.push_back(line);
        } else if (kind == StatementKind::Attribute) {
            levels.back().last = LinePlace::none;
        }
    }
    void enterSubroutine(int line)
    {
        subroutine = line;
        script.subroutineByName.try_emplace(script.string(line, 1), script.subroutines.size());
        script.subroutines.push_back({script.string(line, 1), line, false});
        topLast = levels.back().last;
        levels.back() = {LinePlace::none, LinePlace::caller, LinePlace::caller};
    }
    void leaveSubroutine()
    {
        subroutine = LinePlace::none;
        levels.back() = {LinePlace::none, LinePlace::none, topLast};
    }

    Script& script;
    std::vector<Level> levels{{LinePlace::none, LinePlace::none, LinePlace::none}};
    int subroutine = LinePlace::none;
    int topLast = LinePlace::none; // Level::last of the top level while in a subroutine
};

/// Returns the same key for all spellings of a name.
std::string keyOf(std::string_view name)
{
    std::string key = lowercased(name);
    std::replace(key.begin(), key.end(), '\\', '/');
    return key;
}

bool isRefused(const script_text::ParsedScript& text)
{
    return std::any_of(text.lines.begin(), text.lines.end(), [](const script_text::StatementLine& line) {
        return !script_text::lineFaults(line.tokens).empty();
    });
}

} // namespace

Script::Script(std::string runtimeName, bool compiled, bool reported, script_text::ParsedScript parsed,
               std::string compiledBytes)
    : name(std::move(runtimeName)), isCompiled(compiled), isReported(reported), text(std::move(parsed))
{
    script_text::Emitted emitted = script_text::emit(text);
    offsets = std::move(emitted.offsets);
    // Only the given bytes include those of an incomplete last line.
    bytes =
        std::make_shared<const std::string>(compiled ? std::move(compiledBytes) : std::move(emitted.bytes));
    isBroken = text.hasErrors() || isRefused(text);
}

int Script::number(int index, int token) const
{
    return token < tokenCount(index) ? line(index).tokens[static_cast<std::size_t>(token)].value : 0;
}

const std::string& Script::string(int index, int token) const
{
    static const std::string empty;
    return token < tokenCount(index) ? line(index).tokens[static_cast<std::size_t>(token)].text : empty;
}

int Script::lineAt(std::size_t offset) const
{
    const auto found = std::lower_bound(offsets.begin(), offsets.end(), offset);
    return found != offsets.end() && *found == offset ? static_cast<int>(found - offsets.begin()) : -1;
}

const Subroutine* Script::subroutine(std::string_view wanted) const
{
    const auto found = subroutineByName.find(wanted);
    return found == subroutineByName.end() ? nullptr : &subroutines[found->second];
}

int Script::bodyEnd(const Subroutine& of) const
{
    int end = of.line + 1;
    while (end < lineCount() && place(end).subroutine == of.line)
        ++end;
    return end;
}

void outline(Script& script)
{
    Outliner(script).run();
}

void ScriptSet::add(Script& script)
{
    const std::string key = keyOf(script.name);
    if (byName.try_emplace(key, &script).second)
        byFile[key.substr(key.rfind('/') + 1)].push_back(&script); // npos + 1 is 0
}

Script* ScriptSet::find(std::string_view name) const
{
    const auto found = byName.find(keyOf(name));
    return found == byName.end() ? nullptr : found->second;
}

const std::vector<Script*>& ScriptSet::ofFile(std::string_view name) const
{
    static const std::vector<Script*> none;
    const auto found = byFile.find(lowercased(name));
    return found == byFile.end() ? none : found->second;
}

const Script* ScriptSet::calledBy(const Script& script, int line) const
{
    return script.tokenCount(line) > 2 ? find(script.string(line, 2)) : &script;
}

void findFonts(const std::vector<Script*>& scripts, const ScriptSet& set)
{
    for (Script* script : scripts)
        forEachLineThroughCalls(*script, 0, script->lineCount(), set,
                                [&](const Script& at, int line, bool isCalled) {
                                    if (!isCalled && at.place(line).subroutine != LinePlace::none)
                                        return false;
                                    if (at.isKeyword(line, "ADDFONT"))
                                        script->fontLines.push_back({&at, line});
                                    // Inside a window's block, a GOTO does not add fonts.
                                    if (at.isKeyword(line, "GOTO") &&
                                        (isCalled || at.place(line).depth == 0) && !set.calledBy(at, line))
                                        script->mayAddMoreFonts = true;
                                    return true;
                                });
}

bool isMain(const Script& script)
{
    return lowercased(script.name) == mainScriptFile;
}

std::string inQuotes(std::string_view text)
{
    return '"' + script_text::shown(utf8From1252(text)) + '"';
}

bool namesItsWindow(const Statement& statement)
{
    return makesWindow(statement) && argumentName(statement, 1) == "\"name\"";
}

bool makesPart(const Statement& statement)
{
    return statement.kind == StatementKind::Window && !namesItsWindow(statement);
}

} // namespace tgx::script_check
