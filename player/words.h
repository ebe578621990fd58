#pragma once

#include "player/export.h"

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// Why a line of an events file is wrong or could not be carried out, without file and line number.
struct WrongLine : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// One word of an events line.
struct Word {
    std::string text;    // bytes, escapes resolved
    bool quoted = false; // stood in double quotes: text, never a number
};

/// Cuts a line at blanks and tabs. Raises WrongLine for a string that does not end or is glued to its
/// neighbour.
TGX_PLAYER_API std::vector<Word> splitWords(std::string_view line);

/// Decimal or 0x hex, with a sign if need be. Nothing for a quoted word, other text, or what 64 bits do not
/// hold.
TGX_PLAYER_API std::optional<std::int64_t> parseNumber(const Word& word);
/// Digits with a decimal point, as a raw fixed-point value cut towards zero. Nothing for other text.
TGX_PLAYER_API std::optional<std::int64_t> parseFixed(const Word& word);

/// text in double quotes, for messages: bytes outside 0x20 to 0x7E as \xNN.
TGX_PLAYER_INTERNAL std::string quote(std::string_view text);
/// text as one word of an events line, in quotes: splitWords gives the same bytes.
TGX_PLAYER_INTERNAL std::string quoteWord(std::string_view text);
/// "a, b and c". At most limit of the names; the others are counted.
std::string listNames(const std::vector<std::string>& names, std::size_t limit = 8);
/// "; did you mean NAME?" for the name that is at most two slips away from what was written, else "".
std::string suggest(std::string_view written, const std::vector<std::string>& names);
