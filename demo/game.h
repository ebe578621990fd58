#pragma once

#include "tgx/frame/mainwin.h"
#include "tgx/wnd/screen.h"

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

    From from;
    unsigned entering : 1 = 0; // the next frame starts the movement
};

/// A ship that crosses the picture at one pixel a tick and drops anchor at its place.
class SailingShip : public AWnd {
public:
    SailingShip(const CString& name, int x, int y, int width, int height);
    void initialise() override;
};

/// A plate with text whose bitmap strip has a frame for at rest, pointed at and pressed.
class Label : public AWnd {
public:
    enum Look { AtRest = 0, PointedAt = 1, Pressed = 2 };
    Label(const CString& name, int x, int y, int width, int height);
    int handleMouseAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;
    int handleLostFocus() override;

private:
    void show(Look look);
};

/// A screen of the demo. A click on a window whose id is "GO_" and the name of a screen opens that screen.
class HarbourScreen : public AScreen {
public:
    using AScreen::AScreen;
    int handleMouseAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;
};

/// The chart: what is pointed at is told in the panel beside it.
class ChartScreen : public HarbourScreen {
public:
    using HarbourScreen::HarbourScreen;
    int handleMouseAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;

private:
    void tell(const char* window, const char* text);
};

/// The demo's main window: it knows the classes that the scripts name.
class HarbourWindow : public AMainWin {
public:
    using AMainWin::AMainWin;
    AWnd* createNewWindow(const CString& id, int x, int y, int w, int h, const CString& className) override;
};

/// The main window as the game runs it: it reads its script by itself.
class HarbourGame : public HarbourWindow {
public:
    HarbourGame() : HarbourWindow(1024, 768, 32) {}
    int startup() override;
};
