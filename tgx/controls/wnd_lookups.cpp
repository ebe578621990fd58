// Operations of AWnd and AScreen that depend on controls, kept apart so that tgx/wnd does not include them.

#include "tgx/controls/button.h"
#include "tgx/controls/listbox/listbox.h"
#include "tgx/wnd/screen.h"
#include "tgx/wnd/window_cast.h"

AButton* AWnd::getButton(const CString& name, int recursive)
{
    return windowAs<AButton>(getWnd(name, recursive));
}

AListBox* AWnd::getListBox(const CString& name, int recursive)
{
    return windowAs<AListBox>(getWnd(name, recursive));
}

void AWnd::deselectAllListBoxes(AWnd* except)
{
    for (AWnd* wnd : children) {
        if (!wnd)
            continue;
        if (wnd != except)
            AListBox::deselect(*wnd);
        wnd->deselectAllListBoxes(except);
    }
}

/// Deselects the list boxes that are direct children of the screen, not those deeper down.
void AScreen::deselectOwnListBoxes()
{
    for (AWnd* child : children)
        if (child)
            AListBox::deselect(*child);
}
