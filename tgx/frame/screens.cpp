#include "platform/display/host.h"
#include "platform/display/msgbox.h"
#include "tgx/frame/mainwin.h"
#include "tgx/script/run.h"
#include "tgx/wnd/window_cast.h"

namespace {

constexpr int wipeStrip = 40; // pixels that a wipe uncovers per frame

/// Loaded with each backdrop; meant to contain the colours of the interface.
constexpr const char* paletteName = "IntPalEl.BMP";

} // namespace

AScreen* AMainWin::addScreen(const CString& id, int x, int y, int w, int h)
{
    if (!screenList)
        return nullptr;
    AWnd* made = createNewWindow(id, x, y, w, h, id);
    auto* screen = windowAs<AScreen>(made);
    if (made && !screen) {
        // The id names a class of the game that is not a screen.
        MsgBox("cannot make screen %s", static_cast<const char*>(id));
        delete made;
    }
    if (!screen)
        screen = new AScreen(id, x, y, w, h);
    screenList->addChildWindow(screen);
    return screen;
}

AScreen* AMainWin::doChangeScreenSpecial(const CString&)
{
    return nullptr;
}

AScreen* AMainWin::changeScreen(const CString& name, int closeCurrent, unsigned resource, const CString& file)
{
    if (!screenList || (name.IsEmpty() && pendingScreen.IsEmpty()))
        return nullptr;
    const auto* wanted = windowAs<AScreen>(screenList->getWnd(name, 1));
    if (!wanted || !wanted->isOpen())
        setCursor(waitCursor);

    if (!pendingScreen.IsEmpty()) {
        // The pending request is carried out; the new one is dropped.
        nextDrawCount = 0;
        return doChangeScreen();
    }
    pendingScreen = name;
    pendingCloseCurrent = closeCurrent;
    pendingResource = resource;
    pendingFile = file;
    return nullptr;
}

/// Returns wnd if it is a screen that a change can lead to, otherwise null. Windows that the change deletes
/// are excluded: the popups, the current screen if it is closed for good, and everything inside them.
AScreen* AMainWin::usableScreen(AWnd* wnd, bool closesCurrent) const
{
    auto* screen = windowAs<AScreen>(wnd);
    if (!screen || screenList->isWndToBeDeleted(screen))
        return nullptr;
    for (const AWnd* above = wnd; above; above = above->getParent())
        if (popupWnds.contains(above) || (closesCurrent && above == getActiveScreen()))
            return nullptr;
    return screen;
}

AScreen* AMainWin::findOrReadScreen(const ScreenRequest& request)
{
    if (request.name.IsEmpty())
        return nullptr;
    AScreen* found = usableScreen(screenList->getWnd(request.name, 1), request.closesCurrent);
    if (!found)
        found = usableScreen(
            readScriptFile(request.file, GetModuleHandleA(nullptr), request.resource, request.name, 0),
            request.closesCurrent);
    return found;
}

AScreen* AMainWin::doChangeScreen()
{
    if (!screenList || pendingScreen.IsEmpty())
        return nullptr;
    const ScreenRequest request{pendingScreen, pendingCloseCurrent != 0, pendingResource, pendingFile};
    pendingScreen.Empty();

    // The new screen is looked up before anything is closed, so that a missing one changes nothing.
    AScreen* found = findOrReadScreen(request);
    if (!found) {
        reportMissingScreen(request);
        return nullptr;
    }
    return enterScreen(*found, request);
}

/// Leaves the current screen and enters screen, the one that request names.
AScreen* AMainWin::enterScreen(AScreen& screen, const ScreenRequest& request)
{
    WndRef target = &screen;
    keepListSelection = 0;
    mouseDownWnd = nullptr;
    loseFocus();
    const WndRef current = getActiveScreen();
    for (int popups = popupWnds.GetSize(); popups > 0; --popups)
        deletePopupWnd();
    if (current) {
        current->close();
        if (request.closesCurrent)
            screenList->addWndToDelete(current);
        else if (current)
            static_cast<AScreen*>(current.get())->setOpen(1);
    }
    // A handler may have deleted it in the meantime.
    if (!target || screenList->isWndToBeDeleted(target))
        target = findOrReadScreen(request);
    auto* next = static_cast<AScreen*>(target.get());
    if (!next) {
        if (request.closesCurrent)
            screenList->setActiveScreen(nullptr);
        reportMissingScreen(request);
        return nullptr;
    }

    screenList->setActiveScreen(next);
    if (!request.closesCurrent && current)
        next->setCaller(current->getID());
    else if (!next->isOpen())
        next->setCaller("");
    if (!next->isOpen())
        setCursor(waitCursor);

    if (wipeEnabled && screenWidth >= wipeStrip) {
        wipeFramesLeft = screenWidth / wipeStrip;
        wipeSwapsBackdrop = true;
        wipeReturns = next->isOpen();
        if (!next->isOpen())
            next->startup();
        return static_cast<AScreen*>(target.get());
    }
    wipeFramesLeft = 0;
    showBackdropOf(*next);
    if (next->isOpen())
        next->returned();
    else
        next->startup();
    redrawScreen();
    return static_cast<AScreen*>(target.get());
}

void AMainWin::reportMissingScreen(const ScreenRequest& request)
{
    const std::string text = std::string("cannot find screen ") + static_cast<const char*>(request.name);
    displayhost::current().showFailure(
        CString(text), tgx::whyNoScript(request.file, GetModuleHandleA(nullptr), request.resource));
    setCursor(normalCursor);
}

void AMainWin::showBackdropOf(const AScreen& screen)
{
    setbackdrop(screen.getBackdropName(), -1);
    createspecific(paletteName, -1);
}

// A wipe of a screen 640 pixels wide, frame by frame; each frame ends with drawbackdrop:
//   wipeFramesLeft   16  15   14        13 ... 3       2       1
//   uncovered        0   40   backdrop  120 ... 520    whole   whole, returned
void AMainWin::screenWipe()
{
    const int total = screenWidth / wipeStrip;
    if (lButtonUp && wipeFramesLeft > 2)
        wipeFramesLeft = 2; // a click shortens the wipe
    const int left = wipeFramesLeft;
    AScreen* screen = getActiveScreen();

    const bool swaps = wipeSwapsBackdrop && (left <= total - 2 || left == 1);
    if (swaps) {
        wipeSwapsBackdrop = false;
        if (screen) {
            showBackdropOf(*screen);
            if (!wipeReturns)
                screen->renewBkgnds(); // a new screen was started while the old backdrop was shown
        }
    }
    const bool onlySwaps = swaps && left == total - 2 && left > 1;
    if (!onlySwaps) {
        RECT uncovered{0, 0, left > 2 ? screenWidth - left * wipeStrip : screenWidth, screenHeight};
        adddirtyrect(uncovered);
        if (left == 1 && screen && wipeReturns)
            screen->returned();
    }
    --wipeFramesLeft;
    drawbackdrop();
}

int AMainWin::closeAllScreensExceptCurrent()
{
    mouseDownWnd = nullptr;
    if (!screenList)
        return 0;
    screenList->closeScreensExceptActive();
    return 0;
}
