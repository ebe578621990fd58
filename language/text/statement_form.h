#pragma once

#include "language/text/parsed_script.h"
#include "tgx/script/vocabulary.h"

#include <string>
#include <string_view>
#include <vector>

/// Messages about a line, made from the vocabulary.
namespace tgx::script_text {

/// Returns the keyword and its arguments, with optional ones in brackets: POINTER "window" ["script"].
std::string expectedForm(const Statement& statement);
/// Returns the allowed numbers of arguments, such as "6 or 10", "2 or more" or "no".
std::string allowedArguments(const TokenCounts& counts);

struct LineFault {
    std::size_t token; // the first invalid token, 0 for the keyword
    std::string text;
    const char* code; // see Diagnostic::code
};
/// Returns the reasons why the toolkit would refuse a line of these tokens, or would read an argument as 0 or
/// as an empty text. Returns nothing for a valid line and for an empty one.
std::vector<LineFault> lineFaults(const std::vector<Token>& tokens);

/// Returns the name that word was probably meant to be, or an empty text if none is similar. Ignores case.
std::string_view nearest(std::string_view word, const std::vector<std::string_view>& names);

} // namespace tgx::script_text
