#pragma once

#include "language/check/script.h"

#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace script_check {

/// Collects findings. Reports each code once per place, even if a subroutine runs more often.
class Findings {
public:
    /// Adds a finding about a token of a line, 0 for the keyword. code must be in the table of codes.
    void add(const char* code, const Script& script, int line, int token, std::string text);
    void add(const char* code, const Script& script, int line, std::string text)
    {
        add(code, script, line, 0, std::move(text));
    }
    void add(script_text::Diagnostic found);

    /// Returns the name that was probably meant, or an empty text. Searching takes time, so the number of
    /// searches is limited; after that the result is always empty.
    std::string_view nearest(std::string_view word, const std::vector<std::string_view>& names);
    /// Returns "; did you mean X?", or an empty text.
    std::string didYouMean(std::string_view word, const std::vector<std::string_view>& names);

    std::vector<script_text::Diagnostic> all;

private:
    std::set<std::tuple<std::string, int, int, std::string_view>> places;
    int suggestions = 0;
};

/// Returns "; did you mean X?", or an empty text if near is empty.
std::string didYouMean(std::string_view near);

} // namespace script_check
