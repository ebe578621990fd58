#include "quay.h"

class Game : public QuayWindow {
public:
    using QuayWindow::QuayWindow;

    int startup() override
    {
        QuayWindow::startup();
        // Reads the file UIG/script.tgx if it exists, else the script that the build put into the program.
        readScriptFile("script.tgx", GetModuleHandleA(nullptr), 141, "", 1);
        return 1;
    }
};

int main()
{
    AControlsApp app("First button");
    Game game(480, 270, 32);
    app.mainWin = &game;
    return app.Run();
}
