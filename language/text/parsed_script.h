#pragma once

#include "language/text/diagnostics.h"

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct Statement;

/// The text form of scripts, read: its statements in the order in which they are compiled, each with its
/// place. INCLUDE and DEFINE are resolved, comments and blank lines are gone.
///
///     ParsedScript script = parse("menu.tgs", text, readFile);
///     for (const StatementLine& line : script.lines)
///         if (const Statement* statement = line.statement(); statement && somethingIsWrongWith(line))
///             script.diagnostics.push_back({Diagnostic::Error, line.placeOf(1), "..."});
///     for (const Diagnostic& each : script.diagnostics)
///         std::cerr << describe(each);
namespace script_text {

/// One token as it goes into the compiled script.
struct Token {
    unsigned char id = 0; // numberToken, stringToken or a keyword's id
    short value = 0;      // of a number
    std::string text;     // of a string: bytes of code page 1252, no 0 among them
    Span at;              // where it stands; a DEFINE's value where its name is used
};

/// What becomes one line of the compiled script.
struct StatementLine {
    const Inclusion* in = nullptr;
    int number = 0;            // of the line in its file, 1 for the first
    bool isAsItStands = false; // begins with @: whoever wrote it knows that it is unusual
    std::vector<Token> tokens; // the keyword first; none for the line EMPTY

    /// Row of its keyword; null when it begins with none.
    const Statement* statement() const;
    /// For a message about that token, 0 the keyword. There has to be one.
    Place placeOf(std::size_t token) const { return {in, number, tokens[token].at}; }
};

/// The text of the file at path, or nothing and why not.
using ReadFile = std::function<std::optional<std::string>(const std::string& path, std::string& reason)>;

struct ParsedScript {
    std::vector<StatementLine> lines; // those without an error
    std::string unfinished;           // bytes of a last line that has no end
    std::vector<Diagnostic> diagnostics;
    /// Each file that an INCLUDE names, once, also when it could not be read.
    std::vector<std::string> included;

    // What places point to: the script may be moved, and not copied.
    std::deque<SourceFile> files;
    std::deque<Inclusion> inclusions; // the script itself first

    ParsedScript() = default;
    ParsedScript(ParsedScript&&) = default;
    ParsedScript& operator=(ParsedScript&&) = default;

    bool hasErrors() const;
};

/// Reads text, which is UTF-8, with all that it includes. path is where it comes from and how messages name
/// it; INCLUDE counts from its folder. A text without a file bears a name without a folder, "stdin".
ParsedScript parse(const std::string& path, std::string text, const ReadFile& read);

// Notation that parse and print share.

/// A line without a token.
constexpr std::string_view emptyLine = "EMPTY";
/// The bytes behind the last whole line, which the toolkit's reader drops, as hexadecimal numbers.
constexpr std::string_view unfinishedMark = "#! unfinished:";
/// Alone in front of a line: it is built as it stands. With a decimal number: the id of a keyword.
constexpr char asItStands = '@';

} // namespace script_text
