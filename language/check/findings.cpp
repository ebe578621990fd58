#include "language/check/findings.h"

#include "language/check/codes.h"
#include "language/text/statement_form.h"

#include <algorithm>

namespace script_check {

namespace {

// Searching for suggestions takes time, and a file with more unknown names than this is not a script.
constexpr int maxSuggestions = 200;
constexpr std::size_t maxNames = 2000; // compared for one suggestion

} // namespace

void Findings::add(const char* code, const Script& script, int line, int token, std::string text)
{
    if (!script.isReported)
        return;
    const script_text::StatementLine& at = script.line(line);
    const auto last = static_cast<int>(at.tokens.size()) - 1;
    if (last < 0)
        return; // a line without a token cannot have findings
    const Code* row = codeCalled(code);
    add({row ? row->severity : script_text::Diagnostic::Error,
         at.placeOf(static_cast<std::size_t>(std::clamp(token, 0, last))), std::move(text), code});
}

void Findings::add(script_text::Diagnostic found)
{
    const script_text::Place& place = found.place;
    if (places.emplace(place.in->file->name, place.line, place.at.column, found.code).second)
        all.push_back(std::move(found));
}

std::string_view Findings::nearest(std::string_view word, const std::vector<std::string_view>& names)
{
    if (suggestions == maxSuggestions || names.size() > maxNames)
        return {};
    ++suggestions;
    return script_text::nearest(word, names);
}

std::string Findings::didYouMean(std::string_view word, const std::vector<std::string_view>& names)
{
    return script_check::didYouMean(nearest(word, names));
}

std::string didYouMean(std::string_view near)
{
    return near.empty() ? "" : "; did you mean " + inQuotes(near) + "?";
}

} // namespace script_check
