#include "tgx/controls/listbox/floatingmenu.h"

#include "tgx/frame/mainwin.h"

namespace {

// As getcol takes them.
constexpr unsigned long groundColour = 0x808080; // and of the edges towards the light
constexpr unsigned long shadowColour = 0x202020;

} // namespace

AFloatingMenu::AFloatingMenu(const CString& name, int x, int y, int width, int height)
    : AListBox(name, x, y, width, height)
{
    setNotifyParent(1);
}

int AFloatingMenu::handleMouseAction(const CString& about, AWnd* wnd, int x, int y, E_MOUSEACTION action)
{
    const WndRef self = this; // what the children do may delete the menu
    AListBox::handleMouseAction(about, wnd, x, y, action);
    if (self)
        selectedItem = hotItem;
    return 0;
}

void AFloatingMenu::draw(int frameStep)
{
    if (isVisible(1)) {
        AMainWin* main = getMainWin();
        const unsigned long ground = main->getcol(groundColour);
        const unsigned long shadow = main->getcol(shadowColour);
        main->fillrect(left(), top(), right(), bottom(), ground);
        main->fillrect(left(), top(), right(), top() + 1, ground);
        main->fillrect(left(), top(), left() + 1, bottom(), ground);
        main->fillrect(left(), bottom() - 1, right(), bottom(), shadow);
        main->fillrect(right() - 1, top(), right(), bottom(), shadow);
    }
    AListBox::draw(frameStep);
}
