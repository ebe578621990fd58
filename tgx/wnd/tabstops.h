#pragma once

#include "tgx/export.h"
#include "tgx/wnd/wndref.h"

/// The keyboard lists of a window. Entries are not owned; a window is removed when it is deleted.
class TGX_API ATabStopInfo {
public:
    ATabStopInfo() = default;
    virtual ~ATabStopInfo() = default;

    WndList insertDeleteWnds; // targets of the keys Insert and Delete
    WndList homeEndWnds;      // targets of End, Home and the release of the right button
    WndList tabOrderWnds;     // in tab order
};
