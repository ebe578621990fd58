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
    std::string text;    // bytes of code page 1252, or UTF-8; escapes resolved
    bool quoted = false; // stood in double quotes: text, never a number
};

/// What the characters of a line, which is UTF-8, become: bytes of code page 1252, as the texts of scripts,
/// or what they are, as file names are spelt.
enum class Characters { CodePage, Utf8 };

/// Cuts a line at blanks and tabs. Raises WrongLine for a string that does not end or is glued to its
/// neighbour, and for what is not UTF-8 or has no byte in the code page.
TGX_PLAYER_API std::vector<Word> splitWords(std::string_view line,
                                            Characters characters = Characters::CodePage);

/// Decimal or 0x hex, with a sign if need be. Nothing for a quoted word, other text, or what 64 bits do not
/// hold.
TGX_PLAYER_API std::optional<std::int64_t> parseNumber(const Word& word);
/// Digits with a decimal point, as a raw fixed-point value cut towards zero. Nothing for other text.
TGX_PLAYER_API std::optional<std::int64_t> parseFixed(const Word& word);

/// text, bytes of code page 1252, in double quotes and UTF-8, for messages: bytes that show no character as
/// \xNN.
TGX_PLAYER_INTERNAL std::string quote(std::string_view text);
/// The same for a file name, which is UTF-8.
TGX_PLAYER_INTERNAL std::string quoteName(std::string_view name);
/// text as one word of an events line, in quotes: splitWords gives the same bytes.
TGX_PLAYER_INTERNAL std::string quoteWord(std::string_view text);
/// "a, b and c". At most limit of the names; the others are counted.
std::string listNames(const std::vector<std::string>& names, std::size_t limit = 8);
/// "; did you mean NAME?" for the name that is at most two slips away from what was written, else "".
std::string suggest(std::string_view written, const std::vector<std::string>& names);
