#pragma once

#include "devtools/overlay.h"
#include "devtools/sources.h"
#include "platform/display/input_queue.h"

#include <string>
#include <vector>

class AMainWin;

namespace tgx {

/// A screen that a script defines, and the script's name below UIG.
struct NamedScreen {
    std::string id;
    std::string script;
    bool operator==(const NamedScreen&) const = default;
};

/// Returns the screens with a name: those of the main script, those of the other scripts, and those that the
/// game has read from embedded scripts.
std::vector<NamedScreen> screensOf(AMainWin& game, const Sources& sources, const std::string& mainScript);

/// A list of all screens over the game's picture. While it is open, the keyboard belongs to it: arrows, Home
/// and End choose, a letter goes to the next id that begins with it, Return goes to
/// the chosen screen, Escape closes the list.
class ScreenChooser {
public:
    /// Neither is owned.
    ScreenChooser(AMainWin& mainWin, const Sources& scriptSources, std::string mainScriptName)
        : game(mainWin), sources(scriptSources), mainScript(std::move(mainScriptName))
    {}
    bool isOpen() const { return !screens.empty(); }
    /// Opens the list on the active screen. Returns false when there is no screen.
    bool open();
    void close() { screens.clear(); }
    void keyPressed(int code);
    void paint(Overlay& overlay) const;

private:
    void choose(int index);
    void chooseByLetter(char letter);
    void go();

    AMainWin& game;
    const Sources& sources;
    std::string mainScript;
    std::vector<NamedScreen> screens; // empty while the list is closed
    int chosen = 0;
};

} // namespace tgx
