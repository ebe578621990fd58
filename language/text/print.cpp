// Prints a compiled script in text form.

#include "language/text/print.h"

#include "language/text/parsed_script.h"
#include "language/text/statement_form.h"
#include "platform/framework/text.h"
#include "platform/media/code_page.h"
#include "platform/media/encoding.h"
#include "tgx/script/reader.h"

#include <algorithm>

namespace tgx::script_text {

namespace {

constexpr char hexDigits[] = "0123456789ABCDEF";

/// Returns whether the character is visible and can be printed in a string without an escape.
bool isPlain(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    const bool isInvisible = byte < 0x20 || byte == 0x7F || byte == 0xA0 || byte == 0xAD;
    return !isInvisible && unicodeOf(byte) != 0;
}

std::string quoted(std::string_view text)
{
    std::string out = "\"";
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto c = static_cast<unsigned char>(text[i]);
        if (c == '"') {
            out += "\\\"";
        } else if (c == '\\') {
            // Escaped only where the next character would make it an escape; file names stay readable.
            const char next = i + 1 < text.size() ? text[i + 1] : '"';
            out += next == '"' || next == '\\' || next == 'x' || !isPlain(next) ? "\\\\" : "\\";
        } else if (!isPlain(text[i])) {
            out += hexEscape(text[i]);
        } else {
            out += utf8From1252(text.substr(i, 1));
        }
    }
    return out += '"';
}

/// Collects the tokens of a line.
struct LineReader {
    std::vector<Token> tokens;

    void number(short value) { tokens.push_back({numberToken, value, {}, {}}); }
    void string(std::string_view text) { tokens.push_back({stringToken, 0, std::string(text), {}}); }
    void keyword(unsigned char id) { tokens.push_back({id, 0, {}, {}}); }

    bool beginsWith(int id) const { return !tokens.empty() && tokens[0].id == id; }
};

std::string wordFor(const Token& token)
{
    if (token.id == numberToken)
        return std::to_string(token.value);
    if (token.id == stringToken)
        return quoted(token.text);
    const Statement* statement = statementById(token.id);
    return statement ? statement->keyword : verbatimMark + std::to_string(token.id);
}

std::string lineOf(const std::vector<Token>& tokens)
{
    if (tokens.empty())
        return std::string(emptyLine);
    std::string out = wordFor(tokens[0]);
    for (std::size_t i = 1; i < tokens.size(); ++i)
        out += ' ' + wordFor(tokens[i]);
    if (out[0] != verbatimMark && !lineFaults(tokens).empty())
        out = std::string{verbatimMark, ' '} + out;
    return out;
}

} // namespace

std::string print(std::string_view bytes)
{
    std::string out;
    int depth = 0;
    const char* pos = bytes.data();
    const char* const end = pos + bytes.size();
    while (pos != end) {
        LineReader line;
        const char* next = scanLine(pos, end, line);
        if (!next)
            break;
        pos = next;
        if (line.beginsWith(keyword::end))
            depth = std::max(depth - 1, 0);
        // Statements cannot be nested deeper than this; further indentation would only make the text grow
        // with the square of the number of lines.
        out.append(static_cast<std::size_t>(4 * std::min(depth, wndStackSize)), ' ');
        out += lineOf(line.tokens) + '\n';
        if (line.beginsWith(keyword::begin))
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

const char* const notation = R"(The text form, in UTF-8:
  Each line is one statement: a keyword, then its arguments, separated by blanks.
    SCREEN "MENU" 0 0 640 480 "menu.bmp"
    BEGIN
        TEXTWND "TITLE" 10 10 300 40 "Harbour"   # a comment
        BEGIN
            JUSTIFY CENTRE
        END
    END
  "text"       a string of characters of code page 1252. \" is a quotation mark, \\ a
               backslash, and \xE9 the byte with that hexadecimal value. Any other
               backslash is literal, so file names rarely need escapes: "uig\bar.bmp"
  -12, 0x1F    a number, -32768 to 32767 or 0x0 to 0xFFFF
  LEFT CENTRE RIGHT   words for JUSTIFY and COLUMNS
  # ...        a comment, to the end of the line; empty lines are ignored
  DEFINE NAME value   makes NAME stand for that number or string in the lines that follow
  INCLUDE "file"      inserts the lines of that file; the path is relative to the folder
                      of the file with the INCLUDE
Used only in dumps of unusual scripts:
  @ WINDOW 1   a line with arguments that the toolkit refuses, built unchecked
  @65          a keyword's byte by its number
  EMPTY        a line without a token
  #! unfinished: 71 04   the bytes of an incomplete last line, at the end of the file)";

} // namespace tgx::script_text
