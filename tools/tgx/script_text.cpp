#include "tools/tgx/script_text.h"

#include "tgx/script/reader.h"
#include "tgx/script/vocabulary.h"

#include <algorithm>

namespace script_text {

namespace {

constexpr char hexDigits[] = "0123456789ABCDEF";

/// Whether it stands in a string as it is.
bool isPrintable(char c)
{
    return c >= 0x20 && c <= 0x7E;
}

std::string quoted(std::string_view text)
{
    std::string out = "\"";
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto c = static_cast<unsigned char>(text[i]);
        if (c == '"') {
            out += "\\\"";
        } else if (c == '\\') {
            // Only where what follows would make an escape of it; file names stay as they are.
            const char next = i + 1 < text.size() ? text[i + 1] : '"';
            out += next == '"' || next == '\\' || next == 'x' || !isPrintable(next) ? "\\\\" : "\\";
        } else if (!isPrintable(text[i])) {
            out += {'\\', 'x', hexDigits[c >> 4], hexDigits[c & 15]};
        } else {
            out += text[i];
        }
    }
    return out += '"';
}

/// Collects a line's tokens as text.
struct LinePrinter {
    std::string text;
    int firstId = -1;

    void number(short value) { add(numberToken, std::to_string(value)); }
    void string(std::string_view characters) { add(stringToken, quoted(characters)); }
    void keyword(unsigned char id)
    {
        const Statement* statement = statementById(id);
        add(id, statement ? statement->keyword : idMark + std::to_string(id));
    }

private:
    void add(int id, const std::string& word)
    {
        if (firstId < 0)
            firstId = id;
        else
            text += ' ';
        text += word;
    }
};

} // namespace

bool Assembled::hasErrors() const
{
    return std::any_of(diagnostics.begin(), diagnostics.end(),
                       [](const Diagnostic& each) { return each.severity == Diagnostic::Error; });
}

std::string describe(const std::string& file, const Diagnostic& diagnostic)
{
    return file + ':' + std::to_string(diagnostic.line) + ':' + std::to_string(diagnostic.column) +
           (diagnostic.severity == Diagnostic::Error ? ": error: " : ": warning: ") + diagnostic.text;
}

std::string print(std::string_view bytes)
{
    std::string out;
    int depth = 0;
    const char* pos = bytes.data();
    const char* const end = pos + bytes.size();
    while (pos != end) {
        LinePrinter line;
        const char* next = scanLine(pos, end, line);
        if (!next)
            break;
        pos = next;
        if (line.firstId == keyword::end)
            depth = std::max(depth - 1, 0);
        // Deeper than statements can stand, more indentation only makes the text grow with the square of its
        // lines.
        out.append(static_cast<std::size_t>(4 * std::min(depth, wndStackSize)), ' ');
        out += line.firstId < 0 ? emptyLine : line.text;
        out += '\n';
        if (line.firstId == keyword::begin)
            ++depth;
    }
    if (pos == end)
        return out;
    out += unfinishedMark;
    for (; pos != end; ++pos) {
        const auto byte = static_cast<unsigned char>(*pos);
        out += {' ', hexDigits[byte >> 4], hexDigits[byte & 15]};
    }
    return out += '\n';
}

const char* const notation = R"(The text form:
  One statement a line: a keyword, then its arguments, divided by blanks.
    SCREEN "MENU" 0 0 640 480 "menu.bmp"
    BEGIN
        TEXTWND "TITLE" 10 10 300 40 "Harbour"   # a comment
        BEGIN
            JUSTIFY CENTRE
        END
    END
  "text"       a string. In it \" is a quotation mark, \\ a backslash and \x41 the
               character with that hexadecimal code; any other backslash stands for
               itself, so that file names are written as they are: "uig\bar.bmp"
  -12, 0x1F    a number, -32768 to 32767 or 0x0 to 0xFFFF
  LEFT CENTRE RIGHT   words that JUSTIFY and COLUMNS take
  # ...        a comment, to the end of the line; empty lines do nothing
What only a dump of an unusual script needs:
  @65          a keyword byte by its number
  EMPTY        a line without a token
  #! unfinished: 71 04   the bytes of a last line that has no end; they come last)";

} // namespace script_text
