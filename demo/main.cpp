#include "demo/game.h"
#include "devtools/devtools.h"

#include <algorithm>
#include <optional>
#include <string_view>

int main(int argc, char** argv)
{
    useDemoData(argc, argv);
    AControlsApp app("Harbour", "TGX", "1.0");
    HarbourGame game;
    std::optional<DevTools> devTools;
    if (std::find(argv + 1, argv + argc, std::string_view("--devtools")) != argv + argc)
        devTools.emplace(game, DevToolsOptions{.sources = {DEMO_SCRIPT_DIR}});
    app.mainWin = &game;
    return app.Run();
}
