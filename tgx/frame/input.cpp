#include "platform/display/host.h"
#include "tgx/base/fixed.h"
#include "tgx/controls/button.h"
#include "tgx/controls/listbox/listbox.h"
#include "tgx/frame/mainwin.h"
#include "tgx/wnd/tabstops.h"
#include "tgx/wnd/window_cast.h"

#include <utility>

namespace {

bool isOfType(const AWnd* wnd, AWnd::E_WNDTYPE type)
{
    return wnd && wnd->getWindowType() == type;
}

/// Calls handleLostFocus from wnd upwards to the top of the tree.
void loseFocusFrom(AWnd* wnd)
{
    for (WndRef each = wnd; each;) {
        each->handleLostFocus();
        each = each ? each->getParent() : nullptr;
    }
}

} // namespace

// Handles one tick. The refs here become null if a handler deletes their window; a window that is only marked
// for deletion lives until the end of the tick.
void AMainWin::OnMouseAction()
{
    if (!screenList)
        return;

    flushMessages();
    if (std::exchange(pressCancelled, 0))
        mouseDownWnd = nullptr; // the pressed window returns to rest with the moves that now reach it
    if (nextDrawCount > 0 || !pendingScreen.IsEmpty()) {
        flushMessages(); // once more, because nothing else looks at the window while a change is pending
        dropLostInput();
        ddwin::OnMouseAction();
        return;
    }
    endTypingByClick();
    const WndRef screen = getActiveScreen();
    const WndRef target = inputTarget();
    if (screenList->isWndToBeDeleted(target))
        return; // without the base: the next tick has the same input
    if (!activeScreenTakesInput()) {
        ddwin::OnMouseAction();
        return;
    }
    const AWnd::E_MOUSEACTION action = chooseAction(target);
    if (target)
        moveFocus(target);
    if (target)
        dispatch(target, action);
    followUp(action, target, screen);
    ddwin::OnMouseAction();
}

/// A click outside the edit box that is being typed into ends the typing.
void AMainWin::endTypingByClick()
{
    if (!lButtonUp || mouseCaptureWnds.GetSize() == 0)
        return;
    const AWnd* top = aliveOrNull(mouseCaptureWnds[0]);
    if (isOfType(top, AWnd::WND_EDITBOX) && !top->pointInside(mouseX, mouseY))
        setMouseCaptureWnd(nullptr);
}

/// Returns whether the active screen is open, visible and not marked for deletion.
bool AMainWin::activeScreenTakesInput() const
{
    AScreen* screen = getActiveScreen();
    return screen && screen->isVisible(1) && screen->isOpen() && !screenList->isWndToBeDeleted(screen);
}

/// Does what follows the dispatch of an action: focus, press and selections that end with it, windows to
/// delete.
void AMainWin::followUp(AWnd::E_MOUSEACTION action, const WndRef& target, const WndRef& screen)
{
    if (screenList && curFocusWnd && screenList->isWndToBeDeleted(curFocusWnd))
        loseFocus();
    else
        prevFocusWnd = curFocusWnd;
    if (action == AWnd::MA_LBUTTONUP || action == AWnd::MA_LBUTTONDBLCLK)
        mouseDownWnd = nullptr;
    if (action == AWnd::MA_LBUTTONUP && !keepListSelection && target && curFocusWnd && curFocusWnd != screen)
        target->deselectAllListBoxes(isOfType(curFocusWnd, AWnd::WND_LISTBOX) ? curFocusWnd.get() : nullptr);
    if (screenList)
        screenList->deleteWndsPendingDelete();
    if (rButtonUp && keyCode == VK_END) {
        // The key that chooseAction made of the release.
        keyCode = 0;
        keyCode2 = 0;
    }
}

/// Drops input that arrived before a change or during a load: the user meant it for the screen that was shown
/// then.
void AMainWin::dropLostInput()
{
    displayhost& host = displayhost::current();
    if (host.dropsLostInput())
        host.input().dropAll(*this);
}

void AMainWin::OnKeyInput() {}

/// Returns wnd, or null if it is marked for deletion.
AWnd* AMainWin::aliveOrNull(AWnd* wnd) const
{
    return screenList->isWndToBeDeleted(wnd) ? nullptr : wnd;
}

AWnd* AMainWin::inputTarget() const
{
    if (mouseCaptureWnds.GetSize() > 0)
        if (AWnd* captured = aliveOrNull(mouseCaptureWnds[0]))
            return captured;
    if (popupWnds.GetSize() > 0)
        if (AWnd* popup = aliveOrNull(popupWnds[0]))
            return popup;
    return getActiveScreen();
}

