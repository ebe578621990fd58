#pragma once

#include "language/text/diagnostics.h"

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tgx {
struct Statement;
}

/// A parsed script in text form: its statements in the order in which they are compiled, each with its place.
/// INCLUDE and DEFINE are resolved; comments and blank lines are removed.
///
///     ParsedScript script = parse("menu.tgs", text, readFile);
///     for (const StatementLine& line : script.lines)
///         if (const Statement* statement = line.statement(); statement && somethingIsWrongWith(line))
///             script.diagnostics.push_back({Diagnostic::Error, line.placeOf(1), "..."});
///     for (const Diagnostic& each : script.diagnostics)
///         std::cerr << describe(each);
namespace tgx::script_text {

/// One token of the compiled script.
struct Token {
    unsigned char id = 0; // numberToken, stringToken or a keyword's id
    short value = 0;      // if it is a number
    std::string text;     // if it is a string: bytes of code page 1252, none of them 0
    Span at;              // position in the source; for the value of a DEFINE, where its name is used
};

/// A source line that becomes one line of the compiled script.
struct StatementLine {
    const Inclusion* in = nullptr;
    int number = 0;            // of the line in its file, counted from 1
    bool isVerbatim = false;   // begins with @: the author knows that it is unusual
    std::vector<Token> tokens; // the keyword first; empty for the line EMPTY

    /// Returns the vocabulary's row for the line's keyword, or null if it does not begin with one.
    const Statement* statement() const;
    /// Returns the place for a message about that token, which must exist. Token 0 is the keyword.
    Place placeOf(std::size_t token) const { return {in, number, tokens[token].at}; }
};

/// Returns the text of the file at path, or nothing and sets reason.
using ReadFile = std::function<std::optional<std::string>(const std::string& path, std::string& reason)>;

struct ParsedScript {
    std::vector<StatementLine> lines; // the lines without an error
    std::string unfinished;           // bytes of an incomplete last line
    std::vector<Diagnostic> diagnostics;
    /// Every file that an INCLUDE names, once each, including files that could not be read.
    std::vector<std::string> included;

    // Places point to these, so the script can be moved but not copied.
    std::deque<SourceFile> files;
    std::deque<Inclusion> inclusions; // the script itself first

    ParsedScript() = default;
    ParsedScript(ParsedScript&&) = default;
    ParsedScript& operator=(ParsedScript&&) = default;

    bool hasErrors() const;
};

/// Parses text, which is UTF-8, and everything that it includes. path is the file's name in messages; INCLUDE
/// is relative to its folder. For a text without a file, pass a name without a folder, such as "stdin".
ParsedScript parse(const std::string& path, std::string text, const ReadFile& read);

// Notation shared by parse and print.

/// Stands for a line without a token.
constexpr std::string_view emptyLine = "EMPTY";
/// Precedes the hexadecimal bytes of an incomplete last line, which the toolkit's reader drops.
constexpr std::string_view unfinishedMark = "#! unfinished:";
/// On its own before a line: the line is built unchecked. Followed by a decimal number: a keyword's id.
constexpr char verbatimMark = '@';

} // namespace tgx::script_text
