#include "player/words.h"

#include "platform/framework/text.h"
#include "platform/media/encoding.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace tgx {

namespace {

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// Returns the byte that two hex digits give, or -1.
int hexByte(std::string_view digits)
{
    unsigned value = 0;
    if (digits.size() < 2)
        return -1;
    auto [end, error] = std::from_chars(digits.data(), digits.data() + 2, value, 16);
    return error == std::errc() && end == digits.data() + 2 ? static_cast<int>(value) : -1;
}

/// Returns the converted bytes of the character of line at place, and advances place.
std::string takeCharacter(std::string_view line, std::size_t& place, Characters characters)
{
    std::string_view rest = line.substr(place);
    const std::uint32_t character = rest[0] & 0x80 ? takeUtf8(rest) : (rest.remove_prefix(1), 0u);
    const std::string_view source = line.substr(place, line.size() - rest.size() - place);
    place += source.size();
    if (character == 0 || characters == Characters::Utf8)
        return std::string(source);
    if (character == 0xFFFD && source != "\xEF\xBF\xBD") {
        const std::string byte = hexEscape(source[0]);
        throw WrongLine("the byte 0x" + byte.substr(2) + " is not UTF-8; save the file as UTF-8, or write " +
                        byte);
    }
    if (const std::optional<char> byte = to1252(character))
        return {*byte};
    throw WrongLine("the character " + std::string(source) + " has no byte in code page 1252");
}

/// Reads the string whose opening quote is at place, and advances place to after the closing one.
std::string readString(std::string_view line, std::size_t& place, Characters characters)
{
    std::string text;
    for (++place; place < line.size();) {
        char c = line[place];
        if (c == '"') {
            ++place;
            return text;
        }
        if (c == '\\' && place + 1 < line.size()) {
            char next = line[place + 1];
            int byte = next == 'x' ? hexByte(line.substr(place + 2)) : -1;
            if (next == '"' || next == '\\') {
                text += next;
                place += 2;
                continue;
            }
            if (byte >= 0) {
                text += static_cast<char>(byte);
                place += 4;
                continue;
            } // any other backslash is an ordinary character
        }
        text += takeCharacter(line, place, characters);
    }
    std::string shown = characters == Characters::Utf8 ? quoteName(text) : quote(text);
    shown.pop_back();
    throw WrongLine("the string " + shown + " has no closing quote");
}

/// Removes a leading sign from text. Returns true for a minus.
bool takeSign(std::string_view& text)
{
    bool negative = text.starts_with('-');
    if (negative || text.starts_with('+'))
        text.remove_prefix(1);
    return negative;
}

/// Returns how many letters must be added, left out or changed to get from a to b.
std::size_t editDistance(std::string_view a, std::string_view b)
{
    std::vector<std::size_t> row(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j)
        row[j] = j;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            std::size_t changed = diagonal + (a[i - 1] != b[j - 1]);
            diagonal = row[j];
            row[j] = std::min({changed, row[j] + 1, row[j - 1] + 1});
        }
    }
    return row.back();
}

} // namespace

std::vector<Word> splitWords(std::string_view line, Characters characters)
{
    std::vector<Word> words;
    std::size_t place = 0;
    while (true) {
        while (place < line.size() && isBlank(line[place]))
            ++place;
        if (place == line.size())
            return words;
        if (line[place] == '"') {
            words.push_back({readString(line, place, characters), true});
            if (place < line.size() && !isBlank(line[place]))
                throw WrongLine("a blank is missing after the string " + quote(words.back().text));
            continue;
        }
        std::size_t start = place;
        std::string text;
        while (place < line.size() && !isBlank(line[place])) {
            if (line[place] == '"')
                throw WrongLine("a blank is missing between " + quoteName(line.substr(start, place - start)) +
                                " and the string that follows");
            text += takeCharacter(line, place, characters);
        }
        words.push_back({std::move(text), false});
    }
}

std::optional<std::int64_t> parseNumber(const Word& word)
{
    std::string_view digits = word.text;
    bool negative = takeSign(digits);
    int base = 10;
    if (digits.starts_with("0x") || digits.starts_with("0X")) {
        digits.remove_prefix(2);
        base = 16;
    }
    std::uint64_t value = 0; // unsigned, because from_chars would accept a second sign for a signed type
    auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, base);
    bool whole = error == std::errc() && end == digits.data() + digits.size();
    if (word.quoted || !whole || value > std::uint64_t(std::numeric_limits<std::int64_t>::max()))
        return std::nullopt;
    return negative ? -static_cast<std::int64_t>(value) : static_cast<std::int64_t>(value);
}

std::optional<std::int64_t> parseFixed(const Word& word)
{
    std::string_view digits = word.text;
    bool negative = takeSign(digits);
    std::size_t point = digits.find('.');
    if (word.quoted || point == std::string_view::npos || digits.size() == 1)
        return std::nullopt;
    std::string_view whole = digits.substr(0, point);
    std::string_view fraction = digits.substr(point + 1);
    if (!std::all_of(whole.begin(), whole.end(), isDigit) ||
        !std::all_of(fraction.begin(), fraction.end(), isDigit) || whole.size() > 12)
        return std::nullopt;

    std::int64_t value = 0;
    for (char c : whole)
        value = value * 10 + (c - '0');
    // Each multiple of 1/4096 has at most 12 decimals, so digits after the 15th cannot change the result.
    std::int64_t numerator = 0;
    std::int64_t denominator = 1;
    for (char c : fraction.substr(0, 15)) {
        numerator = numerator * 10 + (c - '0');
        denominator *= 10;
    }
    value = value * 4096 + numerator * 4096 / denominator;
    return negative ? -value : value;
}

std::string quote(std::string_view text)
{
    std::string quoted = "\"";
    for (const char c : text) {
        const std::string character = utf8From1252({&c, 1});
        const auto byte = static_cast<unsigned char>(c);
        quoted += byte < 0x20 || byte == 0x7F || character == "\xEF\xBF\xBD" ? hexEscape(c) : character;
    }
    return quoted + '"';
}

std::string quoteName(std::string_view name)
{
    std::string quoted = "\"";
    while (!name.empty()) {
        std::string_view rest = name;
        const std::uint32_t character = takeUtf8(rest);
        const std::string_view source = name.substr(0, name.size() - rest.size());
        name = rest;
        if (character >= 0x20 && (character < 0x7F || character > 0x9F) && character != 0xFFFD)
            quoted += source;
        else
            for (const char c : source)
                quoted += hexEscape(c);
    }
    return quoted + '"';
}

std::string quoteWord(std::string_view text)
{
    std::string word = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\')
            word += '\\';
        word += c < 0x20 || c > 0x7E ? hexEscape(c) : std::string(1, c);
    }
    return word + '"';
}

std::string listNames(const std::vector<std::string>& names, std::size_t limit)
{
    std::string list;
    std::size_t shown = std::min(names.size(), limit);
    for (std::size_t i = 0; i < shown; ++i) {
        if (i > 0)
            list += i + 1 == names.size() ? " and " : ", ";
        list += names[i];
    }
    if (shown < names.size())
        list += " and " + std::to_string(names.size() - shown) + " more";
    return list;
}

std::string suggest(std::string_view written, const std::vector<std::string>& names)
{
    const std::string* best = nullptr;
    std::size_t bestDistance = 3;
    for (const std::string& name : names) {
        std::size_t distance = editDistance(written, name);
        if (distance < bestDistance && distance < name.size()) {
            best = &name;
            bestDistance = distance;
        }
    }
    return best ? "; did you mean " + *best + "?" : "";
}

} // namespace tgx
