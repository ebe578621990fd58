#include "tgx/wnd/tabstops.h"

#include "tgx/wnd/wnd.h"

ATabStopInfo* AWnd::createTabStopInfo()
{
    tabStopInfo = std::make_unique<ATabStopInfo>();
    return tabStopInfo.get();
}

ATabStopInfo* AWnd::getTabStopInfo(int create)
{
    if (!tabStopInfo && create)
        createTabStopInfo();
    return tabStopInfo.get();
}

AWnd* AWnd::getNextTabStop(AWnd* from, int backwards, CArray<AWnd*, AWnd*>*)
{
    if (!tabStopInfo)
        return nullptr;
    const WndList& stops = tabStopInfo->tabOrderWnds;
    const int count = stops.GetSize();

    int at = stops.find(from);
    if (at < 0) {
        for (int i = 0; i < count; ++i)
            if (stops[i]->isEnabled())
                return stops[i];
        return nullptr;
    }
    // The search ends at from itself, which is returned if there is no other usable stop.
    for (int steps = 0; steps < count; ++steps) {
        at = backwards ? (at == 0 ? count - 1 : at - 1) : (at == count - 1 ? 0 : at + 1);
        if (stops[at]->isEnabled())
            return stops[at];
    }
    return nullptr;
}
