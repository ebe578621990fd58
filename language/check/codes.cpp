#include "language/check/codes.h"

#include <algorithm>

namespace tgx::script_check {

namespace {

using script_text::Diagnostic;

constexpr const char* head = R"(# Findings of `tgx check`

<!-- Generated from the table of findings by `tgx reference check`. To regenerate:
     cmake --build build/release --target script_reference -->

All codes, errors first. For how to run the check, and how to allow a finding, see [tool.md](tool.md#tgx-check-file-or-dir-).
)";

const char* nameOf(Diagnostic::Severity severity)
{
    return severity == Diagnostic::Error ? "error" : "warning";
}

/// Returns text with each line indented by four blanks.
std::string indented(std::string_view text)
{
    std::string out;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size() - 1) + 1;
        out += "    " + std::string(text.substr(0, end));
        text.remove_prefix(end);
    }
    return out.ends_with('\n') ? out : out + '\n';
}

/// Returns text wrapped to lines of at most width characters.
std::string wrapped(std::string_view text, std::size_t width)
{
    std::string out;
    std::size_t column = 0;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(' '), text.size());
        if (column > 0 && column + 1 + end > width) {
            out += '\n';
            column = 0;
        } else if (column > 0) {
            out += ' ';
            ++column;
        }
        out += text.substr(0, end);
        column += end;
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return out + '\n';
}

} // namespace

const Code* codeCalled(std::string_view name)
{
    const auto found =
        std::find_if(codes().begin(), codes().end(), [name](const Code& code) { return code.name == name; });
    return found == codes().end() ? nullptr : &*found;
}

std::string explain(const Code& code)
{
    std::string out = std::string(code.name) + " (" + nameOf(code.severity) + "): " + code.summary + "\n\n" +
                      wrapped(code.more, 78);
    if (*code.wrong)
        out += "\nWrong:\n" + indented(code.wrong) + "\nRight:\n" + indented(code.right);
    return out;
}

std::string explainAll()
{
    std::size_t widest = 0;
    for (const Code& code : codes())
        widest = std::max(widest, std::string_view(code.name).size());
    std::string out;
    for (const Code& code : codes()) {
        std::string name = code.name;
        name.resize(widest + 2, ' ');
        out += name + (code.severity == Diagnostic::Error ? "error    " : "warning  ") + code.summary + '\n';
    }
    return out;
}

std::string referenceDocument()
{
    std::string out = head;
    const Code* before = nullptr;
    for (const Code& code : codes()) {
        if (!before || before->severity != code.severity)
            out += code.severity == Diagnostic::Error ? "\n## Errors\n" : "\n## Warnings\n";
        before = &code;
        out += std::string("\n### ") + code.name + "\n\nFound: " + code.summary + ".\n\n" + code.more + '\n';
        if (*code.wrong)
            out += "\n    # wrong\n" + indented(code.wrong) + "\n    # right\n" + indented(code.right);
    }
    return out;
}

} // namespace tgx::script_check
