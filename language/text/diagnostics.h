#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The text form of interface scripts: reading, compiling, printing, and the messages about it.
namespace tgx::script_text {

/// A source file and its text.
struct SourceFile {
    /// name is the file's name in messages.
    SourceFile(std::string name, std::string text);

    std::string name;
    std::string text;

    int lineCount() const { return static_cast<int>(lineStarts.size()) - 1; }
    /// Returns the line without its line end. The first line is number 1.
    std::string_view line(int number) const;

private:
    std::vector<std::size_t> lineStarts; // offsets in bytes; the last entry is the end of the text
};

/// A part of a line.
struct Span {
    int offset = 0; // bytes from the line's start
    int column = 1; // the same in characters, counted from 1
    int length = 1; // characters
};

/// One reading of a file: the script itself, or a file that an INCLUDE line names.
struct Inclusion {
    const SourceFile* file;
    const Inclusion* from = nullptr; // the file with the INCLUDE line; null for the script itself
    int line = 0;                    // number of the INCLUDE line, and the position in it
    Span at = {};
};

struct Place {
    const Inclusion* in;
    int line; // counted from 1
    Span at = {};
};

struct Diagnostic {
    enum Severity { Error, Warning };

    Severity severity;
    Place place;
    std::string text;
    const char* code = ""; // short and stable; `tgx check --explain` and allowances name it
};

/// Returns "file:line:column: error: text".
std::string headline(const Diagnostic& diagnostic);

enum class Colour { No, Yes };
/// Returns the headline, the source line with a mark under the place, and the INCLUDE lines that led there.
/// Every line ends with a line feed.
std::string describe(const Diagnostic& diagnostic, Colour colour = Colour::No);

/// Returns a word as a message shows it: shortened if it is long, and without control characters.
std::string shown(std::string_view word);

} // namespace tgx::script_text
