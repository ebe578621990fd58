#include "demo/game.h"

int main(int argc, char** argv)
{
    useDemoData(argc, argv);
    AControlsApp app("Harbour", "TGX", "1.0");
    HarbourGame game;
    app.mainWin = &game;
    return app.Run();
}
