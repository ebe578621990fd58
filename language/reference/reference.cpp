// Generates the script reference: every statement, grouped by family.

#include "language/reference/reference.h"

#include "language/reference/meanings.h"
#include "language/text/statement_form.h"

#include <algorithm>
#include <cctype>
#include <cstdio>

namespace tgx::script_text {

namespace {

constexpr const char* head = R"(# Script reference

<!-- Generated from the vocabulary by `tgx reference`. To regenerate:
     cmake --build build/release --target script_reference -->

Every statement of interface scripts. For how a script is written, and what windows and blocks are, see [script.md](script.md).

In the forms below, `"in quotes"` is a string, `lower` a number, `UPPER` a word, and `a|B` a number or that word; `[ ]` is optional, and `...` means
more of the same. A `flag` is the lowest bit of its number. `x y width height` are in pixels, relative to the parent window. A window that a statement
names is found regardless of case; the name of a subroutine, and that of a window that is read on its own from a script, are compared
exactly. **Arguments** is the number of arguments that a line may have, **byte** the statement's value in the compiled script.

The pictures are those of the short scripts in [examples/controls](../examples/controls/README.md).
)";

/// Returns the anchor that GitHub generates for a heading.
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

/// Returns "Only on a list box or combo box; elsewhere the line fails." or similar, or an empty text if the
/// statement fits any window.
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

/// Returns a link to the script that shows the statement, with the script's picture if the statement makes a
/// window.
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
        out += "Used after `JUSTIFY` and in `COLUMNS`. Byte";
    else
        out += "Arguments: " + (allowed == "no" ? "none" : allowed) + ". Byte";
    char hex[8];
    std::snprintf(hex, sizeof hex, "0x%02X", static_cast<unsigned>(statement.id));
    return out + ": " + std::to_string(statement.id) + ", " + hex + ".\n" + exampleOf(statement, meaning);
}

/// Returns links to all keywords, in alphabetical order.
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

} // namespace tgx::script_text
