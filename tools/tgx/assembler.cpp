// Text form to bytes.

#include "tgx/script/reader.h"
#include "tgx/script/vocabulary.h"
#include "tools/tgx/script_text.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <numeric>
#include <optional>
#include <utility>

namespace script_text {

namespace {

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

std::string upper(std::string_view word)
{
    std::string out(word);
    std::transform(out.begin(), out.end(), out.begin(), [](unsigned char c) { return std::toupper(c); });
    return out;
}

/// Letters to change, insert or leave out to make b of a.
std::size_t editDistance(std::string_view a, std::string_view b)
{
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::size_t diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 0; j < b.size(); ++j) {
            const std::size_t changed = diagonal + (a[i] != b[j]);
            diagonal = row[j + 1];
            row[j + 1] = std::min({changed, diagonal + 1, row[j] + 1});
        }
    }
    return row.back();
}

/// Empty when no keyword is near.
std::string_view nearestKeyword(std::string_view word)
{
    const std::string wanted = upper(word.substr(0, 40));
    std::size_t least = std::max<std::size_t>(2, wanted.size() / 3) + 1;
    std::string_view nearest;
    for (const Statement& row : vocabulary()) {
        const std::size_t distance = editDistance(wanted, row.keyword);
        if (distance < least) {
            least = distance;
            nearest = row.keyword;
        }
    }
    return nearest;
}

/// "6 or 10 arguments", "2 or more arguments".
std::string allowedArguments(const TokenCounts& allowed)
{
    std::vector<int> each;
    for (int tokens = 1; tokens <= maxLineTokens; ++tokens)
        if (allowed.allow(tokens))
            each.push_back(tokens - 1);
    std::string out;
    if (each.size() > 1 && each.back() == maxLineTokens - 1)
        return std::to_string(each.front()) + " or more arguments";
    for (std::size_t i = 0; i < each.size(); ++i)
        out += (i == 0 ? "" : i + 1 == each.size() ? " or " : ", ") + std::to_string(each[i]);
    if (out == "0")
        out = "no";
    return out + (out == "1" ? " argument" : " arguments");
}

const char* nameOf(ArgumentKind kind)
{
    switch (kind) {
    case ArgumentKind::String:
        return "a string";
    case ArgumentKind::Word:
        return "a word";
    case ArgumentKind::NumberOrWord:
        return "a number or a word";
    default:
        return "a number";
    }
}

struct Token {
    unsigned char id;
    std::size_t column; // 0 for the first
};

class Assembler {
public:
    Assembled run(std::string_view text)
    {
        if (text.starts_with("\xEF\xBB\xBF")) // some editors begin a file so
            text.remove_prefix(3);
        while (!text.empty()) {
            const std::size_t end = std::min(text.find('\n'), text.size());
            line = text.substr(0, end);
            if (line.ends_with('\r'))
                line.remove_suffix(1);
            ++lineNumber;
            assembleLine();
            text.remove_prefix(std::min(end + 1, text.size()));
        }
        return std::move(out);
    }

private:
    void report(Diagnostic::Severity severity, std::size_t column, std::string text)
    {
        out.diagnostics.push_back({severity, lineNumber, static_cast<int>(column) + 1, std::move(text)});
        isGood = isGood && severity != Diagnostic::Error;
    }
    void error(std::size_t column, std::string text) { report(Diagnostic::Error, column, std::move(text)); }
    void warn(std::size_t column, std::string text) { report(Diagnostic::Warning, column, std::move(text)); }

    void assembleLine()
    {
        pos = 0;
        isGood = true;
        tokens.clear();
        bytes.clear();
        bool isEmptyLine = false;

        skipBlanks();
        if (line.substr(pos).starts_with(unfinishedMark)) {
            readUnfinished();
            return;
        }
        if (isAtEnd())
            return;
        const std::size_t start = pos;
        if (isUnfinished)
            error(start, "a line behind the unfinished one; that one comes last");
        for (; !isAtEnd(); skipBlanks()) {
            if (line[pos] == '"')
                readString();
            else
                isEmptyLine = readWord() || isEmptyLine;
        }
        if (isEmptyLine && !tokens.empty())
            error(start, "EMPTY is a line without a token; it stands alone");
        if (!isGood)
            return;
        if (!isEmptyLine)
            warnOfWhatFails(start);
        out.bytes += bytes;
        out.bytes += static_cast<char>(endOfLineToken);
    }

    void skipBlanks()
    {
        while (pos < line.size() && isBlank(line[pos]))
            ++pos;
    }
    bool isAtEnd() const { return pos == line.size() || line[pos] == '#'; }

    void add(unsigned char id, std::size_t column)
    {
        tokens.push_back({id, column});
        bytes += static_cast<char>(id);
    }

    // Strings are bytes here; this is the place where another encoding of the file would be decoded.
    void readString()
    {
        const std::size_t start = pos++;
        add(stringToken, start);
        while (pos < line.size() && line[pos] != '"') {
            char c = line[pos];
            const std::size_t at = pos++;
            if (c == '\\' && pos < line.size()) {
                if (line[pos] == '"' || line[pos] == '\\')
                    c = line[pos++];
                else if (line[pos] == 'x')
                    c = readHexEscape();
            }
            if (c == 0)
                error(at, "a string cannot hold the character 0; it ends there");
            bytes += c;
        }
        if (pos == line.size())
            error(start, "this string has no end; expected \" before the end of the line");
        else
            ++pos;
        bytes += '\0';
    }

    /// Stands on the x. Without two digits behind it the backslash stands for itself.
    char readHexEscape()
    {
        const std::optional<unsigned char> byte = hexByte(line.substr(pos + 1, 2));
        if (!byte)
            return '\\';
        pos += 3;
        return static_cast<char>(*byte);
    }

