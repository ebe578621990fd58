#include "tgx/base/fixed.h"
#include "tgx/controls/listbox/listbox.h"
#include "tgx/controls/scrollbar.h"
#include "tgx/wnd/stage.h"

#include <cstdlib>

int AListBox::handleMouseAction(const CString& about, AWnd* wnd, int x, int y, E_MOUSEACTION action)
{
    const ActionRefs handling(this, wnd);
    AWnd::handleMouseAction(about, wnd, x, y, action);

    if (!handling.mayGoOn() || !isVisible(1) || (scrollBar && scrollBar->pointInside(x, y)))
        return 0;
    // Keys go to all windows: only the list that is meant takes them.
    if (wnd && wnd->getID() != id)
        return 0;
    switch (action) {
    case MA_LBUTTONDOWN:
    case MA_RBUTTONDOWN:
        takeHotFromPointer(x, y);
        select();
        break;
    case MA_LBUTTONUP: // also the key Return, which selects what the arrows have made hot
        select();
        break;
    case MA_LBUTTONDBLCLK:
        setSelectedItem(hotItem);
        setSelectedColumn(hotColumn);
        break;
    case MA_WHEELUP:
        followWheel(-1);
        break;
    case MA_WHEELDOWN:
        followWheel(1);
        break;
    case MA_MOVE:
        followPointer(x, y);
        break;
    case MA_KEY:
        followKey(tgx::stage()->keyCode);
        break;
    default:
        break;
    }
    return 0;
}

int AListBox::handleKeyInput(char key)
{
    return AWnd::handleKeyInput(key);
}

int AListBox::handleLostFocus()
{
    if (savedHotItem < 0) {
        savedHotItem = hotItem;
        savedHotColumn = hotColumn;
    }
    hotItem = -1;
    hotColumn = 0;
    return 1;
}

void AListBox::takeHotFromPointer(int x, int y)
{
    hotItem = to16(getItemAtPos(getWndY(y)));
    hotColumn = to16(getColumnAtPos(x));
}

void AListBox::select()
{
    if (hotItem < 0 || hotColumn < 0 || isNonSelectable(hotItem, hotColumn)) {
        hotItem = hotColumn = -1;
        selectedItem = selectedColumn = -1;
        return;
    }
    selectedItem = hotItem;
    selectedColumn = hotColumn;
    if (singleSelectPeer)
        static_cast<AListBox*>(singleSelectPeer.get())->setSelectedItem(-1);
}

void AListBox::followWheel(int direction)
{
    if (!scrollBar || (firstVisibleItem < 1 && getItemCount() < getItemsPerPage()))
        return;
    scrollTo(getScrollBar()->getPercentageAfter(direction));
}

/// A hot row that keys have set stays until the pointer really moves.
void AListBox::followPointer(int x, int y)
{
    const tgx::Stage* stage = tgx::stage();
    if (stage->mouseX == stage->prevMouseX && stage->mouseY == stage->prevMouseY)
        return;
    holdPointer();

    if (!isEnabled() || x < getItemsStartPosX(1) || x > getItemsEndPosX(1) || y < getItemsStartPosY(1) ||
        y > getItemsEndPosY() + rowStep()) {
        hotItem = -1;
        hotColumn = 0;
        return;
    }
    takeHotFromPointer(x, y);
    if (isNonSelectable(hotItem, hotColumn)) {
        hotItem = -1;
        hotColumn = 0;
    }
    if (savedHotItem >= 0 && savedHotItem < getItemCount() && isOnPage(savedHotItem) &&
        !isNonSelectable(savedHotItem, 0)) {
        hotItem = savedHotItem;
        hotColumn = savedHotColumn;
    }
    savedHotItem = savedHotColumn = -1;
}

/// The next idle tick sees no movement.
void AListBox::holdPointer()
{
    tgx::Stage* stage = tgx::stage();
    stage->prevMouseX = stage->mouseX;
    stage->prevMouseY = stage->mouseY;
}

void AListBox::followKey(int key)
{
    switch (key) {
    case VK_LEFT:
    case VK_RIGHT: {
        const int column = nextSelectableColumn(key == VK_LEFT ? -1 : 1);
        if (column < 0 || column >= getColumnCount())
            return;
        hotColumn = to16(column);
        holdPointer();
        break;
    }
    case VK_UP:
    case VK_DOWN: {
        holdPointer();
        const int item = nextSelectableItem(key == VK_UP ? -1 : 1);
        if (item < 0 || item >= getItemCount())
            return;
        const int distance = std::abs(item - hotItem);
        hotItem = to16(item);
        // The hot row scrolls the list as it reaches the first or last row of the page.
        if (item <= firstVisibleItem)
            for (int i = 0; i < distance; ++i)
                scrollStep(-1);
        if (item >= firstVisibleItem + getItemsPerPage() - 1)
            for (int i = 0; i < distance; ++i)
                scrollStep(1);
        break;
    }
    default:
        break;
    }
}

void AListBox::scrollStep(int direction)
{
    if (scrollBar && (firstVisibleItem > 0 || getItemCount() >= getItemsPerPage()))
        scrollTo(getScrollBar()->getPercentageAfter(direction));
}

/// From place one by one in direction, to the first that is selectable; from an end, with wrap, round to the
/// other one. Outside the count when there is none.
template<class Selectable>
static int nextSelectable(int place, int count, int direction, bool wrap, Selectable isSelectable)
{
    if (direction < 0) {
        if (place == 0) {
            if (!wrap)
                return 0;
            place = count;
        }
        if (place <= 0)
            return -1;
        while (--place >= 0 && !isSelectable(place)) {
        }
        return place;
    }
    if (place >= count - 1) {
        if (!wrap)
            return place;
        place = -1;
    }
    while (++place < count && !isSelectable(place)) {
    }
    return place;
}

int AListBox::nextSelectableColumn(int direction) const
{
    return nextSelectable(hotColumn, getColumnCount(), direction, textWrap,
                          [this](int column) { return !isNonSelectable(hotItem, column); });
}

int AListBox::nextSelectableItem(int direction) const
{
    return nextSelectable(hotItem, getItemCount(), direction, textWrap,
                          [this](int item) { return !isNonSelectable(item, hotColumn); });
}
