// Rules for single lines.

#include "language/check/rules.h"
#include "language/text/statement_form.h"
#include "platform/framework/text.h"
#include "tgx/script/reader.h"
#include "tgx/wnd/reserved.h"

#include <algorithm>
#include <set>

namespace tgx::script_check {

namespace {

constexpr std::string_view controls[] = {"BUTTON",  "CHECKBOX", "RADIOBUTTON", "COMBOBOX",   "EDITBOX",
                                         "LISTBOX", "KEYBOARD", "TABCONTROL",  "HSCROLLBAR", "VSCROLLBAR"};
constexpr std::string_view clickable[] = {"BUTTON", "CHECKBOX", "RADIOBUTTON", "USERDEF"};

template<std::size_t N>
bool isOneOf(const std::string_view (&words)[N], std::string_view word)
{
    return std::find(std::begin(words), std::end(words), word) != std::end(words);
}

/// Finds words of COLUMNS that do not follow a width. The toolkit reads such a word as the width 0.
void checkWidths(const Script& script, int line, Findings& findings)
{
    const std::vector<script_text::Token>& tokens = script.line(line).tokens;
    for (std::size_t i = 1; i < tokens.size(); ++i)
        if (tokens[i].id != numberToken && (i == 1 || tokens[i - 1].id != numberToken))
            findings.add("argument-kind", script, line, static_cast<int>(i),
                         "this word does not follow a width, and counts as a column of width 0");
}

/// Finds sizes of 0 in a line.
class SizeRules {
public:
    SizeRules(const Script& owner, int at, Findings& found) : script(owner), line(at), findings(found) {}

    void check(std::string_view keyword)
    {
        if (isOneOf(controls, keyword))
            checkSize(4, "a control of this size cannot be clicked");
        if (keyword == "BORDER")
            checkBorder();
        else if (keyword == "BMPINFO")
            checkStrip(1);
        else if (keyword == "BITMAP" && script.tokenCount(line) > 10)
            checkStrip(7);
        else if (keyword == "LISTLOOK" && number(1) == 0)
            add(1, "rows of height 0 count as 1; a negative height keeps the current one");
        else if (keyword.ends_with("SCROLLBAR") && !script.string(line, 6).empty())
            checkSize(7, "a scroll bar's six frames need a size");
    }

private:
    int number(int token) const { return script.number(line, token); }
    void add(int token, const char* text) { findings.add("zero-size", script, line, token, text); }

    /// Checks the width at the token and the height after it.
    void checkSize(int token, const char* text)
    {
        if (number(token) <= 0 || number(token + 1) <= 0)
            add(number(token) <= 0 ? token : token + 1, text);
    }
    void checkBorder()
    {
        if (number(3) <= 0)
            add(3, "a border with pieces of this size is not drawn");
        else if (number(2) <= 0)
            add(2, "with this width the border's pieces cover the picture");
    }
    /// Checks a strip whose frame size begins at the token.
    void checkStrip(int token)
    {
        const int frames = number(token + 3);
        if (frames <= 0)
            add(token + 3, "a picture with this number of frames is not shown; a still picture has 1");
        else if (frames > 1)
            checkSize(token, "a strip of several frames needs the size of one");
    }

