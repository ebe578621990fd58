#pragma once

#include "language/text/parsed_script.h"
#include "tgx/script/vocabulary.h"

#include <string>
#include <string_view>
#include <vector>

/// What the vocabulary says of a line, in words.
namespace script_text {

/// The keyword and its arguments, those that may be left out in brackets:
/// POINTER "window" ["script"].
std::string expectedForm(const Statement& statement);
/// "6 or 10", "2 or more", "no".
std::string allowedArguments(const TokenCounts& counts);

struct LineFault {
    std::size_t token; // the first one that is wrong, 0 the keyword
    std::string text;
    const char* code; // as in Diagnostic
};
/// Why the toolkit would refuse a line of these tokens, or read an argument as 0 or as an empty text.
/// Empty when it would not; also for no token at all.
std::vector<LineFault> lineFaults(const std::vector<Token>& tokens);

/// The one of names that word was probably meant to be; empty when none is near. Case counts for nothing.
std::string_view nearest(std::string_view word, const std::vector<std::string_view>& names);

} // namespace script_text
