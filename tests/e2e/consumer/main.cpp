// consumer DIR: reads the main script, from DIR or from the executable, and checks the windows that it makes.

#include "platform/framework/datadir.h"
#include "platform/host/headless/headless_host.h"
#include "tgx/frame/mainwin.h"

#include <cstdio>
#include <memory>

namespace {

int missing(const char* what)
{
    std::fprintf(stderr, "consumer: %s\n", what);
    return 1;
}

bool isAnythingDrawn(const AMainWin& window)
{
    const Image& screen = window.getScreenImage();
    for (int y = 0; y < screen.height; ++y)
        for (int x = 0; x < screen.width; ++x)
            if ((screen.row(y)[x] & 0xFFFFFF) != 0)
                return true;
    return false;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2)
        return missing("expected one argument, the data directory");
    displayhost::use(std::make_unique<HeadlessHost>());
    setDataDirectory(argv[1]);

    AControlsApp app;
    AMainWin window(320, 200, 32);
    app.mainWin = &window;
    window.startup();
    window.readScriptFile("script.tgx", GetModuleHandleA(nullptr), 141, "", 1);
    for (int i = 0; i < 5; ++i) {
        window.runTick();
        window.runFrame();
    }

    if (!window.getActiveScreen() || window.getActiveScreen()->getID() != "MENU")
        return missing("the screen MENU is not active");
    const AWnd* greeting = window.getWnd("GREETING", 1);
    if (!greeting || greeting->getText() != "Ahoy")
        return missing("the window GREETING is missing or has another text");
    if (!isAnythingDrawn(window))
        return missing("the screen is black");
    return 0;
}
