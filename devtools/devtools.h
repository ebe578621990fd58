#pragma once

#include "devtools/export.h"
#include "platform/display/keys.h"

#include <memory>
#include <string>
#include <vector>

class AMainWin;

namespace tgx {

class Workbench;

struct DevToolsOptions {
    /// Name of the game's main script below UIG.
    std::string script = "script.tgx";
    /// Whether a reload reads the main script after startup, for a game whose startup does not read it.
    bool readsScript = false;
    /// Folders with the text form of scripts, in addition to UIG itself. A "menu.tgs" in one of them is
    /// compiled in memory and replaces "menu.tgx", which need not exist.
    std::vector<std::string> sources = {};
    /// Folder for pictures and recordings; empty: the working directory.
    std::string outDirectory = {};
    /// Whether changed scripts and pictures are reloaded.
    bool reloads = true;

    // Virtual key codes; 0: none.
    int inspectorKey = VK_F12;
    int fullScreenKey = VK_F11;
    int pictureKey = VK_F10;
    int recorderKey = VK_F9;
    int screensKey = VK_F8;
};

/// Tools for the author of an interface while the game runs: they reload the interface when a script or a
/// picture changes, show an inspector, and record input as events for tgx play. The game does not notice
/// them: their keys do not reach it, and nothing that they show appears in its pictures, traces or trees.
///
///     MyGame game;
///     DevTools devTools(game);
///     app.mainWin = &game;
///     return app.Run();
///
/// Only one may exist at a time. It is inserted between the game and the host, before the window is opened or
/// while it is open.
class TGX_DEVTOOLS_API DevTools {
public:
    /// Does not own game, which must live longer. Raises std::logic_error if it has devtools already. A
    /// missing folder of sources is reported over the game's picture.
    explicit DevTools(AMainWin& game, DevToolsOptions options = {});
    ~DevTools();
    DevTools(const DevTools&) = delete;
    DevTools& operator=(const DevTools&) = delete;

private:
    std::unique_ptr<Workbench> workbench;
};

} // namespace tgx