    const Script& script;
    const int line;
    Findings& findings;
};

/// Finds words of a font style that parseFontStyle ignores.
void checkStyle(const Script& script, int line, Findings& findings)
{
    static const std::vector<std::string_view> known{"bold", "italic", "shadow"};
    const std::string style = lowercased(script.string(line, 2));
    for (std::size_t start = 0; (start = style.find_first_not_of(" ,", start)) != style.npos;) {
        const std::string word = style.substr(start, style.find_first_of(" ,", start) - start);
        start += word.size();
        if (std::find(known.begin(), known.end(), word) != known.end())
            continue;
        const bool isColour = word[0] == '#';
        if (isColour && word.size() == 7 && word.find_first_not_of("0123456789abcdef", 1) == word.npos)
            continue;
        findings.add(
            "font-style", script, line, 2,
            isColour ? inQuotes(word) + " is not a colour; expected # and six hexadecimal digits"
                     : inQuotes(word) +
                           " is not a font style; expected bold, italic, shadow or a colour such as #2b3038" +
                           findings.didYouMean(word, known));
    }
}

void checkReserved(const Script& script, int line, const Statement& statement, Findings& findings)
{
    if (!namesItsWindow(statement))
        return;
    const std::string& id = script.string(line, 1);
    const bool leaves = leavesScreen(id);
    if ((leaves || closesPopup(id)) && !isOneOf(clickable, statement.keyword))
        findings.add("reserved-id", script, line, 1,
                     "a click on " + inQuotes(id) + (leaves ? " leaves the screen" : " closes the box") +
                         ", but this is not a button; for decoration use the id \"static\"");
    else if (part::isOfScript(id) && statement.keyword != std::string_view("USERDEF"))
        findings.add("reserved-id", script, line, 1,
                     inQuotes(id) + " is the id of a control's part; give this window another id");
}

/// Reports the line with the bytes of an incomplete last line, in the source or the dump.
void reportUnfinished(const Script& script, Findings& findings)
{
    for (const script_text::Inclusion& in : script.text.inclusions)
        for (int number = 1; number <= in.file->lineCount(); ++number) {
            const std::string_view line = in.file->line(number);
            const std::size_t start = std::min(line.find_first_not_of(" \t"), line.size());
            if (line.substr(start).starts_with(script_text::unfinishedMark))
                findings.add({script_text::Diagnostic::Error,
                              {&in, number, {}},
                              "the script ends in the middle of a line, which the toolkit ignores",
                              "unfinished"});
        }
}

} // namespace

void checkLines(const Script& script, Findings& findings)
{
    for (int line = 0; line < script.lineCount(); ++line) {
        const auto& tokens = script.line(line).tokens;
        if (script.isCompiled || script.line(line).isVerbatim) // otherwise the parser has reported them
            for (script_text::LineFault& each : script_text::lineFaults(tokens))
                findings.add(each.code, script, line, static_cast<int>(each.token), std::move(each.text));
        if (script.isKeyword(line, "COLUMNS") && !script.line(line).isVerbatim)
            checkWidths(script, line, findings);
    }
    if (script.isReported && !script.text.unfinished.empty())
        reportUnfinished(script, findings);
}

void checkScreenNames(const std::vector<Script*>& scripts, Findings& findings)
{
    std::set<std::string> classes; // compared exactly, as factories do
    for (const Script* script : scripts)
        for (int line = 0; line < script->lineCount(); ++line)
            if (script->isKeyword(line, "USERDEF"))
                classes.insert(script->string(line, script->tokenCount(line) > 6 ? 6 : 1));
    for (const Script* script : scripts)
        for (int line = 0; line < script->lineCount(); ++line)
            if (const std::string& id = script->string(line, 1);
                script->isKeyword(line, "SCREEN") && !id.empty() && classes.contains(id))
                findings.add("class-name", *script, line, 1,
                             "the game makes windows of the class " + inQuotes(id) +
                                 ", and would be asked for that class when this screen opens");
}

bool makesControl(const Statement& statement)
{
    return isOneOf(controls, statement.keyword);
}

void checkArguments(const Script& script, Findings& findings)
{
    for (int line = 0; line < script.lineCount(); ++line) {
        const Statement* statement = script.statement(line);
        if (!statement)
            continue;
        SizeRules(script, line, findings).check(statement->keyword);
        if (script.isKeyword(line, "ADDFONT"))
            checkStyle(script, line, findings);
        checkReserved(script, line, *statement, findings);
        // ITEM without arguments is an empty row.
        if (statement->kind == StatementKind::Attribute && script.tokenCount(line) == 1 &&
            statement->counts.allow(1) && !script.isKeyword(line, "ITEM"))
            findings.add("no-effect", script, line,
                         std::string(statement->keyword) + " without arguments does nothing");
    }
}

} // namespace tgx::script_check
