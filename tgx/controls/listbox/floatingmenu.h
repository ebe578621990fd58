#pragma once

#include "tgx/controls/listbox/listbox.h"

/// The menu of an AComboBox: a list box with a plain background whose selection follows the pointer and the
/// keys.
class TGX_API AFloatingMenu : public AListBox {
public:
    AFloatingMenu(const CString& id, int x, int y, int width, int height);

private:
    void draw(int frameStep) override;
    int handleMouseAction(const CString& id, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;
};
