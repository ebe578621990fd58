#include "tgx/frame/mainwin.h"

#include "platform/display/message.h"
#include "platform/display/settings.h"
#include "platform/online/connection.h"
#include "platform/system/clock.h"
#include "tgx/script/run.h"

namespace {

/// Frames shown between the request for a change and the change itself.
constexpr int framesWaited = 5;

template<class Field>
void readSetting(const char* name, Field& field)
{
    unsigned long value = static_cast<unsigned long>(field);
    getregistry(name, &value);
    field = static_cast<Field>(value);
}

void writeSetting(const char* name, int field)
{
    unsigned long value = static_cast<unsigned long>(field);
    setregistry(name, &value);
}

} // namespace

AMainWin::AMainWin(int width, int height, int depth)
{
    if (pApp)
        setSettingsOwner(pApp->getCompanyName(), pApp->getProgramName());
    fullScreen = 1;
    topMost = 1;
    readSetting("FullScreen", fullScreen);
    readSetting("TopMost", topMost);
    readSetting("BitDepth", bitDepth);
    screenWidth = static_cast<short>(width);
    screenHeight = static_cast<short>(height);
    if (bitDepth == 0)
        bitDepth = static_cast<unsigned short>(depth);
    governor.frameStarted(timeGetTime());
}

AMainWin::~AMainWin()
{
    ownedBuffer.reset();
    screenList.reset();
    if (pApp && pApp->mainWin == this)
        pApp->mainWin = nullptr; // windows that the game removed from the tree use it when they are deleted
    writeSetting("FullScreen", fullScreen);
    writeSetting("TopMost", topMost);
    writeSetting("BitDepth", bitDepth);
}

int AMainWin::startup()
{
    setbackdrop(0);
    if (darkWnd || !screenList)
        return 1;
    readScriptFile(commonScriptFile, GetModuleHandleA(nullptr), noResource, "DARKWND", 0);
    darkWnd = screenList->getWnd("DARKWND", 1);
    if (darkWnd)
        darkWnd->startup();
    return 1;
}

AWnd* AMainWin::createNewWindow(const CString&, int, int, int, int, const CString&)
{
    return nullptr;
}

void AMainWin::drawscreen()
{
    if (exitRequested) {
        completeExit();
        return;
    }

    frameStep = governor.stepFor(timeGetTime(), targetFPS);
    governor.frameStarted(timeGetTime());
    if (wipeFramesLeft > 0) {
        screenWipe();
        return;
    }

    drawbackdrop();
    if (AScreen* screen = getActiveScreen())
        screen->draw(frameStep);
    drawPopups();
    if (keyCode == VK_F7)
        redrawScreen();
    ddwin::drawscreen();
    advancePendingChange();
}

void AMainWin::drawPopups()
{
    bool dimmed = false;
    // From the back to the front. Drawing may close a popup, so the size is read again in each step.
    for (int i = popupWnds.GetSize() - 1; i >= 0; --i) {
        if (i >= popupWnds.GetSize())
            continue;
        const WndRef popup = popupWnds[i];
        if (!dimmed && !popup->isEasyClose()) {
            dimmed = true;
            if (darkWnd)
                darkWnd->draw(frameStep);
        }
        if (popup)
            popup->draw(frameStep);
    }
}

/// Counts a frame towards the pending change, and carries the change out after the last one. Runs outside any
/// handler.
void AMainWin::advancePendingChange()
{
    if (pendingScreen.IsEmpty())
        return;
    if (++nextDrawCount < framesWaited)
        return;
    nextDrawCount = 0;
    const CString name = pendingScreen;
    if (!doChangeScreenSpecial(name)) { // otherwise the game has carried out the change
        AScreen* next = doChangeScreen();
        if (next && !next->isOpen())
            next->initialise();
    }
    flushMessages(); // brings what arrived during the load, which is not for the new screen
    dropLostInput();
}

/// Only sets a flag: handlers inside the tree call this, so nothing may be deleted here.
void AMainWin::exitProgram()
{
    exitRequested = true;
}

void AMainWin::onCloseRequest()
{
    exitProgram();
}

void AMainWin::completeExit()
{
    if (!screenList)
        return;
    g_Connection.Close();
    if (AScreen* screen = getActiveScreen())
        screen->close();
    screenList.reset();
    running = 0;
    PostMessageA(m_hWnd, WM_CLOSE, 0, 0);
}

void AMainWin::recreateScreenList()
{
    darkWnd = nullptr;
    popupWnds.RemoveAll();
    mouseCaptureWnds.RemoveAll();
    prevFocusWnd = nullptr;
    curFocusWnd = nullptr;
    mouseDownWnd = nullptr;
    screenList.reset();
    screenList = std::make_unique<AScreenList>();
    focusWndHotTime = 0;
    pendingScreen.Empty();
    nextDrawCount = 0;
    wipeFramesLeft = 0;
}

int AMainWin::nextDrawDone()
{
    if (nextDrawCount < 1)
        return 0;
    if (++nextDrawCount != framesWaited)
        return 0;
    nextDrawCount = 0;
    return 1;
}

AWnd* AMainWin::getActiveWnd() const
{
    return popupWnds.GetSize() > 0 ? popupWnds[0] : getActiveScreen();
}

AWnd* AMainWin::getWnd(const CString& name, int recursive)
{
    return screenList ? screenList->getWnd(name, recursive) : nullptr;
}

AWnd* AMainWin::getWndFromIndex(int index)
{
    return screenList ? screenList->getWndFromIndex(index, "") : nullptr;
}
