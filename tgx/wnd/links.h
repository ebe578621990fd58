#pragma once

#include "tgx/wnd/wnd.h"

#include <vector>

/// Data that few windows need, kept apart so that the others stay small.
struct AWnd::Links {
    std::vector<WndList*> lists; // lists that contain this window, each once
    WndList holders;             // windows other than the owner that have this window among their children
    WndList ownedElsewhere;      // windows that this one owns but does not have among its children
    bool listedTwice = false;    // a holder may contain this window twice
};
