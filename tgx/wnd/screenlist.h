#pragma once

#include "tgx/wnd/screen.h"

/// The root of the tree. Its children are the screens and the other top-level windows, popups among them.
class TGX_API AScreenList : public AWnd {
public:
    AScreenList();
    ~AScreenList() override;

    AScreen* getActiveScreen() const { return static_cast<AScreen*>(activeScreen.get()); }
    int getActiveScreenIndex() const { return activeScreenIndex; }
    /// Sets the active screen; null for none.
    void setActiveScreen(AScreen* screen);

    /// Closes every open screen except the active one; they stay in the tree.
    void closeScreensExceptActive();

    /// Marks wnd for deletion: it counts as deleted from now on and is deleted at the end of the next
    /// dispatched input tick. Does not take ownership. Returns 1.
    int addWndToDelete(AWnd* wnd);
    /// Returns 1 for a marked window and all windows inside it. They can still be found in the tree by name,
    /// so a caller that finds one checks here.
    int isWndToBeDeleted(AWnd* wnd) const;
    /// Deletes the marked windows that are direct children, last first; the others only lose their mark.
    /// Returns 1.
    int deleteWndsPendingDelete();
    int getWndsToDeleteCount() const { return wndsToDelete.GetSize(); }

protected:
    short activeScreenIndex = 0; // windowIndex of the active screen
    WndRef activeScreen;
    WndList wndsToDelete;
};
