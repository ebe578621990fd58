#include "tgx/base/fixed.h"
#include "tgx/controls/listbox/listbox.h"
#include "tgx/controls/scrollbar.h"
#include "tgx/wnd/stage.h"

#include <cstdlib>

int AListBox::handleMouseAction(const CString& about, AWnd* wnd, int x, int y, E_MOUSEACTION action)
{
    const ActionRefs handling(this, wnd);
    AWnd::handleMouseAction(about, wnd, x, y, action);

    if (!handling.canContinue() || !isVisible(1) || (scrollBar && scrollBar->pointInside(x, y)))
        return 0;
    // Keys are sent to all windows; only the list that is named handles them.
    if (wnd && wnd->getID() != id)
        return 0;
    switch (action) {
    case MA_LBUTTONDOWN:
    case MA_RBUTTONDOWN:
        setHotFromPointer(x, y);
        select();
        break;
    case MA_LBUTTONUP: // also the key Return, which selects the hot row or cell
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

void AListBox::setHotFromPointer(int x, int y)
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

/// Updates the hot position if the pointer has moved; one set by keys stays until then.
void AListBox::followPointer(int x, int y)
{
    const tgx::Stage* stage = tgx::stage();
    if (stage->mouseX == stage->prevMouseX && stage->mouseY == stage->prevMouseY)
        return;
    clearPointerMove();

    if (!isEnabled() || x < getItemsStartPosX(1) || x > getItemsEndPosX(1) || y < getItemsStartPosY(1) ||
        y > getItemsEndPosY() + rowStep()) {
        hotItem = -1;
        hotColumn = 0;
        return;
    }
    setHotFromPointer(x, y);
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

/// Makes the next idle tick see no movement of the pointer.
void AListBox::clearPointerMove()
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
        clearPointerMove();
        break;
    }
    case VK_UP:
    case VK_DOWN: {
        clearPointerMove();
        const int item = nextSelectableItem(key == VK_UP ? -1 : 1);
        if (item < 0 || item >= getItemCount())
            return;
        const int distance = std::abs(item - hotItem);
        hotItem = to16(item);
        // The list scrolls when the hot row reaches the first or last row of the page.
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

/// Returns the next selectable place after place in direction; with wrap the search from an end continues at
/// the other one. Returns a value outside 0 to count - 1 if there is none.
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
