#pragma once

#include "player/export.h"
#include "tgx/script/observer.h"

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

class AMainWin;

namespace tgx {

/// Finds the line of a script that a message of the toolkit is about. Listens to the reads of a main window,
/// as long as it lives.
class TGX_PLAYER_INTERNAL MessagePlaces : public ScriptObserver {
public:
    /// game is not owned and has to live longer.
    explicit MessagePlaces(AMainWin& game);
    ~MessagePlaces() override;
    MessagePlaces(const MessagePlaces&) = delete;
    MessagePlaces& operator=(const MessagePlaces&) = delete;
    void lineExecuted(const ExecutedLine& line) override;

    /// The interface is about to be read again.
    void clear() { named.clear(); }

    /// The line that is being carried out, or else the first one that named the file that cannot be loaded.
    /// Asked while the message is shown.
    std::optional<ScriptPlace> find(std::string_view message) const;

private:
    AMainWin& game;
    std::unordered_map<std::string, ScriptPlace> named; // by file, in lower case
};

/// Whether a message gives the number of a script's line.
TGX_PLAYER_INTERNAL bool isAboutALine(std::string_view message);

} // namespace tgx
