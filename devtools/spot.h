#pragma once

#include "player/places.h"
#include "player/reach.h"
#include "tgx/wnd/wndref.h"

#include <optional>
#include <string>

/// What input reaches at a point of the screen, as far as a line of events has to know it.
struct Spot {
    ScreenPoint point;
    WndRef wnd;            // empty: nothing
    CellPlace cell;        // of a list box
    std::string hindrance; // why even wnd gets nothing; "" when it does
    bool isTypedInto = false;
};
Spot spotAt(AMainWin& win, const ScreenPoint& point, PointerAct act);

/// Whether the pointer's input does the same at both: anywhere on a button, on the same cell of a list, on
/// the same point of a scroll bar and of whatever the toolkit does not know.
bool doSame(const Spot& a, const Spot& b);
/// The same for keys, which bring no place with them.
bool doSameForKeys(const Spot& a, const Spot& b);
/// Where the list's keys go on from, by pointer, keys or what it remembers from before the pointer left it.
/// Nothing for other windows, and where no row is hot.
std::optional<CellPlace> hotCellOf(const AWnd* wnd);

/// A line of events, and where it takes the pointer.
struct PointingLine {
    std::string text;
    ScreenPoint point;
    bool runsFrames = false; // else it queues a move
};
/// What clicks there: "click OK", "row LIST 2 1". Nothing when no line by id does the same.
std::optional<PointingLine> clickLineFor(AMainWin& win, const Spot& spot);
/// What brings the pointer there: "hover OK" where that does the same and mayHover, "move to BAR 3 40", "move
/// 320 200".
PointingLine pointLineFor(AMainWin& win, const Spot& spot, bool mayHover);

/// An id or name as one word, in quotes where it needs them.
std::string wordFor(std::string_view name);
