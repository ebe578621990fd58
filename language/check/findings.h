#pragma once

#include "language/check/script.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace tgx::script_check {

/// Collects findings. Reports each code once per place, even if a subroutine runs more often.
class Findings {
public:
    /// Adds a finding about a token of a line, 0 for the keyword. code must be in the table of codes. cause:
    /// a line that failed and may have led to this; its findings come first.
    void add(const char* code, const Script& script, int line, int token, std::string text,
             LineRef cause = {});
    void add(const char* code, const Script& script, int line, std::string text)
    {
        add(code, script, line, 0, std::move(text));
    }
    void add(script_text::Diagnostic found, LineRef cause = {});
    /// The end of the line that is the cause of a finding; nothing where none is known.
    std::optional<script_text::Place> causeOf(const script_text::Diagnostic& found) const;

    /// Returns the name that was probably meant, or an empty text. Searching takes time, so the number of
    /// searches is limited; after that the result is always empty.
    std::string_view nearest(std::string_view word, const std::vector<std::string_view>& names);
    /// Returns "; did you mean X?", or an empty text.
    std::string didYouMean(std::string_view word, const std::vector<std::string_view>& names);

    std::vector<script_text::Diagnostic> all;

private:
    using Key = std::tuple<std::string, int, int, std::string_view>; // file, line, column, code
    static Key keyOf(const script_text::Diagnostic& found);

    std::map<Key, LineRef> causes; // of all that have been found
    int suggestions = 0;
};

/// Returns "; did you mean X?", or an empty text if near is empty.
std::string didYouMean(std::string_view near);

} // namespace tgx::script_check
