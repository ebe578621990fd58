#pragma once

#include "tgx/wnd/wnd.h"

namespace tgx {

/// Returns whether wnd is holder or has it among its parents. False for null.
inline bool isInside(const AWnd* wnd, const AWnd* holder)
{
    for (; wnd; wnd = wnd->getParent())
        if (wnd == holder)
            return true;
    return false;
}

} // namespace tgx
