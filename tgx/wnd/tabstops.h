#pragma once

#include "tgx/export.h"
#include "tgx/wnd/wndref.h"

/// The keyboard lists of a window. Entries are not owned; a window that is deleted drops out.
class TGX_API ATabStopInfo {
public:
    ATabStopInfo() = default;
    virtual ~ATabStopInfo() = default;

    WndList insertDeleteWnds; // where the keys Insert and Delete go
    WndList homeEndWnds;      // where End and Home go, and the release of the right button
    WndList tabOrderWnds;     // the tab order
};
