#include "tgx/frame/mainwin.h"

class FirstWindow : public AMainWin {
public:
    using AMainWin::AMainWin;
    int startup() override
    {
        AMainWin::startup();
        // Reads the file UIG/script.tgx if it exists, else the script that the build put into the program.
        readScriptFile("script.tgx", GetModuleHandleA(nullptr), 141, "", 1);
        return 1;
    }
};

int main()
{
    AControlsApp app("First screen");
    FirstWindow window(640, 480, 32);
    app.mainWin = &window;
    return app.Run();
}
