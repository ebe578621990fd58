#include "tgx/wnd/screen.h"

#include "tgx/controls/listbox/listbox.h"
#include "tgx/frame/mainwin.h"
#include "tgx/wnd/reserved.h"

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
    AMainWin* main = getMainWin();
    main->setCursor(main->normalCursor);
    RECT whole{0, 0, main->screenWidth, main->screenHeight};
    main->adddirtyrect(whole);
    AWnd::initialise();
    main->setMousePosOnNextTabStop(this, nullptr, 0, 0);
}

void AScreen::startup()
{
    AWnd::startup();
    deselectAllListBoxes(nullptr);
    getMainWin()->flushMessages();
}

void AScreen::returned()
{
    AWnd::returned();
    deselectAllListBoxes(nullptr);
    getMainWin()->setMousePos(savedMouseX, savedMouseY, 0);
}

void AScreen::close()
{
    const AMainWin* main = getMainWin();
    setSavedMousePos(main->mouseX, main->mouseY);
    open = 0;
    AWnd::close();
}

void AScreen::exitScreen()
{
    if (caller.IsEmpty())
        return;
    // A change that waited is carried out here; its screen is then ours to open.
    AScreen* reached = getMainWin()->changeScreen(caller, 1, mainScriptResource, mainScriptFile);
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

/// Those that lie directly on the screen, not those deeper down.
void AScreen::deselectOwnListBoxes()
{
    for (AWnd* child : children)
        if (child)
            AListBox::deselect(*child);
}
