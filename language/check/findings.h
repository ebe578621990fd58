#pragma once

#include "language/check/script.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace script_check {

/// Collects what is found. A place has each kind of fault once: a subroutine that runs often is told of once.
class Findings {
public:
    /// About a token of a line, 0 the keyword. code has to stand in the table of codes.
    /// cause: a line that fails, which this may follow from; it is told of first.
    void add(const char* code, const Script& script, int line, int token, std::string text,
             LineRef cause = {});
    void add(const char* code, const Script& script, int line, std::string text)
    {
        add(code, script, line, 0, std::move(text));
    }
    void add(script_text::Diagnostic found, LineRef cause = {});
    /// The end of the line that is the cause of a finding; nothing where none is known.
    std::optional<script_text::Place> causeOf(const script_text::Diagnostic& found) const;

    /// The one of names that was meant, or nothing. To look takes time: after some hundreds it is always
    /// nothing.
    std::string_view nearest(std::string_view word, const std::vector<std::string_view>& names);
    /// "; did you mean X?", or nothing.
    std::string didYouMean(std::string_view word, const std::vector<std::string_view>& names);

    std::vector<script_text::Diagnostic> all;

private:
    using Key = std::tuple<std::string, int, int, std::string_view>; // file, line, column, code
    static Key keyOf(const script_text::Diagnostic& found);

    std::map<Key, LineRef> causes; // of all that have been found
    int suggestions = 0;
};

/// "; did you mean X?", or nothing for nothing.
std::string didYouMean(std::string_view near);

} // namespace script_check
