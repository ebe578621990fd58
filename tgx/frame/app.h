#pragma once

#include "platform/display/app.h"
#include "platform/framework/cstring.h"
#include "platform/framework/cwinapp.h"
#include "tgx/export.h"

class AMainWin;

/// For the game's use: whether interface sounds are on. The toolkit neither reads nor writes it. 1 at first.
extern TGX_API int gInterfaceSound;

/// The application object. A game's main constructs it, hands it a main window and calls Run:
///
///     AControlsApp app("Harbour", "Example Games", "1.0");
///     MyMainWin window(640, 480, 32);
///     app.mainWin = &window;
///     return app.Run();
class TGX_API AControlsApp : public CWinApp {
public:
    /// Becomes pApp. program and company say where settings are kept; without a program none are kept.
    explicit AControlsApp(const CString& program = "", const CString& company = "",
                          const CString& version = "");
    ~AControlsApp() override;

    /// Runs mainWin until it is closed. The exit status for main.
    int Run() override;

    AMainWin* mainWin = nullptr; // not owned; set by the game
    CString programName;
    CString companyName;
    CString version;

    /// The strings' buffers; valid until they change.
    char* getProgramName() { return programName.GetBuffer(); }
    char* getCompanyName() { return companyName.GetBuffer(); }
    char* getVersion() { return version.GetBuffer(); }
};

/// The main window, or null while there is none. Short for pApp->mainWin.
inline AMainWin* getMainWin()
{
    return pApp ? pApp->mainWin : nullptr;
}
