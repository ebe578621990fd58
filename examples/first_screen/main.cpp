#include "tgx/frame/mainwin.h"

class FirstWindow : public AMainWin {
public:
    using AMainWin::AMainWin;
    int startup() override
    {
        AMainWin::startup();
        // The file below UIG if there is one, else the script that the build put into the program.
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