/// Returns the first pending input, in this order. A key may be consumed here, by an edit box or by a move to
/// a tab stop.
AWnd::E_MOUSEACTION AMainWin::chooseAction(AWnd* target)
{
    if (lButtonDown)
        return AWnd::MA_LBUTTONDOWN;
    if (rButtonDown)
        return AWnd::MA_RBUTTONDOWN;
    if (mButtonDown)
        return AWnd::MA_MBUTTONDOWN;
    if (lButtonUp || keyCode == VK_RETURN)
        return AWnd::MA_LBUTTONUP;
    if (rButtonUp) {
        // A game's own screen: while it is disabled, the right button does not count as a key.
        const AWnd* match = screenList->getWnd("WMatchScreen", 1);
        if (match && !match->isEnabled())
            return AWnd::MA_MBUTTONDOWN; // no control reacts to it
        keyCode = VK_END;
        keyCode2 = VK_END;
        return AWnd::MA_KEY;
    }
    if (mButtonUp)
        return AWnd::MA_MBUTTONUP;
    if (lButtonDblClk)
        return AWnd::MA_LBUTTONDBLCLK;
    if (rButtonDblClk)
        return AWnd::MA_RBUTTONDBLCLK;
    if (mButtonDblClk)
        return AWnd::MA_MBUTTONDBLCLK;
    if (wheelDown)
        return AWnd::MA_WHEELDOWN;
    if (wheelUp)
        return AWnd::MA_WHEELUP;
    if (keyCode == 0 && keyCode2 == 0)
        return AWnd::MA_MOVE;
    return takeKey(target) ? AWnd::MA_MOVE : AWnd::MA_KEY;
}

/// Passes a key to the edit box that is being typed into, or moves the pointer to a tab stop. Returns true if
/// the pointer was moved.
bool AMainWin::takeKey(AWnd* target)
{
    const bool typing = isOfType(target, AWnd::WND_EDITBOX);
    if (typing && keyCode != VK_TAB) {
        target->handleKeyInput(static_cast<char>(keyCode));
        return false;
    }
    if (keyCode != VK_TAB && keyCode != VK_LEFT && keyCode != VK_RIGHT)
        return false;
    const bool backwards = keyCode == VK_LEFT || (keyCode == VK_TAB && keyDown[VK_SHIFT]);
    // Tab leaves an edit box for the next stop of its screen or popup.
    AWnd* root = typing ? getActiveWnd() : target;
    return setMousePosOnNextTabStop(root, curFocusWnd, backwards, 0) != 0;
}

void AMainWin::moveFocus(AWnd* target)
{
    if (!prevFocusWnd)
        prevFocusWnd = target;
    curFocusWnd = target->getWndAtPos(mouseX, mouseY, 1);
    // A list box keeps the focus even when it is disabled.
    while (curFocusWnd && !curFocusWnd->isEnabled() && !isOfType(curFocusWnd, AWnd::WND_LISTBOX))
        curFocusWnd = curFocusWnd->getParent();
    if (!curFocusWnd)
        curFocusWnd = target;

    if (prevFocusWnd == curFocusWnd) {
        ++focusWndHotTime;
        return;
    }
    while (prevFocusWnd && prevFocusWnd != curFocusWnd) {
        prevFocusWnd->handleLostFocus();
        prevFocusWnd = prevFocusWnd ? prevFocusWnd->getParent() : nullptr;
    }
    focusWndHotTime = 0;
}

void AMainWin::dispatch(AWnd* to, AWnd::E_MOUSEACTION action)
{
    const WndRef target = to;
    WndRef about = curFocusWnd;
    int x = mouseX;
    int y = mouseY;
    const bool isKey = action == AWnd::MA_KEY;
    if (isKey) {
        about = keyWindow(target);
        x = y = -1;
    } else {
        if (action == AWnd::MA_LBUTTONDOWN && mouseDownCount == 1)
            mouseDownWnd = curFocusWnd;
        // A press belongs to the window on which it began: nothing is sent to other windows until the
        // release.
        if (mouseDownWnd && mouseDownWnd != curFocusWnd)
            return;
    }
    if (!about)
        return;

    const CString id = about->getID();
    target->handleMouseAction(id, about, x, y, action);
    if (!target || !target->getNotifyParent())
        return;
    if (AWnd* parent = target->getParent())
        parent->handlePopupAction(id, about, isKey ? mouseX : x, isKey ? mouseY : y, action);
}

