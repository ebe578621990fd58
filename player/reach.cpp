#include "player/reach.h"

#include "player/calls.h"
#include "player/words.h"
#include "tgx/frame/mainwin.h"
#include "tgx/wnd/inside.h"

namespace tgx {

namespace {

bool hasChild(AWnd& holder, const AWnd& wnd)
{
    for (int i = 0; i < holder.getWindowCount(); ++i)
        if (holder.getWndFromIndex(i, "") == &wnd)
            return true;
    return false;
}

bool isOpenPopup(AMainWin& win, const AWnd& wnd)
{
    for (int i = 0; i < win.getPopupWndCount(); ++i)
        if (win.getPopupWnd(i) == &wnd)
            return true;
    return false;
}

/// Returns the screen, popup or other top-level window that contains wnd, or wnd itself. An open popup counts
/// as a top-level window whatever its parent is; a window's parent need not have it as a child.
AWnd& topOf(AMainWin& win, AWnd& wnd)
{
    AWnd* top = &wnd;
    while (!isOpenPopup(win, *top)) {
        AWnd* parent = top->getParent();
        if (!parent || parent == win.getScreenList() || !hasChild(*parent, *top))
            break;
        top = parent;
    }
    return *top;
}

/// Returns "is hidden", or "is hidden because "PANEL" is hidden" if a window around wnd is the cause.
std::string causedBy(const char* state, const AWnd& wnd, const AWnd& cause)
{
    std::string text = std::string("is ") + state;
    return &wnd == &cause ? text : text + " because " + nameOf(cause) + " is " + state;
}

AWnd* inputTarget(AMainWin& win, int x, int y, PointerAct act)
{
    const AScreenList* root = win.getScreenList();
    if (!root)
        return nullptr;
    const auto isAlive = [&](AWnd* wnd) { return wnd && !root->isWndToBeDeleted(wnd); };
    int captured = 0;
    if (win.getMouseCaptureWndCount() > 0) {
        AWnd* top = win.getMouseCaptureWnd(0);
        // A release outside an edit box ends the typing.
        const bool isRelease = act == PointerAct::Release || act == PointerAct::Click;
        const bool endsTyping =
            isRelease && isAlive(top) && top->getWindowType() == AWnd::WND_EDITBOX && !top->pointInside(x, y);
        captured = endsTyping ? 1 : 0;
    }
    if (captured < win.getMouseCaptureWndCount() && isAlive(win.getMouseCaptureWnd(captured)))
        return win.getMouseCaptureWnd(captured);
    if (win.getPopupWndCount() > 0 && isAlive(win.getPopupWnd(0)))
        return win.getPopupWnd(0);
    return win.getActiveScreen();
}

/// Returns why a window outside the target gets no input.
std::string whyOutsideTarget(AMainWin& win, const AWnd& target)
{
    if (isOpenPopup(win, target))
        return "is behind the popup " + nameOf(target);
    if (&target == win.getActiveScreen())
        return "is not in front";
    return "gets no input: " + nameOf(target) + " has captured the pointer";
}

/// Returns why wnd, which is under the point, does not get the input; "" if it gets it or passes it on.
std::string whyNoInput(AMainWin& win, const AWnd& wnd, const Reach& reach)
{
    if (!wnd.isVisible(0))
        return "is hidden";
    if (!wnd.getEnabled())
        return "is disabled";
    if (isInside(reach.wnd, &wnd))
        return "";
    return isInside(&wnd, reach.target) ? "is covered by " + nameOf(*reach.wnd)
                                        : whyOutsideTarget(win, *reach.target);
}

/// Appends "; NAME REASON" for each window under the point that does not get the input. Windows inside a
/// hidden or disabled one are left out.
void addOthers(AMainWin& win, AWnd& wnd, const Reach& reach, int x, int y, std::string& text)
{
    if (!wnd.pointInside(x, y) && !isInside(reach.target, &wnd))
        return;
    const std::string reason = whyNoInput(win, wnd, reach);
    if (!reason.empty())
        text += "; " + nameOf(wnd) + ' ' + reason;
    if (!wnd.isVisible(0) || !wnd.getEnabled())
        return;
    for (int i = 0; i < wnd.getWindowCount(); ++i) {
        AWnd* child = wnd.getWndFromIndex(i, "");
        if (child && !isOpenPopup(win, *child))
            addOthers(win, *child, reach, x, y, text);
    }
}

std::string others(AMainWin& win, const Reach& reach, int x, int y)
{
    std::string text;
    for (int i = 0; i < win.getPopupWndCount(); ++i)
        addOthers(win, *win.getPopupWnd(i), reach, x, y, text);
    if (AScreen* screen = win.getActiveScreen())
        addOthers(win, *screen, reach, x, y, text);
    return text;
}

std::string at(int x, int y)
{
    return " at " + std::to_string(x) + ", " + std::to_string(y);
}

/// Returns "; "PANEL" is still moving" if wnd or a window around it is, else "".
std::string movementOf(const AWnd& wnd)
{
    const AWnd* moving = movingFrom(wnd);
    return moving ? "; " + nameOf(*moving) + " is still moving" : "";
}

} // namespace

const AWnd* movingFrom(const AWnd& wnd)
{
    const AWnd* moving = &wnd;
    while (moving && moving->isWndAnimFinished())
        moving = moving->getParent();
    return moving;
}

std::string nameOf(const AWnd& wnd)
{
    return wnd.getID().IsEmpty() ? "a window without an id" : quote(wnd.getID().view());
}

AWnd* findMeantWindow(AMainWin& win, const std::string& id)
{
    const auto findIn = [&](AWnd* top) -> AWnd* {
        if (top && CString::equalNoCase(top->getID().view(), id))
            return top;
        return top ? top->getWnd(CString(id), 1) : nullptr;
    };
    for (int i = 0; i < win.getPopupWndCount(); ++i)
        if (AWnd* wnd = findIn(win.getPopupWnd(i)))
            return wnd;
    if (AWnd* wnd = findIn(win.getActiveScreen()))
        return wnd;
    return findWindow(win, id);
}

Reach reachAt(AMainWin& win, int x, int y, PointerAct act)
{
    Reach reach;
    reach.target = inputTarget(win, x, y, act);
    if (!reach.target) {
        reach.hindrance = "no screen is active";
        return reach;
    }
    reach.wnd = reach.target->getWndAtPos(x, y, 1);
    if (!reach.wnd)
        reach.wnd = reach.target;

    AScreen* screen = win.getActiveScreen();
    const AWnd* pressed = win.getMouseDownWnd();
    const bool isPress = act == PointerAct::Press || act == PointerAct::Click;
    const bool typingEnds = win.getMouseCaptureWndCount() > 0 && win.getMouseCaptureWnd(0) != reach.target;
    if (!win.getPendingScreen().IsEmpty())
        reach.hindrance =
            "the change to the screen " + quote(win.getPendingScreen().view()) + " is under way";
    else if (!screen || !screen->isVisible(1) || !screen->isOpen())
        reach.hindrance = "the active screen is not open";
    else if (!isPress && pressed && pressed != reach.wnd && !typingEnds)
        reach.hindrance = "the press began on " + nameOf(*pressed);
    return reach;
}

std::string whyNotShown(AMainWin& win, AWnd& wnd)
{
    AWnd& top = topOf(win, wnd);
    const AScreen* active = win.getActiveScreen();
    if (&top != active && !isOpenPopup(win, top)) {
        const bool isScreen = top.getWindowType() == AWnd::WND_SCREEN;
        const std::string there = &top == &wnd ? "is"
                                               : std::string("is ") + (isScreen ? "on the screen " : "in ") +
                                                     nameOf(top) + ", which is";
        return there + (isScreen ? " not active" : " not open");
    }
    for (const AWnd* cause = &wnd; cause; cause = cause->getParent())
        if (!cause->isVisible(0))
            return causedBy("hidden", wnd, *cause);
    return "";
}

std::string whyDisabled(AWnd& wnd)
{
    for (const AWnd* cause = &wnd; cause; cause = cause->getParent())
        if (!cause->getEnabled())
            return causedBy("disabled", wnd, *cause);
    return "";
}

std::string whyNotReached(AMainWin& win, AWnd& wnd, int x, int y, PointerAct act)
{
    if (std::string reason = whyNotShown(win, wnd); !reason.empty())
        return reason;
    if (std::string reason = whyDisabled(wnd); !reason.empty())
        return reason;
    if (x < 0 || y < 0 || x >= win.screenWidth || y >= win.screenHeight)
        return "is off the screen" + at(x, y) + movementOf(wnd);
    const Reach reach = reachAt(win, x, y, act);
    if (!reach.hindrance.empty())
        return "gets no input: " + reach.hindrance;
    if (reach.wnd == &wnd)
        return "";
    if (!isInside(&wnd, reach.target))
        return whyOutsideTarget(win, *reach.target);
    for (const AWnd* holder = wnd.getParent(); holder; holder = holder->getParent())
        if (isInside(holder, reach.target) && holder != reach.target && !holder->pointInside(x, y))
            return "is outside " + nameOf(*holder) + at(x, y) + movementOf(wnd);
    return "is covered by " + nameOf(*reach.wnd) + at(x, y) + movementOf(wnd);
}

std::string describeReach(AMainWin& win, const std::string& name, int x, int y, PointerAct act)
{
    const Reach reach = reachAt(win, x, y, act);
    std::string text = name + at(x, y) + " reached ";
    if (!reach.hindrance.empty())
        return text + "nothing: " + reach.hindrance;
    return text + nameOf(*reach.wnd) + others(win, reach, x, y);
}

std::string describeKeyReach(AMainWin& win, const std::string& name, int x, int y)
{
    const Reach reach = reachAt(win, x, y, PointerAct::Point);
    if (!reach.target || !win.getPendingScreen().IsEmpty())
        return name + " reached nothing: " + reach.hindrance;
    return name + " went to " + nameOf(*reach.target) + ", the pointer" + at(x, y) + " on " +
           nameOf(*reach.wnd);
}

} // namespace tgx
