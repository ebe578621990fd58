// Splits a line of text into words, numbers and strings.

#include "language/text/lexer.h"

#include "platform/framework/text.h"
#include "platform/media/encoding.h"

#include <cctype>
#include <charconv>
#include <cstdio>
#include <optional>

namespace tgx::script_text {

namespace {

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

std::optional<unsigned char> hexByte(std::string_view digits)
{
    unsigned char value = 0;
    const auto [end, fault] = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
    if (digits.size() != 2 || fault != std::errc() || end != digits.data() + 2)
        return std::nullopt;
    return value;
}

/// Formats value as "U+00E9" or "0xE9", depending on the format.
std::string hex(const char* format, std::uint32_t value)
{
    char out[16];
    std::snprintf(out, sizeof out, format, static_cast<unsigned>(value));
    return out;
}

std::size_t utf8Length(std::uint32_t character)
{
    return character < 0x80 ? 1 : character < 0x800 ? 2 : character < 0x10000 ? 3 : 4;
}

/// Describes a character of the word that looks like a blank or is invisible, or returns null if there is
/// none. A message that only quoted such a word would not explain the error.
const char* invisibleIn(std::string_view word)
{
    if (word.find("\xC2\xA0") != std::string_view::npos)
        return "a no-break space (U+00A0)";
    if (word.find("\xEF\xBB\xBF") != std::string_view::npos)
        return "a byte-order mark (U+FEFF)";
    return nullptr;
}

class Lexer {
public:
    explicit Lexer(std::string_view text) : line(text) {}

    LexedLine run()
    {
        for (skipBlanks(); pos < line.size() && line[pos] != '#'; skipBlanks()) {
            if (line[pos] == '"')
                readString();
            else
                readWord();
        }
        return std::move(out);
    }

    std::string runBytes(std::size_t offset)
    {
        pos = offset;
        std::string bytes;
        for (skipBlanks(); pos < line.size(); skipBlanks()) {
            Span at = here();
            const std::optional<unsigned char> byte = hexByte(takeWord());
            close(at);
            if (!byte) {
                fault(at, "expected bytes as two hexadecimal digits each, such as 71 04");
                break;
            }
            bytes += static_cast<char>(*byte);
        }
        return bytes;
    }

    LexedLine out;

private:
    /// Returns the position of pos. Called from left to right only, so that each line is counted once.
    Span here()
    {
        for (; counted < pos; ++counted)
            column += (line[counted] & 0xC0) != 0x80;
        return {static_cast<int>(pos), column, 1};
    }
    /// Ends the span at pos.
    void close(Span& span) { span.length = here().column - span.column; }

    void fault(const Span& at, std::string text) { out.faults.push_back({at, std::move(text)}); }

    void skipBlanks()
    {
        while (pos < line.size() && isBlank(line[pos]))
            ++pos;
    }

    std::string_view takeWord()
    {
        const std::size_t start = pos;
        while (pos < line.size() && !isBlank(line[pos]) && line[pos] != '"' && line[pos] != '#')
            ++pos;
        return line.substr(start, pos - start);
    }

    void readWord()
    {
        Span at = here();
        const std::string_view word = takeWord();
        close(at);
        if (const char* const invisible = invisibleIn(word)) {
            fault(at, "this word contains " + std::string(invisible) + "; use a blank or remove it");
            out.lexemes.push_back({Lexeme::Faulty, std::string(word), 0, at});
        } else if (word[0] == '-' || std::isdigit(static_cast<unsigned char>(word[0])))
            readNumber(word, at);
        else
            out.lexemes.push_back({Lexeme::Word, std::string(word), 0, at});
    }

    void readNumber(std::string_view word, const Span& at)
    {
        const bool isHex = word.starts_with("0x") || word.starts_with("0X");
        const std::string_view digits = word.substr(isHex ? 2 : 0);
        long value = 0;
        const char* const wordEnd = digits.data() + digits.size();
        const auto [end, failure] = std::from_chars(digits.data(), wordEnd, value, isHex ? 16 : 10);
        Lexeme::Kind kind = Lexeme::Faulty;
        if (failure == std::errc::invalid_argument || end != wordEnd || (isHex && digits.starts_with('-')))
            fault(at, "expected a number such as -12 or 0x1F, found " + shown(word));
        else if (failure != std::errc() || (isHex ? value > 0xFFFF : value < -32768 || value > 32767))
            fault(at,
                  "the number " + shown(word) + " does not fit; expected -32768 to 32767 or 0x0 to 0xFFFF");
        else
            kind = Lexeme::Number;
        out.lexemes.push_back({kind, std::string(word), static_cast<short>(value), at});
    }

