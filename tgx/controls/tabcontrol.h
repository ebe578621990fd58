#pragma once

#include "tgx/controls/radiobutton.h"

/// Shows one page out of several. Its children are the tabs, buttons in one radio group, and the pages, any
/// other windows, in the same order and number: the page of the tab at child i is child i + tabCount, or i -
/// tabCount where the pages come first.
class TGX_API ATabControl : public AWnd, public tgx::RadioGroupParent {
public:
    ATabControl(const CString& id, int x, int y, int width, int height);

    /// The selected tab once more, over its neighbours and the pages.
    void draw(int frameStep) override;
    /// Counts the tabs and selects the one of the first page that is visible.
    void startup() override;
    /// A click on a tab shows its page. 0.
    int handleMouseAction(const CString& id, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;

    /// The page that shows, or null.
    AWnd* getActiveWnd();
    /// Selects tab and shows its page. interactive: the screen's update is called, and the pointer leaves
    /// what has gone away.
    void setActiveWnd(AButton* tab, int interactive);
    int getTabCount() const { return tabCount; }

protected:
    short tabCount = 0;

private:
    void radioButtonChosen(AButton* selected) override { setActiveWnd(selected, 1); }
    static bool isTab(const AWnd* wnd);
    static AButton* tabAmong(AWnd* wnd);
    AWnd* pageOf(const AWnd& tab) const;
};
