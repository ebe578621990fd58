#include "language/check/findings.h"

#include "language/check/codes.h"
#include "language/text/statement_form.h"

#include <algorithm>

namespace tgx::script_check {

namespace {

// Searching for suggestions takes time, and a file with more unknown names than this is not a script.
constexpr int maxSuggestions = 200;
constexpr std::size_t maxNames = 2000; // compared for one suggestion

} // namespace

void Findings::add(const char* code, const Script& script, int line, int token, std::string text,
                   LineRef cause)
{
    if (!script.isReported)
        return;
    const script_text::StatementLine& at = script.line(line);
    const auto last = static_cast<int>(at.tokens.size()) - 1;
    if (last < 0)
        return; // a line without a token cannot have findings
    const Code* row = codeCalled(code);
    add({row ? row->severity : script_text::Diagnostic::Error,
         at.placeOf(static_cast<std::size_t>(std::clamp(token, 0, last))), std::move(text), code},
        cause);
}

Findings::Key Findings::keyOf(const script_text::Diagnostic& found)
{
    return {found.place.in->file->name, found.place.line, found.place.at.column, found.code};
}

void Findings::add(script_text::Diagnostic found, LineRef cause)
{
    if (causes.emplace(keyOf(found), cause).second)
        all.push_back(std::move(found));
}

std::optional<script_text::Place> Findings::causeOf(const script_text::Diagnostic& found) const
{
    const auto known = causes.find(keyOf(found));
    if (known == causes.end() || !known->second)
        return std::nullopt;
    const LineRef cause = known->second;
    const script_text::StatementLine& at = cause.script->line(cause.line);
    return at.placeOf(at.tokens.size() - 1);
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

} // namespace tgx::script_check
