#pragma once

#include <string>
#include <string_view>
#include <vector>

/// What is wrong with a script's text, and where.
namespace script_text {

/// A file of a script's text.
struct SourceFile {
    /// name is how messages name it.
    SourceFile(std::string name, std::string text);

    std::string name;
    std::string text;

    int lineCount() const { return static_cast<int>(lineStarts.size()) - 1; }
    /// 1 for the first. Without its end.
    std::string_view line(int number) const;

private:
    std::vector<std::size_t> lineStarts; // the last one is behind the text
};

/// A part of a line.
struct Span {
    int offset = 0; // bytes from the line's start
    int column = 1; // the same in characters, 1 for the first
    int length = 1; // characters
};

/// One reading of a file: of the script itself, or of what an INCLUDE line names.
struct Inclusion {
    const SourceFile* file;
    const Inclusion* from = nullptr; // where the INCLUDE line stands; null for the script itself
    int line = 0;                    // of the INCLUDE, and where in it
    Span at = {};
};

struct Place {
    const Inclusion* in;
    int line; // 1 for the first
    Span at = {};
};

struct Diagnostic {
    enum Severity { Error, Warning };

    Severity severity;
    Place place;
    std::string text;
    const char* code = ""; // short and stable: by it `tgx check` explains the fault and is told to be silent
};

/// "file:line:column: error: text".
std::string headline(const Diagnostic& diagnostic);

enum class Colour { No, Yes };
/// The headline, the line with a mark under the place, and the INCLUDE lines through which it came in; each
/// with its line feed.
std::string describe(const Diagnostic& diagnostic, Colour colour = Colour::No);

/// A word of a text as a message shows it: cut when it is long, without what a terminal would act on.
std::string shown(std::string_view word);

} // namespace script_text
