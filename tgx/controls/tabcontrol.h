#pragma once

#include "tgx/controls/radiobutton.h"

/// Shows one of several pages. Its children are the tabs (buttons in one radio group) and the pages (any
/// other windows), in the same order and number: the page of the tab at child i is child i + tabCount, or i -
/// tabCount if the pages come first.
class TGX_API ATabControl : public AWnd, public tgx::RadioGroupParent {
public:
    ATabControl(const CString& id, int x, int y, int width, int height);

    /// Draws the selected tab again, above its neighbours and the pages.
    void draw(int frameStep) override;
    /// Counts the tabs and selects the tab of the first visible page.
    void startup() override;
    /// Shows a tab's page on a click on the tab. Returns 0.
    int handleMouseAction(const CString& id, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;

    /// Returns the visible page, or null.
    AWnd* getActiveWnd();
    /// Selects tab and shows its page. interactive also calls update() of the screen, and moves the pointer
    /// to a tab stop if the window under it has gone.
    void setActiveWnd(AButton* tab, int interactive);
    int getTabCount() const { return tabCount; }

protected:
    short tabCount = 0;

private:
    void radioButtonChosen(AButton* selected) override { setActiveWnd(selected, 1); }
    static bool isTab(const AWnd* wnd);
    static AButton* asTab(AWnd* wnd);
    AWnd* pageOf(const AWnd& tab) const;
};
