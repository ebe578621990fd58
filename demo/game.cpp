#include "demo/game.h"

#include "demo/cargo.h"
#include "demo/fleet.h"
#include "demo/market.h"
#include "platform/framework/datadir.h"
#include "tgx/controls/button.h"
#include "tgx/controls/listbox/listbox.h"
#include "tgx/controls/scrollbar.h"
#include "tgx/wnd/window_cast.h"

#include <algorithm>
#include <cstdlib>
#include <string>

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

namespace {

template<class Screen>
AWnd* make(const CString& id, int x, int y, int w, int h)
{
    return new Screen(id, x, y, w, h);
}

const struct ScreenOfDemo {
    const char* name;
    AWnd* (*make)(const CString& id, int x, int y, int w, int h);
    const char* script;
} screens[] = {
    {"TITLE", make<HarbourScreen>, "script.tgx"},   {"COMPANY", make<HarbourScreen>, "script.tgx"},
    {"CHART", make<ChartScreen>, "script.tgx"},     {"FLEET", make<FleetScreen>, "fleet.tgx"},
    {"CARGO", make<CargoScreen>, "cargo.tgx"},      {"MARKET", make<MarketScreen>, "market.tgx"},
    {"OPTIONS", make<OptionsScreen>, "script.tgx"}, {"NEWGAME", make<HarbourScreen>, "script.tgx"},
};

const ScreenOfDemo* findScreen(const CString& name)
{
    for (const ScreenOfDemo& screen : screens)
        if (name == screen.name)
            return &screen;
    return nullptr;
}

} // namespace

AWnd* HarbourWindow::createNewWindow(const CString& id, int x, int y, int w, int h, const CString& className)
{
    if (className == "FromLeft")
        return new SlidingPanel(id, x, y, w, h, SlidingPanel::Left);
    if (className == "FromRight")
        return new SlidingPanel(id, x, y, w, h, SlidingPanel::Right);
    if (className == "FromBelow")
        return new SlidingPanel(id, x, y, w, h, SlidingPanel::Below);
    if (className == "Ship")
        return new SailingShip(id, x, y, w, h);
    const ScreenOfDemo* screen = findScreen(className);
    return screen ? screen->make(id, x, y, w, h) : nullptr;
}

/// Reads the script that contains the screen. Callers always pass the main script, also to return to a
/// screen.
AWnd* HarbourWindow::readScriptFile(const CString& name, HINSTANCE instance, unsigned resourceId,
                                    const CString& toWindow, int finalRead)
{
    const ScreenOfDemo* screen = findScreen(toWindow);
    return AMainWin::readScriptFile(screen ? CString(screen->script) : name, instance, resourceId, toWindow,
                                    finalRead);
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
    if (sliding && !getAnim())
        arrive();
}

void SlidingPanel::enter()
{
    entering = 0;
    sliding = 1;
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
    // Each tick covers a sixth of the remaining distance in whole pixels, the last few pixels one by one.
    auto step = [](int offset) {
        int pixels = std::max(std::abs(offset) / 6, 1);
        return ZnFixed::fromInt(offset > 0 ? -pixels : offset < 0 ? pixels : 0);
    };
    int x = movement->getAnimOffsetX(), y = movement->getAnimOffsetY();
    setMoveAnimation(x, y, 0, 0, step(x), step(y), 1);
}

/// Makes the next tick count as a movement of the pointer, so that a button that slid under it becomes hot.
void SlidingPanel::arrive()
{
    sliding = 0;
    getMainWin()->prevMouseX = -1;
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
        if (findScreen(subject.Mid(3)))
            getMainWin()->changeScreen(subject.Mid(3), 0, 141, "script.tgx");
        return 1;
    }
    return 0;
}

void HarbourScreen::showText(const char* window, const char* text)
{
    AWnd* shown = getWnd(window, 1);
    if (shown && shown->getWindowText() != text)
        shown->setWindowText(text);
}

bool HarbourScreen::isClickOnTitles(const AListBox& titled, const AWnd* wnd, int y, E_MOUSEACTION action)
{
    const bool clicks = action == MA_LBUTTONDOWN || action == MA_LBUTTONUP || action == MA_LBUTTONDBLCLK;
    return clicks && wnd == &titled && y < titled.getItemsStartPosY(1) + titled.getRowHeight();
}

namespace {

const struct PortNotes {
    const char* id;
    const char* name;
    const char* trade;
    const char* notes;
    const char* ship; // picture of the ship that calls there
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
        showText("PORT_NAME", port.name);
        showText("PORT_TRADE", port.trade);
        showText("PORT_NOTES", port.notes);
        if (AWnd* ship = getWnd("PORT_SHIP", 1))
            ship->setBmp(CString(port.ship));
        return 1;
    }
    return 0;
}

// OptionsScreen

namespace {

const struct Dial {
    const char* bar;
    const char* value; // window that shows the value
    int percent;       // initial value
} dials[] = {
    {"SOUND_SEA", "SOUND_SEA_NOW", 60},    {"SOUND_ENGINE", "SOUND_ENGINE_NOW", 35},
    {"SOUND_GULLS", "SOUND_GULLS_NOW", 5}, {"LIGHT_LAMP", "LIGHT_LAMP_NOW", 25},
    {"LIGHT_MOON", "LIGHT_MOON_NOW", 50},  {"LIGHT_FIRE", "LIGHT_FIRE_NOW", 80},
};

} // namespace

void OptionsScreen::startup()
{
    HarbourScreen::startup();
    // Startup resets a button's state, so it is disabled afterwards.
    if (AButton* keep = getButton("KEEP", 1))
        keep->setButtonState(AButton::BS_DISABLED);
    for (const Dial& dial : dials) {
        if (auto* bar = windowAs<AScrollBar>(getWnd(dial.bar, 1)))
            bar->setPercentage(ZnFixed::fromInt(dial.percent));
    }
}

void OptionsScreen::draw(int frameStep)
{
    // A bar whose lever is held captures the mouse, so the values are read in each frame.
    for (const Dial& dial : dials) {
        if (auto* bar = windowAs<AScrollBar>(getWnd(dial.bar, 1)))
            showText(dial.value, (std::to_string(bar->getPercentage().toInt()) + " %").c_str());
    }
    HarbourScreen::draw(frameStep);
}

int OptionsScreen::handleMouseAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action)
{
    if (HarbourScreen::handleMouseAction(subject, wnd, x, y, action))
        return 1;
    AButton* keep = getButton("KEEP", 1);
    if (action != MA_LBUTTONUP || !keep)
        return 0;
    CString family = subject.Left(5);
    if (family == "RULE_" || family == "COIN_" || subject.Left(4) == "SKY_") {
        if (keep->getButtonState() == AButton::BS_DISABLED)
            keep->setButtonState(AButton::BS_NORMAL);
        showText("NOTE", "Changed, and not yet kept.");
        return 1;
    }
    if (subject == "KEEP" && keep->isEnabled()) {
        keep->setButtonState(AButton::BS_DISABLED);
        showText("NOTE", "Kept, in ink.");
        return 1;
    }
    if (subject == "HORN") {
        showText("NOTE", "Somewhere in the fog, another horn answers.");
        return 1;
    }
    return 0;
}
