#pragma once

#include "tgx/wnd/wnd.h"

/// Returns wnd as a T, or null if it is null or of another class. A window found by name or made by a game's
/// factory may be of any class, because scripts choose the ids.
template<class T>
T* windowAs(AWnd* wnd)
{
    return dynamic_cast<T*>(wnd);
}
