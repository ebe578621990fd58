#pragma once

#include "tgx/frame/mainwin.h"
#include "tgx/wnd/screen.h"
#include "tgx/wnd/window_cast.h"

/// Where the demo's scripts, pictures and fonts lie: the first command line argument that is no option, else
/// the environment's TGX_DEMO_DATA, else the build tree. To be called before the main window is made.
void useDemoData(int argc, char** argv);

/// A panel that comes in from off the screen and slows down towards its place. It starts with the first frame
/// behind initialise or returned, so that whoever asks for its position before then gets the place where it
/// will rest.
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

/// A ship that crosses the picture at one pixel a tick and drops anchor at its place.
class SailingShip : public AWnd {
public:
    SailingShip(const CString& name, int x, int y, int width, int height);
    void initialise() override;
};

/// A screen of the demo. A click on a window whose id is "GO_" and the name of a screen opens that screen, if
/// there is one.
class HarbourScreen : public AScreen {
public:
    using AScreen::AScreen;
    int handleMouseAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;

protected:
    /// A window that the screen cannot do without. A script that leaves it out, or makes it of another class,
    /// ends the tick or frame that asks, by the exception for an invalid argument.
    template<class T>
    T& part(const char* name)
    {
        T* found = windowAs<T>(getWnd(name, 1));
        if (!found)
            AfxThrowInvalidArgException();
        return *found;
    }
    /// Writes text into the window of that id, if there is one.
    void tell(const char* window, const char* text);
    /// Whether this is a press or click on the titles of that list: it is not to reach the row that may have
    /// been scrolled away behind them.
    static bool clicksTitles(const AListBox& titled, const AWnd* wnd, int y, E_MOUSEACTION action);
};

/// The chart: what is pointed at is told in the panel beside it.
class ChartScreen : public HarbourScreen {
public:
    using HarbourScreen::HarbourScreen;
    int handleMouseAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;
};

/// The options: the values of the bars are written beside them, and a change can be kept.
class OptionsScreen : public HarbourScreen {
public:
    using HarbourScreen::HarbourScreen;
    void startup() override;
    void draw(int frameStep) override;
    int handleMouseAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;
};

/// The demo's main window: it knows the classes that the scripts name, and which script holds a screen.
class HarbourWindow : public AMainWin {
public:
    using AMainWin::AMainWin;
    AWnd* createNewWindow(const CString& id, int x, int y, int w, int h, const CString& className) override;
    AWnd* readScriptFile(const CString& name, HINSTANCE instance, unsigned resourceId,
                         const CString& toWindow, int finalRead) override;
};

/// The main window as the game runs it: it reads its script by itself.
class HarbourGame : public HarbourWindow {
public:
    HarbourGame() : HarbourWindow(1024, 768, 32) {}
    int startup() override;
};
