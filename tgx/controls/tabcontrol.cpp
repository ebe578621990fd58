#include "tgx/controls/tabcontrol.h"

#include "tgx/base/fixed.h"
#include "tgx/wnd/child_walk.h"
#include "tgx/wnd/screen.h"
#include "tgx/wnd/stage.h"
#include "tgx/wnd/window_cast.h"

ATabControl::ATabControl(const CString& name, int x, int y, int width, int height)
    : AWnd(WND_TABCONTROL, name, x, y, width, height)
{}

bool ATabControl::isTab(const AWnd* wnd)
{
    return wnd && (wnd->getWindowType() == WND_BUTTON || wnd->getWindowType() == WND_RADIOBUTTON);
}

/// Returns wnd as a button if it is a tab, otherwise null.
AButton* ATabControl::asTab(AWnd* wnd)
{
    return isTab(wnd) ? windowAs<AButton>(wnd) : nullptr;
}

void ATabControl::startup()
{
    AWnd::startup();
    auto* first = windowAs<ARadioButton>(getWndOfType(WND_RADIOBUTTON, 0, 0));
    if (!first)
        return;
    if (tabCount == 0)
        tabCount = to16(first->getLinkedButtonsCount(0));

    int pagesBefore = 0; // number of pages before the first visible one
    for (const AWnd* wnd : children) {
        if (!wnd || wnd->getWindowType() == WND_RADIOBUTTON)
            continue;
        if (wnd->isVisible(0))
            break;
        ++pagesBefore;
    }
    if (pagesBefore < first->getLinkedButtonsCount(0))
        setActiveWnd(first->getLinkedButton(pagesBefore), 0);
}

AWnd* ATabControl::getActiveWnd()
{
    for (AWnd* wnd : children)
        if (wnd && !isTab(wnd) && wnd->isVisible(1))
            return wnd;
    return nullptr;
}

AWnd* ATabControl::pageOf(const AWnd& tab) const
{
    int index = tab.getWindowIndex() + tabCount;
    if (index >= children.GetSize())
        index = tab.getWindowIndex() - tabCount;
    return index >= 0 && index < children.GetSize() ? children.GetAt(index) : nullptr;
}

void ATabControl::setActiveWnd(AButton* tab, int interactive)
{
    if (!tab)
        return;
    tgx::Stage* stage = tgx::stage();
    AScreen* screen = stage->getActiveScreen();
    const WndRef under = screen ? screen->getWndAtPos(stage->mouseX, stage->mouseY, 1) : nullptr;
    if (auto* radio = windowAs<ARadioButton>(tab))
        radio->setSelectedButton(tab);

    if (AWnd* page = pageOf(*tab)) {
        for (AWnd* wnd : children)
            if (wnd && !isTab(wnd))
                wnd->setVisible(0);
        page->setVisible(1);
    }
    if (!interactive || !screen)
        return;
    const WndRef shown = screen;
    screen->update();
    if (shown && (!under || !under->isEnabled()))
        stage->setMousePosOnNextTabStop(shown, under, 0, 0);
}

int ATabControl::handleMouseAction(const CString& about, AWnd* wnd, int x, int y, E_MOUSEACTION action)
{
    const ActionRefs handling(this, wnd);
    AWnd::handleMouseAction(about, wnd, x, y, action);
    if (!handling.canContinue() || !isVisible(1) || action != MA_LBUTTONUP)
        return 0;
    AButton* tab = asTab(getWndAtPos(x, y, 0));
    if (tab && tab->getButtonState() != AButton::BS_DISABLED)
        setActiveWnd(tab, 1);
    return 0;
}

void ATabControl::draw(int frameStep)
{
    if (!isVisible(1))
        return;
    const WndRef self = this; // a window of the game's own class may delete it while it is drawn
    AWnd::draw(frameStep);
    if (!self)
        return;
    for (ChildWalk walk(children); walk.canContinue();) {
        AButton* tab = asTab(walk.next());
        if (tab && tab->isSelected())
            tab->draw(0);
    }
}
