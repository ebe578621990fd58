#include "devtools/origins.h"

#include "devtools/sources.h"
#include "language/text/statement_form.h"
#include "platform/framework/cstring.h"
#include "player/reports.h"
#include "tgx/script/vocabulary.h"
#include "tgx/wnd/wnd.h"

#include <algorithm>

namespace tgx {

namespace {

constexpr std::size_t mostFailures = 50; // shown; more are likely to have the same cause

std::string whyFailed(const ExecutedLine& line, const Statement* statement)
{
    if (!statement)
        return line.count > 0 ? "there is no keyword " + std::to_string(line.tokens[0].id)
                              : "the line failed";
    if (!statement->counts.allow(line.count))
        return "expected: " + script_text::expectedForm(*statement);
    if (line.current && !statement->target.fits(line.current->getWindowType()))
        return std::string(statement->keyword) + " does not go with a " + classNameOf(*line.current);
    return std::string(statement->keyword) + " failed";
}

} // namespace

void Origins::lineExecuted(const ExecutedLine& line)
{
    const Statement* statement = line.count > 0 ? statementById(line.tokens[0].id) : nullptr;
    const std::string script = belowScriptFolder(line.path);
    if (line.depthChange == lineFailed && failures.size() < mostFailures) {
        std::string failure = placeIn(script, line.offset) + ": " + whyFailed(line, statement);
        if (std::find(failures.begin(), failures.end(), failure) == failures.end())
            failures.push_back(std::move(failure));
    }
    // A reference shows an existing window, whose origin is already known.
    if (line.made && statement && statement->kind != StatementKind::Reference)
        made.insert_or_assign(line.made, Made{line.made, script, line.offset, line.made->getID().str()});
}

std::string Origins::placeIn(const std::string& script, unsigned offset) const
{
    return sources.placeOf(script.empty() ? "(embedded script)" : script, offset);
}

const Origins::Made* Origins::find(const AWnd& wnd) const
{
    const auto found = made.find(&wnd);
    return found == made.end() || found->second.wnd.get() != &wnd ? nullptr : &found->second;
}

std::string Origins::placeOf(const AWnd& wnd) const
{
    const Made* origin = find(wnd);
    return origin ? placeIn(origin->script, origin->offset) : "";
}

std::string Origins::scriptOf(const AWnd& wnd) const
{
    const Made* origin = find(wnd);
    return origin && origin->id == wnd.getID().view() ? origin->script : "";
}

void Origins::clear()
{
    made.clear();
    failures.clear();
}

} // namespace tgx
