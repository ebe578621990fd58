#include "language/check/output.h"

#include <nlohmann/json.hpp>

namespace tgx::script_check {

namespace {

using nlohmann::ordered_json;
using script_text::Diagnostic;

ordered_json objectOf(const Diagnostic& finding)
{
    const script_text::Place& place = finding.place;
    ordered_json out{{"file", place.in->file->name},
                     {"line", place.line},
                     {"column", place.at.column},
                     {"endColumn", place.at.column + place.at.length},
                     {"severity", finding.severity == Diagnostic::Error ? "error" : "warning"},
                     {"code", finding.code},
                     {"message", finding.text},
                     {"includedFrom", ordered_json::array()}};
    for (const script_text::Inclusion* each = place.in; each->from; each = each->from)
        out["includedFrom"].push_back(
            {{"file", each->from->file->name}, {"line", each->line}, {"column", each->at.column}});
    return out;
}

} // namespace

std::string asText(const Diagnostic& finding, script_text::Colour colour)
{
    Diagnostic withCode = finding;
    withCode.text += std::string(" [") + finding.code + ']';
    return script_text::describe(withCode, colour);
}

std::string asJson(const std::vector<const Diagnostic*>& findings)
{
    ordered_json out = ordered_json::array();
    for (const Diagnostic* each : findings)
        out.push_back(objectOf(*each));
    // A file name need not be UTF-8.
    return out.dump(2, ' ', false, ordered_json::error_handler_t::replace) + '\n';
}

} // namespace tgx::script_check