/// Returns the window for a key. For Home, End, Insert and Delete that is the first window of the target's
/// list for them, if it takes keys; otherwise the window with the focus.
AWnd* AMainWin::keyWindow(AWnd* target) const
{
    const auto isKey = [this](VirtualKey key) { return keyDown[key] || keyCode2 == key; };
    const ATabStopInfo* stops = target->getTabStopInfo(1);
    const WndList* list = isKey(VK_HOME) || isKey(VK_END)        ? &stops->homeEndWnds
                          : isKey(VK_INSERT) || isKey(VK_DELETE) ? &stops->insertDeleteWnds
                                                                 : nullptr;
    if (!list || list->IsEmpty())
        return curFocusWnd;

    AWnd* first = list->GetAt(0);
    if (isOfType(first, AWnd::WND_COMBOBOX))
        return first;
    if (!isOfType(first, AWnd::WND_RADIOBUTTON))
        return curFocusWnd;
    if (isOfType(first->getParent(), AWnd::WND_TABCONTROL))
        return first;
    for (int i = 0; i < list->GetSize(); ++i)
        if (list->GetAt(i)->isVisible(1))
            return list->GetAt(i);
    return list->GetAt(list->GetSize() - 1);
}

void AMainWin::loseFocus()
{
    loseFocusFrom(prevFocusWnd);
    loseFocusFrom(curFocusWnd);
    prevFocusWnd = nullptr;
    curFocusWnd = nullptr;
}

AWnd* AMainWin::getMouseCaptureWnd(int index) const
{
    if (index < mouseCaptureWnds.GetSize())
        return mouseCaptureWnds[index];
    if (index < popupWnds.GetSize())
        return popupWnds[index];
    return getActiveScreen();
}

void AMainWin::setMouseCaptureWnd(AWnd* wnd)
{
    mouseDownWnd = nullptr;
    const int count = mouseCaptureWnds.GetSize();
    if (!wnd) {
        if (count > 0)
            mouseCaptureWnds.RemoveAt(0);
    } else if (count == 0 || (mouseCaptureWnds[0] != wnd && mouseCaptureWnds[count - 1] != wnd)) {
        mouseCaptureWnds.InsertAt(0, wnd);
    }
}

int AMainWin::isMouseDownInterval(int interval) const
{
    constexpr int defaultInterval = 10; // ticks
    if (interval == -1)
        interval = defaultInterval;
    else if (interval <= 0)
        interval = 1;
    if (mouseDownCount == 1)
        return 1;
    // The delay before the repeat, in 64 bits because interval may have any value.
    if (mouseDownCount < 3LL * interval)
        return 0;
    return mouseDownCount % interval == 0;
}

void AMainWin::setMousePos(int x, int y, int jump)
{
    prevMouseX = jump ? to16(x) : mouseX;
    prevMouseY = jump ? to16(y) : mouseY;
    mouseX = to16(x);
    mouseY = to16(y);
}

int AMainWin::setMousePosOnWnd(AWnd* wnd, int jump)
{
    if (!wnd)
        return 1;
    if (auto* list = windowAs<AListBox>(wnd)) {
        int x = 0;
        int y = 0;
        if (!list->getMousePosOfFirstSelectableItem(x, y))
            return 0;
        setMousePos(x, y, jump);
        return 1;
    }
    // The position is the window's resting place, the size its current one.
    setMousePos(wnd->posX(1) + wnd->width() / 2, wnd->posY(1) + wnd->height() / 2, jump);
    if (isOfType(wnd, AWnd::WND_EDITBOX))
        if (AWnd* active = getActiveWnd()) {
            // The click gives the edit box the capture, so moving to it starts the typing.
            const CString id = wnd->getID();
            active->handleMouseAction(id, wnd, mouseX, mouseY, AWnd::MA_LBUTTONUP);
        }
    return 1;
}

int AMainWin::setMousePosOnNextTabStop(AWnd* below, AWnd* start, int backwards, int jump)
{
    // Moving to an edit box clicks it, which may delete any of these.
    const WndRef root = below;
    WndRef from = start;
    if (isOfType(from, AWnd::WND_BUTTON))
        if (auto* button = windowAs<AButton>(start))
            button->setButtonState(AButton::BS_NORMAL);
    const auto stopCount = [&root] {
        const ATabStopInfo* stops = root ? root->getTabStopInfo(0) : nullptr;
        return stops ? stops->tabOrderWnds.GetSize() : 0;
    };
    for (int pass = 0; pass < stopCount(); ++pass) {
        const WndRef next = root->getNextTabStop(from, backwards, nullptr);
        if (!next) {
            setMousePosOnWnd(root, jump);
            continue;
        }
        // A list with cell highlight that is the only stop keeps the pointer, and the key is passed to it.
        if (const auto* list = next == from ? windowAs<AListBox>(next) : nullptr;
            list && list->getCellHighlight())
            return 0;
        if (isOfType(from, AWnd::WND_EDITBOX) && from == getMouseCaptureWnd(0))
            setMouseCaptureWnd(nullptr); // leaving an edit box ends the typing
        if (setMousePosOnWnd(next, jump))
            return 1;
        from = next;
    }
    if (root)
        setMousePosOnWnd(root, jump);
    return 0;
}
