#pragma once

#include "player/export.h"

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tgx {

/// Reports why a line of an events file is wrong or could not be carried out, without file and line number.
struct WrongLine : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// One word of an events line.
struct Word {
    std::string text;    // in code page 1252 or UTF-8, with escapes resolved
    bool quoted = false; // was in double quotes: text, never a number
};

/// How the words of a UTF-8 line are encoded: in code page 1252, like the texts of scripts, or in UTF-8, like
/// file names.
enum class Characters { CodePage, Utf8 };

/// Splits a line at blanks and tabs. Raises WrongLine for a string that does not end or that touches the next
/// word, for bytes that are not UTF-8, and for characters that the code page does not have.
TGX_PLAYER_API std::vector<Word> splitWords(std::string_view line,
                                            Characters characters = Characters::CodePage);

/// Reads a decimal or 0x hex number with an optional sign. Nothing for a quoted word, other text, or a number
/// that does not fit 64 bits.
TGX_PLAYER_API std::optional<std::int64_t> parseNumber(const Word& word);
/// Reads digits with a decimal point as a raw fixed-point value, truncated towards zero. Nothing for other
/// text.
TGX_PLAYER_API std::optional<std::int64_t> parseFixed(const Word& word);

/// Converts text from code page 1252 to UTF-8 and puts it in double quotes, for messages. Bytes without a
/// visible character become \xNN.
TGX_PLAYER_INTERNAL std::string quote(std::string_view text);
/// Puts a file name, which is UTF-8, in double quotes for messages. Bytes without a visible character become
/// \xNN.
TGX_PLAYER_INTERNAL std::string quoteName(std::string_view name);
/// Writes text as one quoted word of an events line, from which splitWords reads the same bytes.
TGX_PLAYER_INTERNAL std::string quoteWord(std::string_view text);
/// Returns "a, b and c". After limit names it writes only how many more there are.
std::string listNames(const std::vector<std::string>& names, std::size_t limit = 8);
/// Returns "; did you mean NAME?" for the nearest name that differs in at most two letters, or "" if there is
/// none.
std::string suggest(std::string_view written, const std::vector<std::string>& names);

} // namespace tgx
