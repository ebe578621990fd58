#pragma once

#include "language/check/script.h"

#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace script_check {

/// Collects what is found. A place has each kind of fault once: a subroutine that runs often is told of once.
class Findings {
public:
    /// About a token of a line, 0 the keyword. code has to stand in the table of codes.
    void add(const char* code, const Script& script, int line, int token, std::string text);
    void add(const char* code, const Script& script, int line, std::string text)
    {
        add(code, script, line, 0, std::move(text));
    }
    void add(script_text::Diagnostic found);

    /// The one of names that was meant, or nothing. To look takes time: after some hundreds it is always
    /// nothing.
    std::string_view nearest(std::string_view word, const std::vector<std::string_view>& names);
    /// "; did you mean X?", or nothing.
    std::string didYouMean(std::string_view word, const std::vector<std::string_view>& names);

    std::vector<script_text::Diagnostic> all;

private:
    std::set<std::tuple<std::string, int, int, std::string_view>> places;
    int suggestions = 0;
};

/// "; did you mean X?", or nothing for nothing.
std::string didYouMean(std::string_view near);

} // namespace script_check
