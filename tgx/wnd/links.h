#pragma once

#include "tgx/wnd/wnd.h"

#include <vector>

/// What few windows have, kept apart so that the others stay small.
struct AWnd::Links {
    std::vector<WndList*> lists; // that name this window, each once
    WndList holders;             // whose children list this window, its owner aside
    WndList ownedElsewhere;      // windows that this one owns and does not list
    bool listedTwice = false;    // one holder may have it in two places
};