    static std::optional<unsigned char> hexByte(std::string_view digits)
    {
        unsigned char value = 0;
        const auto [end, fault] = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
        if (digits.size() != 2 || fault != std::errc() || end != digits.data() + 2)
            return std::nullopt;
        return value;
    }

    std::string_view takeWord()
    {
        const std::size_t start = pos;
        while (pos < line.size() && !isBlank(line[pos]) && line[pos] != '"' && line[pos] != '#')
            ++pos;
        return line.substr(start, pos - start);
    }

    /// True for the word of an empty line.
    bool readWord()
    {
        const std::size_t start = pos;
        const std::string_view word = takeWord();
        if (word == emptyLine)
            return true;
        if (word[0] == '-' || std::isdigit(static_cast<unsigned char>(word[0])))
            readNumber(word, start);
        else if (word[0] == idMark)
            readId(word, start);
        else if (const Statement* statement = statementByKeyword(word))
            add(static_cast<unsigned char>(statement->id), start);
        else
            reportUnknown(word, start);
        return false;
    }

    void readNumber(std::string_view word, std::size_t start)
    {
        const bool isHex = word.starts_with("0x") || word.starts_with("0X");
        const std::string_view digits = word.substr(isHex ? 2 : 0);
        long value = 0;
        const char* const wordEnd = digits.data() + digits.size();
        const auto [end, fault] = std::from_chars(digits.data(), wordEnd, value, isHex ? 16 : 10);
        if (fault == std::errc::invalid_argument || end != wordEnd || (isHex && digits.starts_with('-'))) {
            error(start, "expected a number such as -12 or 0x1F, found " + std::string(word));
            return;
        }
        if (fault != std::errc() || (isHex ? value > 0xFFFF : value < -32768 || value > 32767)) {
            error(start, "the number " + std::string(word) +
                             " does not fit; expected -32768 to 32767 or 0x0 to 0xFFFF");
            return;
        }
        add(numberToken, start);
        bytes += static_cast<char>(value & 0xFF);
        bytes += static_cast<char>(value >> 8 & 0xFF);
    }

    void readId(std::string_view word, std::size_t start)
    {
        unsigned char id = 0;
        const char* const wordEnd = word.data() + word.size();
        const auto [end, fault] = std::from_chars(word.data() + 1, wordEnd, id);
        if (fault != std::errc() || end != wordEnd || id == numberToken || id == stringToken ||
            id == endOfLineToken)
            error(start, "expected @ and a keyword's number, 0 to 255 but not 3, 4 or 7, found " +
                             std::string(word));
        else
            add(id, start);
    }

    void reportUnknown(std::string_view word, std::size_t start)
    {
        const bool isName = std::isalpha(static_cast<unsigned char>(word[0])) || word[0] == '_';
        if (!isName) {
            error(start, "expected a keyword, a \"string\" or a number, found " + std::string(word));
            return;
        }
        const std::string_view nearest = nearestKeyword(word);
        error(start, "unknown keyword " + std::string(word) +
                         (nearest.empty() ? "" : "; did you mean " + std::string(nearest) + "?"));
    }

    void readUnfinished()
    {
        const std::size_t start = pos;
        pos += unfinishedMark.size();
        if (isUnfinished)
            error(start, "a second unfinished line; there is one at most, and it comes last");
        isUnfinished = true;
        for (skipBlanks(); pos < line.size(); skipBlanks()) {
            const std::size_t column = pos;
            const std::optional<unsigned char> byte = hexByte(takeWord());
            if (!byte) {
                error(column, "expected bytes as two hexadecimal digits each, such as 71 04");
                return;
            }
            bytes += static_cast<char>(*byte);
        }
        if (bytes.empty())
            error(start, "expected bytes as two hexadecimal digits each behind the mark, such as 71 04");
        out.bytes += bytes;
    }

    /// A line that the interpreter refuses can be built all the same: a dump may hold any.
    void warnOfWhatFails(std::size_t start)
    {
        const int count = static_cast<int>(tokens.size());
        const Statement* statement = statementById(tokens[0].id);
        if (!statement || statement->kind == StatementKind::ArgumentWord) {
            warn(start, "no statement begins so; expected a keyword");
            return;
        }
        if (!statement->counts.allow(count)) {
            warn(start, std::string(statement->keyword) + " takes " + allowedArguments(statement->counts) +
                            ", this line has " + std::to_string(count - 1) +
                            "; expected: " + statement->keyword + ' ' + statement->form);
            return;
        }
        for (int i = 1; i < count; ++i)
            warnOfKind(*statement, i);
    }

    void warnOfKind(const Statement& statement, int token)
    {
        const unsigned char id = tokens[static_cast<std::size_t>(token)].id;
        const ArgumentKind kind = argumentKind(statement, token);
        const Statement* word = statementById(id);
        const bool isWord = word && word->kind == StatementKind::ArgumentWord;
        const bool fits = kind == ArgumentKind::String   ? id == stringToken
                          : kind == ArgumentKind::Number ? id == numberToken
                          : kind == ArgumentKind::Word   ? isWord
                                                         : isWord || id == numberToken;
        if (!fits)
            warn(tokens[static_cast<std::size_t>(token)].column, std::string("expected ") + nameOf(kind) +
                                                                     " here: " + statement.keyword + ' ' +
                                                                     statement.form);
    }

    Assembled out;
    std::string_view line;
    std::size_t pos = 0; // in line
    int lineNumber = 0;
    bool isGood = true; // the line, so far
    bool isUnfinished = false;
    std::vector<Token> tokens; // of the line
    std::string bytes;         // of the line
};

} // namespace

Assembled assemble(std::string_view text)
{
    return Assembler().run(text);
}

} // namespace script_text
