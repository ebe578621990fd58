#include "tests/unit/support/invariants.h"

#include "tgx/frame/mainwin.h"

#include <set>

namespace {

class TreeCheck {
public:
    std::string fault; // the first fault found
    std::set<const AWnd*> found;

    void note(const std::string& what, const AWnd* wnd)
    {
        if (fault.empty())
            fault = what + (wnd ? ": \"" + wnd->getID().str() + "\"" : "");
    }

    void walk(AWnd& holder)
    {
        found.insert(&holder);
        path.insert(&holder);
        for (int i = 0; i < holder.getWindowCount() && fault.empty(); ++i) {
            AWnd* child = holder.getWndFromIndex(i, "");
            if (!child)
                note("a null entry among the children of a window", &holder);
            else if (path.contains(child))
                note("a window contains itself", child);
            else {
                checkLinks(holder, *child);
                walk(*child);
            }
        }
        path.erase(&holder);
    }

private:
    std::set<const AWnd*> path; // from the root to here

    void checkLinks(AWnd& holder, AWnd& child)
    {
        // The parent of a popup is its opener, but its owner stays the same; a window that is shown in a
        // second place belongs to the root.
        bool isPopup = child.getNotifyParent() != 0;
        bool isShared = child.getPointerCount() > 0;
        if (child.getParent() != &holder && !isPopup && !isShared)
            note("a window's parent is not the window that contains it", &child);
        if (child.getOwner() != &holder && !isShared)
            note("a window is not owned by the window that contains it", &child);
    }
};

} // namespace

std::string checkInvariants(AMainWin& win)
{
    AScreenList* root = win.getScreenList();
    TreeCheck tree;
    if (root)
        tree.walk(*root);
    auto mustBeInTree = [&](const char* what, const AWnd* wnd) {
        if (wnd && !tree.found.contains(wnd))
            tree.note(std::string(what) + " is not a window of the tree",
                      nullptr); // it may be deleted, so its id must not be read
    };
    for (const AWnd* wnd : tree.found) {
        if (AWnd* parent = wnd->getParent())
            mustBeInTree("a parent", parent);
    }
    mustBeInTree("the focus window", win.getCurFocusWnd());
    mustBeInTree("the pressed window", win.getMouseDownWnd());
    mustBeInTree("the active screen", win.getActiveScreen());

    for (int i = 0; i < win.getPopupWndCount(); ++i) {
        AWnd* popup = win.getPopupWnd(i);
        mustBeInTree("a popup", popup);
        // A popup that is opened again from the middle of the list is in it twice.
        if (!popup)
            tree.note("the popup list has a null entry", nullptr);
        else if (tree.fault.empty() && !popup->getNotifyParent())
            tree.note("a popup does not report to its parent", popup);
    }
    for (int i = 0; i < win.getMouseCaptureWndCount(); ++i) {
        AWnd* capture = win.getMouseCaptureWnd(i);
        mustBeInTree("a capturing window", capture);
    }
    AScreen* screen = tree.fault.empty() ? win.getActiveScreen() : nullptr;
    if (screen && (screen->getWindowType() != AWnd::WND_SCREEN || screen->getOwner() != root))
        tree.note("the active window is not a screen of the list", screen);
    return tree.fault;
}
