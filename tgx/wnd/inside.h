#pragma once

#include "tgx/wnd/wnd.h"

namespace tgx {

/// Returns true if wnd is holder or holder is one of its parents. Returns false for null.
inline bool isInside(const AWnd* wnd, const AWnd* holder)
{
    for (; wnd; wnd = wnd->getParent())
        if (wnd == holder)
            return true;
    return false;
}

} // namespace tgx
