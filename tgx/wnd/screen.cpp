#include "tgx/wnd/screen.h"

#include "tgx/base/script_names.h"
#include "tgx/wnd/reserved.h"
#include "tgx/wnd/stage.h"

AScreen::AScreen(const CString& name, int x, int y, int width, int height)
    : AWnd(WND_SCREEN, name, x, y, width, height)
{}

void AScreen::draw(int frameStep)
{
    AWnd::draw(frameStep);
}

void AScreen::initialise()
{
    open = 1;
    tgx::Stage* stage = tgx::stage();
    stage->setCursor(stage->normalCursor);
    RECT whole{0, 0, stage->screenWidth, stage->screenHeight};
    stage->adddirtyrect(whole);
    AWnd::initialise();
    stage->setMousePosOnNextTabStop(this, nullptr, 0, 0);
}

void AScreen::startup()
{
    AWnd::startup();
    deselectAllListBoxes(nullptr);
    tgx::stage()->flushMessages();
}

void AScreen::returned()
{
    AWnd::returned();
    deselectAllListBoxes(nullptr);
    tgx::stage()->setMousePos(savedMouseX, savedMouseY, 0);
}

void AScreen::close()
{
    const tgx::Stage* stage = tgx::stage();
    setSavedMousePos(stage->mouseX, stage->mouseY);
    open = 0;
    AWnd::close();
}

void AScreen::exitScreen()
{
    if (caller.IsEmpty())
        return;
    // If another change was pending, it has been carried out, and its screen must be opened here.
    AScreen* reached = tgx::stage()->changeScreen(caller, 1, mainScriptResource, mainScriptFile);
    if (reached && !reached->isOpen())
        reached->initialise();
}

int AScreen::handleMouseAction(const CString& about, AWnd* wnd, int x, int y, E_MOUSEACTION action)
{
    const ActionRefs handling(this, wnd);
    AWnd::handleMouseAction(about, wnd, x, y, action);

    if (!handling.isHandlerAlive())
        return 0;
    if (closeSearchedIn != TreeVersion::get()) {
        closeButton = getWnd("TGX_CLOSE", 1);
        closeSearchedIn = TreeVersion::get();
    }
    if (closeButton && !closeButton->isEnabled())
        canExit = 0;
    if (action != MA_LBUTTONUP && action != MA_RBUTTONUP)
        return 0;
    if (!wnd || !handling.isSubjectAlive())
        return 0;
    if (wnd->getID() == id)
        deselectOwnListBoxes();
    if (!canExit || !leavesScreen(wnd->getID().view()))
        return 0;
    exitScreen();
    return 1;
}
