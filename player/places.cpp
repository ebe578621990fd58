#include "player/places.h"

#include "tgx/controls/listbox/listbox.h"

#include <algorithm>

namespace tgx {

namespace {

int rowStep(const AListBox& list)
{
    return std::max(list.getRowHeight(), 1);
}

/// Returns the y at which the first row of the page begins.
int pageTop(const AListBox& list)
{
    const int rowsWithTitle = (list.getItemsEndPosY() - list.getItemsStartPosY(0)) / rowStep(list);
    return list.getItemsStartPosY(1) + (rowsWithTitle - list.getItemsPerPage()) * rowStep(list);
}

} // namespace

ScreenPoint middleOf(const AWnd& wnd)
{
    return {wnd.left() + wnd.width() / 2, wnd.top() + wnd.height() / 2};
}

CellPlace cellAt(const AListBox& list, const ScreenPoint& point)
{
    const int below = point.y - pageTop(list);
    const int row = below / rowStep(list);
    const int item = list.getFirstVisibleItem() + row;
    if (below < 0 || row >= list.getItemsPerPage() || item >= list.getItemCount())
        return {};
    return {item, list.getColumnAtPos(point.x)};
}

ScreenPoint middleOfCell(const AListBox& list, const CellPlace& cell)
{
    int x = list.getItemsStartPosX(1) + list.getColumnGap();
    for (int i = 0; i < cell.column; ++i)
        x += list.getColumnWidth(i) + list.getColumnGap();
    const int row = cell.item - list.getFirstVisibleItem();
    return {x + list.getColumnWidth(cell.column) / 2,
            pageTop(list) + row * rowStep(list) + rowStep(list) / 2};
}

} // namespace tgx
