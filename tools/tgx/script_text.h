#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The text form of compiled scripts: one statement a line. What assemble reads, print writes, and assembling
/// what was printed gives the same bytes, whatever they are.
namespace script_text {

struct Diagnostic {
    enum Severity { Error, Warning };

    Severity severity;
    int line;   // 1 for the first
    int column; // bytes, 1 for the first
    std::string text;
};

struct Assembled {
    std::string bytes; // of use only without errors
    std::vector<Diagnostic> diagnostics;

    bool hasErrors() const;
};

Assembled assemble(std::string_view text);
std::string print(std::string_view bytes);

/// "file:line:column: error: text".
std::string describe(const std::string& file, const Diagnostic& diagnostic);

/// The rules of the text form, for --help.
extern const char* const notation;

// Notation that both directions share.

/// A line without a token.
constexpr std::string_view emptyLine = "EMPTY";
/// The bytes behind the last whole line, which the reader drops, as hexadecimal numbers.
constexpr std::string_view unfinishedMark = "#! unfinished:";
/// Ids without a keyword stand as this and a decimal number.
constexpr char idMark = '@';

} // namespace script_text
