#pragma once

#include "player/export.h"

class AListBox;
class AWnd;

// Where windows and the cells of list boxes lie on the screen.

/// Screen pixels.
struct ScreenPoint {
    int x = 0;
    int y = 0;
    bool operator==(const ScreenPoint&) const = default;
};
/// Row and column, counted from 0; -1 for a point that is on no row of the list's page.
struct CellPlace {
    int item = -1;
    int column = -1;
    bool operator==(const CellPlace&) const = default;
};

/// As the window stands now, with movement.
TGX_PLAYER_INTERNAL ScreenPoint middleOf(const AWnd& wnd);
/// The cell that the list takes that point for.
TGX_PLAYER_INTERNAL CellPlace cellAt(const AListBox& list, const ScreenPoint& point);
/// Of a row on the list's page.
TGX_PLAYER_INTERNAL ScreenPoint middleOfCell(const AListBox& list, const CellPlace& cell);
