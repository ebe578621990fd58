#include "tgx/wnd/screenlist.h"

#include "tgx/wnd/child_walk.h"
#include "tgx/wnd/window_cast.h"

#include <algorithm>

AScreenList::AScreenList() : AWnd(WND_PLAIN, "ScreenList", 0, 0, 0, 0) {}

AScreenList::~AScreenList()
{
    deleteWndsPendingDelete();
}

void AScreenList::setActiveScreen(AScreen* screen)
{
    activeScreen = screen;
    activeScreenIndex = static_cast<short>(screen ? screen->getWindowIndex() : 0);
}

void AScreenList::closeScreensExceptActive()
{
    for (ChildWalk walk(children); walk.canContinue();) {
        auto* screen = windowAs<AScreen>(walk.next());
        if (screen && screen != getActiveScreen() && screen->isOpen())
            screen->close();
    }
}

int AScreenList::addWndToDelete(AWnd* wnd)
{
    if (wnd)
        wndsToDelete.Add(wnd);
    return 1;
}

int AScreenList::isWndToBeDeleted(AWnd* wnd) const
{
    if (!wnd)
        return 0;
    for (int i = 0; i < wndsToDelete.GetSize(); ++i)
        if (wndsToDelete[i] == wnd || wnd->hasParentCalled(wndsToDelete[i]->getID()))
            return 1;
    return 0;
}

int AScreenList::deleteWndsPendingDelete()
{
    while (wndsToDelete.GetSize() > 0) {
        AWnd* wnd = wndsToDelete[wndsToDelete.GetSize() - 1];
        wndsToDelete.RemoveAt(wndsToDelete.GetSize() - 1);
        // Only direct children are deleted; the others lose their mark.
        if (std::find(children.begin(), children.end(), wnd) == children.end())
            continue;
        if (wnd == activeScreen)
            setActiveScreen(nullptr);
        delete wnd; // also removes it from children and from wndsToDelete, where it may have a second entry
    }
    return 1;
}
