#include "devtools/spot.h"

#include "player/words.h"
#include "tgx/controls/listbox/listbox.h"
#include "tgx/frame/mainwin.h"

#include <algorithm>
#include <typeinfo>

namespace tgx {

namespace {

/// How much of the pointer's position matters to a window.
enum class Sense { Nothing, Cell, Point };

Sense senseOf(const AWnd& wnd)
{
    switch (wnd.getWindowType()) {
    case AWnd::WND_BUTTON:
    case AWnd::WND_RADIOBUTTON:
    case AWnd::WND_COMBOBOX:
    case AWnd::WND_EDITBOX: // a click anywhere puts the cursor at the end of the text
    case AWnd::WND_TABCONTROL:
    case AWnd::WND_PROGRESSBAR:
    case AWnd::WND_GRAPH:
        return Sense::Nothing;
    case AWnd::WND_LISTBOX:
        return dynamic_cast<const AListBox*>(&wnd) ? Sense::Cell : Sense::Point;
    case AWnd::WND_PLAIN:
        return typeid(wnd) == typeid(AWnd) ? Sense::Nothing : Sense::Point; // a game's own class may be a map
    default:
        return Sense::Point;
    }
}

/// Returns whether a line with the window's id finds this window.
bool isFoundById(AMainWin& win, const AWnd& wnd)
{
    return !wnd.getID().IsEmpty() && findMeantWindow(win, wnd.getID().str()) == &wnd;
}

/// Returns the window, or the nearest one around it, to which a point can be relative. Null if the screen's
/// corner is the best reference.
AWnd* referenceFor(AMainWin& win, AWnd* wnd)
{
    for (; wnd && wnd->getWindowType() != AWnd::WND_SCREEN; wnd = wnd->getParent())
        if (isFoundById(win, *wnd))
            return movingFrom(*wnd) ? nullptr : wnd;
    return nullptr;
}

} // namespace

std::string wordFor(std::string_view name)
{
    const auto isPlain = [](char c) { return c > 0x20 && c < 0x7F && c != '"'; };
    const bool needsNoQuotes =
        !name.empty() && name != "none" && std::all_of(name.begin(), name.end(), isPlain);
    return needsNoQuotes ? std::string(name) : quoteWord(name);
}

Spot spotAt(AMainWin& win, const ScreenPoint& point, PointerAct act)
{
    const Reach reach = reachAt(win, point.x, point.y, act);
    Spot spot{.point = point, .wnd = reach.wnd, .cell = {}, .hindrance = reach.hindrance};
    if (const auto* list = dynamic_cast<const AListBox*>(reach.wnd))
        spot.cell = cellAt(*list, point);
    spot.isTypedInto = reach.target && reach.target->getWindowType() == AWnd::WND_EDITBOX;
    return spot;
}

bool haveSameEffect(const Spot& a, const Spot& b)
{
    if (a.wnd.get() != b.wnd.get())
        return false;
    const Sense sense = a.wnd ? senseOf(*a.wnd) : Sense::Point;
    const bool isSamePoint = a.point == b.point;
    if (sense == Sense::Cell)
        return a.cell == b.cell && (a.cell.item >= 0 || isSamePoint);
    return sense == Sense::Nothing || isSamePoint;
}

bool haveSameEffectForKeys(const Spot& a, const Spot& b)
{
    const bool isList = a.wnd && senseOf(*a.wnd) == Sense::Cell; // whose hot row follows the pointer
    return isList ? haveSameEffect(a, b) : a.wnd.get() == b.wnd.get();
}

std::optional<CellPlace> hotCellOf(const AWnd* wnd)
{
    const auto* list = dynamic_cast<const AListBox*>(wnd);
    if (!list || list->getHotItem() < 0 || list->getHotColumn() < 0)
        return std::nullopt;
    return CellPlace{list->getHotItem(), list->getHotColumn()};
}

std::optional<PointingLine> clickLineFor(AMainWin& win, const Spot& spot)
{
    if (!spot.wnd || !isFoundById(win, *spot.wnd))
        return std::nullopt;
    AWnd& wnd = *spot.wnd;
    PointingLine line;
    line.runsFrames = true;
    const std::string id = wordFor(wnd.getID().view());
    if (spot.cell.item >= 0) {
        line.text = "row " + id + ' ' + std::to_string(spot.cell.item);
        if (spot.cell.column > 0)
            line.text += ' ' + std::to_string(spot.cell.column);
        line.point = middleOfCell(static_cast<const AListBox&>(wnd), spot.cell);
    } else {
        line.text = "click " + id;
        line.point = middleOf(wnd);
    }
    if (!whyNotReached(win, wnd, line.point.x, line.point.y, PointerAct::Click).empty() ||
        !haveSameEffect(spot, spotAt(win, line.point, PointerAct::Click)))
        return std::nullopt;
    return line;
}

PointingLine pointLineFor(AMainWin& win, const Spot& spot, bool mayHover)
{
    AWnd* wnd = spot.wnd;
    if (mayHover && wnd && senseOf(*wnd) == Sense::Nothing && isFoundById(win, *wnd)) {
        const ScreenPoint middle = middleOf(*wnd);
        if (whyNotReached(win, *wnd, middle.x, middle.y, PointerAct::Point).empty())
            return {"hover " + wordFor(wnd->getID().view()), middle, true};
    }
    const auto [x, y] = spot.point;
    if (const AWnd* from = referenceFor(win, wnd))
        return {"move to " + wordFor(from->getID().view()) + ' ' + std::to_string(x - from->left()) + ' ' +
                    std::to_string(y - from->top()),
                spot.point};
    return {"move " + std::to_string(x) + ' ' + std::to_string(y), spot.point};
}

} // namespace tgx
