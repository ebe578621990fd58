// Positions of rows and columns.

#include "tgx/controls/listbox/listbox.h"
#include "tgx/controls/scrollbar.h"

#include <algorithm>

int AListBox::getColumnStartPos(int column) const
{
    int start = columnGap;
    for (int i = 0; i < column; ++i)
        start += columnWidths[i] + columnGap;
    return start;
}

int AListBox::getItemsStartPosX(int withOffset) const
{
    return left() + borderInset() + (withOffset ? textOffsetX : 0);
}

int AListBox::getItemsStartPosY(int withOffset) const
{
    return top() + borderInset() + (withOffset ? textOffsetY : 0);
}

int AListBox::getItemsEndPosX(int withOffset) const
{
    int edge = right() - borderInset();
    if (scrollBar && scrollBar->isVisible(1))
        edge -= scrollBar->width();
    if (textOffsetX == 0 || !withOffset)
        return edge;
    return std::min(edge, getItemsStartPosX(withOffset) + getColumnStartPos(getColumnCount()));
}

int AListBox::getItemsEndPosY() const
{
    return bottom() - borderInset();
}

int AListBox::getItemsPerPage() const
{
    return (height() - 2 * borderInset()) / rowStep() - hasTitleRow();
}

bool AListBox::isOnPage(int item) const
{
    return item >= firstVisibleItem && item < firstVisibleItem + getItemsPerPage();
}

int AListBox::getItemAtPos(int y) const
{
    const ZnFixed rows = ZnFixed::fromInt(y - textOffsetY - borderInset()) / ZnFixed::fromInt(rowStep());
    const int item = firstVisibleItem + rows.toInt() - hasTitleRow();
    return item >= getItemCount() ? -1 : item;
}

int AListBox::getColumnAtPos(int x) const
{
    int end = left() + borderInset() + textOffsetX + columnGap;
    for (int column = 0; column < getColumnCount(); ++column) {
        end += columnWidths[column] + columnGap;
        if (x < end)
            return column;
    }
    return 0;
}

int AListBox::getMousePosOfFirstSelectableItem(int& x, int& y) const
{
    const int inset = borderInset();
    x = left() + inset + textOffsetX + (getItemsEndPosX(1) - textOffsetX - inset - left()) / 2;
    y = top() + inset + textOffsetY + rowStep() / 2 + titleHeight();
    for (int count = 0;; ++count, y += rowStep()) {
        int item = getItemAtPos(getWndY(y));
        while (item == -1) {
            y += rowStep();
            item = getItemAtPos(getWndY(y));
            if (y > top() + height() - inset)
                return 0;
        }
        if (!isNonSelectable(item, 0))
            return count < getItemsPerPage();
    }
}
