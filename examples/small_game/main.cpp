#include "game.h"

class Game : public LobsterWindow {
public:
    using LobsterWindow::LobsterWindow;

    int startup() override
    {
        LobsterWindow::startup();
        readScriptFile("script.tgx", GetModuleHandleA(nullptr), mainScript, "", 1);
        return 1;
    }
};

int main()
{
    // The names of the program and the company determine where settings are stored.
    AControlsApp app("Lobster Bay", "TGX Examples", "1.0");
    Game game(640, 400, 32);
    app.mainWin = &game;
    return app.Run();
}
