#pragma once

#include "player/places.h"
#include "player/reach.h"
#include "tgx/wnd/wndref.h"

#include <optional>
#include <string>

namespace tgx {

/// What input reaches at a point of the screen, as far as it matters for an events line.
struct Spot {
    ScreenPoint point;
    WndRef wnd;               // empty: nothing
    CellPlace cell;           // cell of a list box
    std::string hindrance;    // why wnd gets no input all the same; "" if it does
    bool isTypedInto = false; // an edit box gets what is typed
};
Spot spotAt(AMainWin& win, const ScreenPoint& point, PointerAct act);

/// Returns whether pointer input has the same effect at both: anywhere on a button, on the same cell of a
/// list, but only at the same point of a scroll bar or of a window that the toolkit does not know.
bool haveSameEffect(const Spot& a, const Spot& b);
/// Returns whether keys have the same effect with the pointer at either spot.
bool haveSameEffectForKeys(const Spot& a, const Spot& b);
/// Returns the hot cell of a list, from which its keys start. Nothing for other windows, or if no row is hot.
std::optional<CellPlace> hotCellOf(const AWnd* wnd);

/// An events line, and the point to which it moves the pointer.
struct PointingLine {
    std::string text;
    ScreenPoint point;
    bool runsFrames = false; // false: it only queues a move
};
/// Returns the line that clicks there: "click OK", "row LIST 2 1". Nothing if no line with an id has the same
/// effect.
std::optional<PointingLine> clickLineFor(AMainWin& win, const Spot& spot);
/// Returns the line that moves the pointer there: "hover OK" if mayHover and it has the same effect, else
/// "move to BAR 3 40" or "move 320 200".
PointingLine pointLineFor(AMainWin& win, const Spot& spot, bool mayHover);

/// Returns an id or name as one word of an events line, in quotes if needed.
std::string wordFor(std::string_view name);

} // namespace tgx
