#pragma once

#include "player/export.h"

class AListBox;
class AWnd;

namespace tgx {

// Positions of windows and of the cells of list boxes on the screen.

/// A position in screen pixels.
struct ScreenPoint {
    int x = 0;
    int y = 0;
    bool operator==(const ScreenPoint&) const = default;
};
/// Row and column, counted from 0; both -1 for a point that is not on a row of the list's page.
struct CellPlace {
    int item = -1;
    int column = -1;
    bool operator==(const CellPlace&) const = default;
};

/// Returns the middle of the window at its present position, movement included.
TGX_PLAYER_INTERNAL ScreenPoint middleOf(const AWnd& wnd);
/// Returns the cell that a list finds at that point.
TGX_PLAYER_INTERNAL CellPlace cellAt(const AListBox& list, const ScreenPoint& point);
/// Returns the middle of a cell, whose row must be on the list's page.
TGX_PLAYER_INTERNAL ScreenPoint middleOfCell(const AListBox& list, const CellPlace& cell);

} // namespace tgx
