#include "demo/game.h"

#include "platform/system/datadir.h"

#include <algorithm>
#include <cstdlib>

void useDemoData(int argc, char** argv)
{
    const char* folder = std::getenv("TGX_DEMO_DATA");
    for (int i = 1; i < argc; ++i) {
        if (argv[i][0] != '-') {
            folder = argv[i];
            break;
        }
    }
    setDataDirectory(folder ? folder : DEMO_DATA_DIR);
}

AWnd* HarbourWindow::createNewWindow(const CString& id, int x, int y, int w, int h, const CString& className)
{
    if (className == "FromLeft")
        return new SlidingPanel(id, x, y, w, h, SlidingPanel::Left);
    if (className == "FromRight")
        return new SlidingPanel(id, x, y, w, h, SlidingPanel::Right);
    if (className == "FromBelow")
        return new SlidingPanel(id, x, y, w, h, SlidingPanel::Below);
    if (className == "Label")
        return new Label(id, x, y, w, h);
    if (className == "Ship")
        return new SailingShip(id, x, y, w, h);
    if (className == "CHART")
        return new ChartScreen(id, x, y, w, h);
    if (className == "TITLE" || className == "COMPANY")
        return new HarbourScreen(id, x, y, w, h);
    return nullptr;
}

int HarbourGame::startup()
{
    HarbourWindow::startup();
    readScriptFile("script.tgx", GetModuleHandleA(nullptr), 141, "", 1);
    return 1;
}

// SlidingPanel

SlidingPanel::SlidingPanel(const CString& name, int x, int y, int width, int height, From side)
    : AWnd(WND_PLAIN, name, x, y, width, height), from(side)
{}

void SlidingPanel::initialise()
{
    AWnd::initialise();
    entering = 1;
}

void SlidingPanel::returned()
{
    AWnd::returned();
    entering = 1;
}

void SlidingPanel::draw(int frameStep)
{
    if (entering)
        enter();
    else if (frameStep > 0)
        brake();
    AWnd::draw(frameStep);
}

void SlidingPanel::enter()
{
    entering = 0;
    int startX = from == Left    ? -posX(1) - getWndWidth()
                 : from == Right ? getMainWin()->screenWidth - posX(1)
                                 : 0;
    int startY = from == Below ? getMainWin()->screenHeight - posY(1) : 0;
    setMoveAnimation(startX, startY, 0, 0, ZnFixed(), ZnFixed(), 1);
}

void SlidingPanel::brake()
{
    APhysicalAnim* movement = getAnim();
    if (!movement)
        return;
    // A sixth of what is left each tick, whole pixels; the last few pixels one by one.
    auto step = [](int offset) {
        int pixels = std::max(std::abs(offset) / 6, 1);
        return ZnFixed::fromInt(offset > 0 ? -pixels : offset < 0 ? pixels : 0);
    };
    int x = movement->getAnimOffsetX(), y = movement->getAnimOffsetY();
    setMoveAnimation(x, y, 0, 0, step(x), step(y), 1);
}

// SailingShip

SailingShip::SailingShip(const CString& name, int x, int y, int width, int height)
    : AWnd(WND_PLAIN, name, x, y, width, height)
{}

void SailingShip::initialise()
{
    AWnd::initialise();
    setMoveAnimation(-posX(1) - getWndWidth() / 2, 0, 0, 0, ZnFixed::fromInt(1), ZnFixed(), 1);
}

// Label

Label::Label(const CString& name, int x, int y, int width, int height)
    : AWnd(WND_PLAIN, name, x, y, width, height)
{}

int Label::handleMouseAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action)
{
    AWnd::handleMouseAction(subject, wnd, x, y, action);

    if (wnd != this || action == MA_KEY)
        return 0;
    show(action == MA_LBUTTONDOWN ? Pressed : PointedAt);
    return 1;
}

int Label::handleLostFocus()
{
    show(AtRest);
    return AWnd::handleLostFocus();
}

void Label::show(Look look)
{
    setCurrentFrame(look);
    setTextOffset(0, look == Pressed ? 2 : 0);
}

// Screens

int HarbourScreen::handleMouseAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action)
{
    if (AScreen::handleMouseAction(subject, wnd, x, y, action))
        return 1;
    if (action != MA_LBUTTONUP)
        return 0;
    if (subject == "QUIT") {
        getMainWin()->exitProgram();
        return 1;
    }
    if (subject.Left(3) == "GO_") {
        getMainWin()->changeScreen(subject.Mid(3), 0, 141, "script.tgx");
        return 1;
    }
    return 0;
}

namespace {

const struct PortNotes {
    const char* id;
    const char* name;
    const char* trade;
    const char* notes;
    const char* ship; // picture of the one that calls there
} ports[] = {
    {"PORT_ELLERY", "Port Ellery", "Home port", "Our own quay, and the office above the chandler's.",
     "art\\biddy.png"},
    {"PORT_QUILL", "Quill Haven", "Slate and wool",
     "A stone mole, deep water at any tide. The Alma calls on Mondays.", "art\\alma.png"},
    {"PORT_SOUND", "North Sound", "Timber", "Ice until March. It pays the best freight, and earns it.",
     "art\\alma.png"},
    {"PORT_BRANNOC", "St Brannoc", "Mail and passengers", "The islanders set their clocks by the Kestrel.",
     "art\\kestrel.png"},
    {"PORT_GANNET", "Gannet Rock", "Stores for the light",
     "No harbour: all goes up in a basket, the keeper too.", "art\\biddy.png"},
    {"PORT_FARHOLM", "Farholm", "Herring", "One night's sail. You smell it before you see it.",
     "art\\kestrel.png"},
};

} // namespace

int ChartScreen::handleMouseAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action)
{
    if (HarbourScreen::handleMouseAction(subject, wnd, x, y, action))
        return 1;
    for (const PortNotes& port : ports) {
        if (subject != port.id)
            continue;
        tell("PORT_NAME", port.name);
        tell("PORT_TRADE", port.trade);
        tell("PORT_NOTES", port.notes);
        if (AWnd* ship = getWnd("PORT_SHIP", 1))
            ship->setBmp(CString(port.ship));
        return 1;
    }
    return 0;
}

void ChartScreen::tell(const char* window, const char* text)
{
    if (AWnd* shown = getWnd(window, 1))
        shown->setWindowText(text);
}
