#include "language/text/diagnostics.h"

#include "platform/media/encoding.h"

#include <algorithm>

namespace tgx::script_text {

namespace {

// Of a long line, only the part around the place is shown. In bytes.
constexpr std::size_t maxShown = 110;
constexpr std::size_t contextBefore = 60;
constexpr std::size_t maxWordLength = 60;

constexpr std::string_view noColour = "\x1B[0m";
constexpr std::string_view bold = "\x1B[1m";
constexpr std::string_view red = "\x1B[1;31m";
constexpr std::string_view magenta = "\x1B[1;35m";
constexpr std::string_view green = "\x1B[1;32m";

bool continuesCharacter(char byte)
{
    return (byte & 0xC0) == 0x80;
}

/// Removes the next character from text and returns it, or "?" if it could confuse a terminal.
std::string takeShown(std::string_view& text)
{
    const std::string_view before = text;
    const std::uint32_t character = takeUtf8(text);
    if (character < 0x20 || (character >= 0x7F && character < 0xA0) || character == 0xFFFD)
        return "?";
    return std::string(before.substr(0, before.size() - text.size()));
}

std::string position(const Inclusion& in, int line, int column)
{
    return shown(in.file->name) + ':' + std::to_string(line) + ':' + std::to_string(column) + ": ";
}

std::string in(std::string_view colour, const std::string& text, Colour wanted)
{
    return wanted == Colour::No ? text : std::string(colour) + text + std::string(noColour);
}

/// Returns the source line and, below it, a mark under the place.
std::string excerpt(const Place& place, Colour colour)
{
    std::string_view line = place.in->file->line(place.line);
    const auto offset = std::min(static_cast<std::size_t>(place.at.offset), line.size());
    std::size_t begin = offset > contextBefore && line.size() > maxShown ? offset - contextBefore : 0;
    while (begin > 0 && continuesCharacter(line[begin]))
        --begin;
    std::size_t end = std::min(begin + maxShown, line.size());
    while (end < line.size() && continuesCharacter(line[end]))
        ++end;

    std::string text = begin > 0 ? "..." : "";
    std::string mark(text.size(), ' ');
    std::string_view rest = line.substr(begin, end - begin);
    int marked = 0;
    while (!rest.empty()) {
        const std::size_t at = end - rest.size();
        if (rest[0] == '\t') { // equally wide in both lines
            rest.remove_prefix(1);
            text += '\t';
            if (at < offset) {
                mark += '\t';
                continue;
            }
        } else {
            text += takeShown(rest);
        }
        if (at < offset)
            mark += ' ';
        else if (marked < place.at.length)
            mark += marked++ == 0 ? '^' : '~';
    }
    if (marked == 0) // the place is after the last character
        mark += '^';
    if (end < line.size())
        text += "...";
    const std::string number = std::to_string(place.line);
    return ' ' + number + " | " + text + '\n' + std::string(number.size() + 1, ' ') + " | " +
           in(green, mark, colour) + '\n';
}

} // namespace

SourceFile::SourceFile(std::string name_, std::string text_) : name(std::move(name_)), text(std::move(text_))
{
    if (text.starts_with("\xEF\xBB\xBF")) // some editors write a byte order mark
        text.erase(0, 3);
    for (std::size_t start = 0; start < text.size();) {
        lineStarts.push_back(start);
        start = std::min(text.find('\n', start), text.size() - 1) + 1;
    }
    lineStarts.push_back(text.size());
}

std::string_view SourceFile::line(int number) const
{
    const std::size_t start = lineStarts[static_cast<std::size_t>(number) - 1];
    std::string_view line(text);
    line = line.substr(start, lineStarts[static_cast<std::size_t>(number)] - start);
    if (line.ends_with('\n'))
        line.remove_suffix(1);
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

std::string headline(const Diagnostic& diagnostic)
{
    return position(*diagnostic.place.in, diagnostic.place.line, diagnostic.place.at.column) +
           (diagnostic.severity == Diagnostic::Error ? "error: " : "warning: ") + diagnostic.text;
}

std::string describe(const Diagnostic& diagnostic, Colour colour)
{
    const Place& place = diagnostic.place;
    const bool isError = diagnostic.severity == Diagnostic::Error;
    std::string out = in(bold, position(*place.in, place.line, place.at.column), colour) +
                      in(isError ? red : magenta, isError ? "error: " : "warning: ", colour) +
                      diagnostic.text + '\n' + excerpt(place, colour);
    for (const Inclusion* each = place.in; each->from; each = each->from)
        out += in(bold, position(*each->from, each->line, each->at.column), colour) +
               "note: included from here\n";
    return out;
}

std::string shown(std::string_view word)
{
    std::string out;
    while (!word.empty() && out.size() < maxWordLength)
        out += takeShown(word);
    return word.empty() ? out : out + "...";
}

} // namespace tgx::script_text
