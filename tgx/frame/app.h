#pragma once

#include "platform/display/app.h"
#include "platform/framework/cstring.h"
#include "platform/framework/cwinapp.h"
#include "tgx/export.h"

class AMainWin;

/// Whether interface sounds are on; initially 1. For the game's use: the toolkit neither reads nor writes it.
extern TGX_API int gInterfaceSound;

/// The application object. A game's main constructs it, hands it a main window and calls Run:
///
///     AControlsApp app("Harbour", "Example Games", "1.0");
///     MyMainWin window(640, 480, 32);
///     app.mainWin = &window;
///     return app.Run();
class TGX_API AControlsApp : public CWinApp {
public:
    /// Sets pApp to this object. program and company determine where settings are stored; without a program
    /// none are stored.
    explicit AControlsApp(const CString& program = "", const CString& company = "",
                          const CString& version = "");
    ~AControlsApp() override;

    /// Runs mainWin until it is closed. Returns the exit status for main.
    int Run() override;

    AMainWin* mainWin = nullptr; // not owned; set by the game
    CString programName;
    CString companyName;
    CString version;

    /// Returns the string's buffer, which is valid until the string changes.
    char* getProgramName() { return programName.GetBuffer(); }
    char* getCompanyName() { return companyName.GetBuffer(); }
    char* getVersion() { return version.GetBuffer(); }
};

/// Returns the main window, pApp->mainWin, or null while there is none.
inline AMainWin* getMainWin()
{
    return pApp ? pApp->mainWin : nullptr;
}
