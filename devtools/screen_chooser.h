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

/// A list of all screens over the game's picture. While it is open it gets the keyboard: arrows, Home and End
/// select, a letter selects the next id that begins with it, Return opens the selected screen, and Escape
/// closes the list.
class ScreenChooser {
public:
    /// Owns neither the main window nor the sources.
    ScreenChooser(AMainWin& mainWin, const Sources& scriptSources, std::string mainScriptName)
        : game(mainWin), sources(scriptSources), mainScript(std::move(mainScriptName))
    {}
    bool isOpen() const { return !screens.empty(); }
    /// Opens the list with the active screen selected. Returns false if there is no screen.
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