    void readString()
    {
        Span at = here();
        ++pos;
        std::string bytes;
        hasInvalidUtf8 = false;
        unencodableCount = 0;
        while (pos < line.size() && line[pos] != '"')
            bytes += takeCharacter();
        reportUnencodable();
        const bool isOpen = pos == line.size();
        pos += !isOpen;
        close(at);
        if (isOpen)
            fault({at.offset, at.column, 1},
                  std::string("this string has no end; expected \" before the end of the line") +
                      (bytes.ends_with('"') ? "; \\\" is a quotation mark inside the string, and a backslash "
                                              "before its end is written \\\\"
                                            : ""));
        out.lexemes.push_back({Lexeme::String, std::move(bytes), 0, at});
    }

    /// Reports characters that code page 1252 lacks once per string: a text in another script has many.
    void reportUnencodable()
    {
        if (unencodableCount == 0)
            return;
        const int others = unencodableCount - 1;
        fault(firstUnencodable.at,
              firstUnencodable.what +
                  (others == 0   ? " has"
                   : others == 1 ? " and another one of this text have"
                                 : " and " + std::to_string(others) + " others of this text have") +
                  " no byte in code page 1252; use another character, or \\x and two digits");
    }

    /// Returns the byte for the string's next character.
    char takeCharacter()
    {
        Span at = here();
        char c = line[pos];
        if (c & 0x80)
            return takeBeyondAscii(at);
        ++pos;
        if (c == '\\' && pos < line.size()) {
            const std::optional<unsigned char> byte =
                line[pos] == 'x' ? hexByte(line.substr(pos + 1, 2)) : std::nullopt;
            if (byte) {
                pos += 3;
                c = static_cast<char>(*byte);
            } else if (line[pos] == '"' || line[pos] == '\\') {
                c = line[pos++];
            } // otherwise the backslash is an ordinary character
        }
        if (c == 0) {
            close(at);
            fault(at, "a string cannot hold the character 0");
        }
        return c;
    }

    char takeBeyondAscii(Span at)
    {
        std::string_view rest = line.substr(pos);
        const std::uint32_t character = takeUtf8(rest);
        const std::size_t length = line.size() - pos - rest.size();
        const std::string_view source = line.substr(pos, length);
        if (length != utf8Length(character) || (character == 0xFFFD && source != "\xEF\xBF\xBD")) {
            const auto byte = static_cast<unsigned char>(source[0]);
            if (!hasInvalidUtf8) // once per string: a text in another encoding has many
                fault(at, "the byte " + hex("0x%02X", byte) +
                              " is not UTF-8; save the text as UTF-8, or write " + hexEscape(source[0]));
            hasInvalidUtf8 = true;
            ++pos;
            return '?';
        }
        pos += length;
        const std::optional<char> byte = to1252(character);
        if (!byte && unencodableCount++ == 0)
            firstUnencodable = {at, "the character " + shown(source) + " (" + hex("U+%04X", character) + ")"};
        return byte.value_or('?');
    }

    std::string_view line;
    std::size_t pos = 0;
    std::size_t counted = 0; // bytes included in column
    int column = 1;
    bool hasInvalidUtf8 = false; // the current string; its first invalid byte has been reported
    struct Unencodable {
        Span at;
        std::string what;
    };
    Unencodable firstUnencodable;
    int unencodableCount = 0; // characters of the current string that the code page does not have
};

} // namespace

LexedLine lex(std::string_view line)
{
    return Lexer(line).run();
}

std::string lexBytes(std::string_view line, std::size_t offset, std::vector<Fault>& faults)
{
    Lexer lexer(line);
    std::string bytes = lexer.runBytes(offset);
    faults.insert(faults.end(), lexer.out.faults.begin(), lexer.out.faults.end());
    return bytes;
}

} // namespace tgx::script_text
