#include "player/message_places.h"

#include "platform/framework/text.h"
#include "tgx/frame/mainwin.h"

namespace tgx {

namespace {

constexpr std::string_view notLoaded = "cannot load ";

} // namespace

MessagePlaces::MessagePlaces(AMainWin& mainWin) : game(mainWin)
{
    game.addScriptObserver(*this);
}

MessagePlaces::~MessagePlaces()
{
    game.removeScriptObserver(*this);
}

void MessagePlaces::lineExecuted(const ExecutedLine& line)
{
    for (int i = 0; i < line.count && i < maxLineTokens; ++i)
        // Names of files have an ending.
        if (const std::string_view text = line.tokens[i].text.view(); text.find('.') != text.npos)
            named.try_emplace(lowercased(text), ScriptPlace{belowScriptFolder(line.path), line.offset});
}

std::optional<ScriptPlace> MessagePlaces::find(std::string_view message) const
{
    if (std::optional<ScriptPlace> present = game.getScriptPlace())
        return present;
    if (!message.starts_with(notLoaded))
        return std::nullopt;
    const auto found = named.find(lowercased(message.substr(notLoaded.size())));
    return found == named.end() ? std::nullopt : std::optional(found->second);
}

bool isAboutALine(std::string_view message)
{
    return message.starts_with("Encountered an error on line ");
}

} // namespace tgx
