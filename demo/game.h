#pragma once

#include "tgx/frame/mainwin.h"
#include "tgx/wnd/screen.h"
#include "tgx/wnd/window_cast.h"

/// Sets the directory of the demo's scripts, pictures and fonts: the first command line argument that is not
/// an option, else the environment variable TGX_DEMO_DATA, else the build tree. Must be called before the
/// main window is made.
void useDemoData(int argc, char** argv);

/// A panel that slides in from off the screen and slows down towards its place. It starts with the first
/// frame after initialise or returned; until then its position is the place where it will come to rest.
class SlidingPanel : public AWnd {
public:
    enum From { Left, Right, Below };
    SlidingPanel(const CString& name, int x, int y, int width, int height, From from);
    void draw(int frameStep) override;
    void initialise() override;
    void returned() override;

private:
    void enter();
    void brake();
    void arrive();

    From from;
    unsigned entering : 1 = 0; // the next frame starts the movement
    unsigned sliding : 1 = 0;
};

/// A ship that crosses the picture at one pixel per tick and drops anchor at its place.
class SailingShip : public AWnd {
public:
    SailingShip(const CString& name, int x, int y, int width, int height);
    void initialise() override;
};

/// A screen of the demo. A click on a window whose id is "GO_" followed by the name of a screen opens that
/// screen.
class HarbourScreen : public AScreen {
public:
    using AScreen::AScreen;
    int handleMouseAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;

protected:
    /// Returns a window that the screen cannot do without. If the script leaves it out or makes it of another
    /// class, throws the exception for an invalid argument, which ends the tick or frame.
    template<class T>
    T& part(const char* name)
    {
        T* found = windowAs<T>(getWnd(name, 1));
        if (!found)
            AfxThrowInvalidArgException();
        return *found;
    }
    /// Shows text in the window with that id, if there is one.
    void showText(const char* window, const char* text);
    /// Returns whether this is a press or click on the titles of that list. It must not reach the row that
    /// may have been scrolled away below them.
    static bool isClickOnTitles(const AListBox& titled, const AWnd* wnd, int y, E_MOUSEACTION action);
};

/// The chart. A panel beside it describes the port under the pointer.
class ChartScreen : public HarbourScreen {
public:
    using HarbourScreen::HarbourScreen;
    int handleMouseAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;
};

/// The options. The values of the bars are shown beside them, and changes can be saved.
class OptionsScreen : public HarbourScreen {
public:
    using HarbourScreen::HarbourScreen;
    void startup() override;
    void draw(int frameStep) override;
    int handleMouseAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;
};

/// The demo's main window. It knows the classes that the scripts name, and which script contains a screen.
class HarbourWindow : public AMainWin {
public:
    using AMainWin::AMainWin;
    AWnd* createNewWindow(const CString& id, int x, int y, int w, int h, const CString& className) override;
    AWnd* readScriptFile(const CString& name, HINSTANCE instance, unsigned resourceId,
                         const CString& toWindow, int finalRead) override;
};

/// The main window of the game itself, which reads its script at startup.
class HarbourGame : public HarbourWindow {
public:
    HarbourGame() : HarbourWindow(1024, 768, 32) {}
    int startup() override;
};
