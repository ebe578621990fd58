#include "tgx/controls/listbox/floatingmenu.h"

#include "tgx/wnd/stage.h"

namespace {

// Colours in the format of getcol.
constexpr unsigned long groundColour = 0x808080; // also of the top and left edges
constexpr unsigned long shadowColour = 0x202020;

} // namespace

AFloatingMenu::AFloatingMenu(const CString& name, int x, int y, int width, int height)
    : AListBox(name, x, y, width, height)
{
    setNotifyParent(1);
}

int AFloatingMenu::handleMouseAction(const CString& about, AWnd* wnd, int x, int y, E_MOUSEACTION action)
{
    const WndRef self = this; // a child's handler may delete the menu
    AListBox::handleMouseAction(about, wnd, x, y, action);
    if (self)
        selectedItem = hotItem;
    return 0;
}

void AFloatingMenu::draw(int frameStep)
{
    if (isVisible(1)) {
        tgx::Stage* stage = tgx::stage();
        const unsigned long ground = stage->getcol(groundColour);
        const unsigned long shadow = stage->getcol(shadowColour);
        stage->fillrect(left(), top(), right(), bottom(), ground);
        stage->fillrect(left(), top(), right(), top() + 1, ground);
        stage->fillrect(left(), top(), left() + 1, bottom(), ground);
        stage->fillrect(left(), bottom() - 1, right(), bottom(), shadow);
        stage->fillrect(right() - 1, top(), right(), bottom(), shadow);
    }
    AListBox::draw(frameStep);
}
