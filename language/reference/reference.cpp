// The script reference: every statement, family by family.

#include "language/reference/reference.h"

#include "language/reference/meanings.h"
#include "language/text/statement_form.h"

#include <algorithm>
#include <cctype>
#include <cstdio>

namespace script_text {

namespace {

constexpr const char* head = R"(# Script reference

<!-- Made by `tgx reference` of the vocabulary; write it anew with:
     cmake --build build/release --target script_reference -->

Every statement of interface scripts. How a script is written, and what windows and blocks are, stands in [script.md](script.md).

How to read the forms: `"in quotes"` is a string, `lower` a number, `UPPER` a word, `a|B` a number or that word; `[ ]` may be left out, and `...` stands
for more of the same. A `flag` is the lowest bit of its number. `x y width height` are pixels, from the corner of the window around. A window that a statement
names is found whatever the case of its name; the name of a subroutine, and that of a window which is read alone out of a script, are compared
exactly. **Arguments** tells how many a line may have, **byte** the statement's value in the compiled script.

The pictures are those of short scripts to begin with, [examples/controls](../examples/controls/README.md).
)";

/// What GitHub makes of a heading.
std::string anchor(std::string_view heading)
{
    std::string out;
    for (unsigned char c : heading) {
        if (std::isalnum(c))
            out += static_cast<char>(std::tolower(c));
        else if (c == ' ')
            out += '-';
    }
    return out;
}

std::string link(const char* heading, const std::string& shown)
{
    return '[' + shown + "](#" + anchor(heading) + ')';
}

const char* nameOf(int type)
{
    switch (type) {
    case AWnd::WND_BUTTON:
        return "button";
    case AWnd::WND_LISTBOX:
        return "list box";
    case AWnd::WND_COMBOBOX:
        return "combo box";
    case AWnd::WND_RADIOBUTTON:
        return "radio button";
    case AWnd::WND_GRAPH:
        return "graph";
    default:
        return "window of another type";
    }
}

/// "Only on a list box or combo box; elsewhere the line fails.", or nothing.
std::string targetSentence(const TargetRule& rule)
{
    std::vector<std::string> types;
    for (int type = 0; type < 32; ++type)
        if (rule.fits(type))
            types.emplace_back(nameOf(type));
    if (types.size() == 32)
        return "";
    std::string out = " Only on a ";
    for (std::size_t i = 0; i < types.size(); ++i)
        out += (i == 0 ? "" : i + 1 == types.size() ? " or " : ", ") + types[i];
    return out + (rule.otherwise == TargetRule::Fails ? "; elsewhere the line fails."
                                                      : "; elsewhere the line does nothing.");
}

/// Link to the script that shows the statement, with its picture where the statement makes one.
std::string exampleOf(const Statement& statement, const Meaning& meaning)
{
    if (!meaning.example)
        return "";
    const std::string name = meaning.example, path = "../examples/controls/" + name;
    const std::string source = "[" + name + ".tgs](" + path + ".tgs)";
    if (makesWindow(statement))
        return "\n![" + std::string(statement.keyword) + ", as in " + name + ".tgs](" + path +
               ".png)\n\nThe script: " + source + ".\n";
    return "\nExample: " + source + ".\n";
}

std::string entry(const Statement& statement, const Meaning& meaning)
{
    std::string out = std::string("\n### ") + statement.keyword + "\n\n    " + expectedForm(statement) +
                      "\n\n" + meaning.text + targetSentence(statement.target) + "\n\n";
    const std::string allowed = allowedArguments(statement.counts);
    if (statement.kind == StatementKind::ArgumentWord)
        out += "Stands behind `JUSTIFY` and `COLUMNS`. Byte";
    else
        out += "Arguments: " + (allowed == "no" ? "none" : allowed) + ". Byte";
    char hex[8];
    std::snprintf(hex, sizeof hex, "0x%02X", static_cast<unsigned>(statement.id));
    return out + ": " + std::to_string(statement.id) + ", " + hex + ".\n" + exampleOf(statement, meaning);
}

/// Every keyword by the alphabet, as links.
std::string index()
{
    std::vector<const char*> keywords;
    for (const Statement& row : vocabulary())
        keywords.push_back(row.keyword);
    std::sort(keywords.begin(), keywords.end(), [](std::string_view a, std::string_view b) { return a < b; });
    std::string out;
    char initial = 0;
    for (const char* keyword : keywords) {
        out += initial == 0 ? "\n" : keyword[0] != initial ? " ·\n" : " · ";
        initial = keyword[0];
        out += link(keyword, std::string("`") + keyword + '`');
    }
    return out + '\n';
}

} // namespace

bool makesWindow(const Statement& statement)
{
    return statement.kind == StatementKind::Window || statement.kind == StatementKind::Screen ||
           statement.kind == StatementKind::Reference;
}

std::string referenceDocument()
{
    std::string out = head;
    out += index();
    const Meaning* before = nullptr;
    for (const Meaning& meaning : meanings()) {
        if (!before || before->family != meaning.family)
            out += std::string("\n## ") + titleOf(meaning.family) + '\n';
        before = &meaning;
        if (const Statement* statement = statementById(meaning.id))
            out += entry(*statement, meaning);
    }
    return out;
}

} // namespace script_text
