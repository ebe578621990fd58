#pragma once

#include "devtools/export.h"
#include "platform/display/keys.h"

#include <memory>
#include <string>
#include <vector>

class AMainWin;
class Workbench;

struct DevToolsOptions {
    /// The game's main script, by its name below UIG.
    std::string script = "script.tgx";
    /// Whether it is read behind startup when the interface is read anew: for a game whose startup does not
    /// read it.
    bool readsScript = false;
    /// Folders with the text form of scripts, besides UIG itself: where one holds "menu.tgs", what is
    /// compiled of that stands in for "menu.tgx", which need not be there.
    std::vector<std::string> sources = {};
    /// Where pictures and recordings go; empty: the working directory.
    std::string outDirectory = {};
    /// Whether a changed script or picture is read again.
    bool reloads = true;

    // Virtual key codes; 0: none.
    int inspectorKey = VK_F12;
    int fullScreenKey = VK_F11;
    int pictureKey = VK_F10;
    int recorderKey = VK_F9;
    int screensKey = VK_F8;
};

/// What an author of an interface sees while a game runs: the interface is read again when a script or a
/// picture changes, an inspector names windows, input is recorded as events for tgx play. The game takes no
/// notice of it: its keys do not reach the game, and what it shows is in no picture, trace or tree of it.
///
///     MyGame game;
///     DevTools devTools(game);
///     app.mainWin = &game;
///     return app.Run();
///
/// One at a time. It stands between the game and the host: made before the window is opened, or while it is.
class TGX_DEVTOOLS_API DevTools {
public:
    /// game is not owned and has to live longer. Raises std::runtime_error for a folder of sources that is
    /// not there.
    explicit DevTools(AMainWin& game, DevToolsOptions options = {});
    ~DevTools();
    DevTools(const DevTools&) = delete;
    DevTools& operator=(const DevTools&) = delete;

private:
    std::unique_ptr<Workbench> workbench;
};
