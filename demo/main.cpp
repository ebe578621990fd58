#include "demo/game.h"
#include "devtools/devtools.h"

#include <iostream>
#include <optional>
#include <string_view>

int main(int argc, char** argv)
{
    bool hasDevTools = false;
    for (int i = 1; i < argc; ++i) {
        const std::string_view word = argv[i];
        if (word == "--devtools") {
            hasDevTools = true;
        } else if (word.starts_with('-')) {
            std::cerr << "demo: no option " << word
                      << "; there is --devtools, and a folder of data may be named\n";
            return 2;
        }
    }
    useDemoData(argc, argv);
    AControlsApp app("Harbour", "TGX", "1.0");
    HarbourGame game;
    std::optional<tgx::DevTools> devTools;
    if (hasDevTools)
        devTools.emplace(game, tgx::DevToolsOptions{.sources = {DEMO_SCRIPT_DIR}});
    app.mainWin = &game;
    return app.Run();
}
