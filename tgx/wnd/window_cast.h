#pragma once

#include "tgx/wnd/wnd.h"

/// wnd as a T, or null when it is null or of another class. Whatever comes from a look-up by name or from a
/// game's factory may be of any class: scripts choose the ids.
template<class T>
T* windowAs(AWnd* wnd)
{
    return dynamic_cast<T*>(wnd);
}
