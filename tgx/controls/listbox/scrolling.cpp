#include "tgx/base/fixed.h"
#include "tgx/controls/listbox/listbox.h"
#include "tgx/controls/scrollbar.h"
#include "tgx/wnd/reserved.h"

#include <algorithm>

namespace {

constexpr ZnFixed full = ZnFixed::fromInt(100);

constexpr const char* barBitmap = "uig\\scroll1.bmp"; // of the bar that a list creates
constexpr int barThickness = 16;
constexpr int barFrameHeight = 26;

} // namespace

AScrollBar* AListBox::getScrollBar() const
{
    return static_cast<AScrollBar*>(scrollBar.get());
}

int AListBox::scroll(int up, int page)
{
    AScrollBar* bar = getScrollBar();
    if (!bar || (firstVisibleItem < 1 && getItemCount() < getItemsPerPage()))
        return 0;
    const int steps = page ? getItemsPerPage() : 1;
    scrollTo(bar->getPercentageAfter(up ? -steps : steps));
    return 1;
}

int AListBox::scrollTo(ZnFixed percentage)
{
    if (AScrollBar* bar = getScrollBar())
        bar->setPercentage(percentage);
    const int page = getItemsPerPage();
    if (getItemCount() < page)
        return 0;

    // A fraction of at least 4056 of 4096 counts as the next row, because the percentage of a whole row is
    // rounded down.
    constexpr int almostOne = 4055;
    const ZnFixed rows = percentage / full * ZnFixed::fromInt(getItemCount() - page);
    const int whole = rows.toInt();
    firstVisibleItem = to16(whole + (rows.raw - whole * ZnFixed::one > almostOne));
    return 1;
}

int AListBox::scrollToLastItem()
{
    if (getItemCount() < getItemsPerPage())
        return 0;
    scrollTo(full);
    return 1;
}

void AListBox::setFirstVisibleItem(int item)
{
    const int rows = getItemCount();
    if (item >= rows || item == firstVisibleItem)
        return;
    if (rows - item < getItemsPerPage())
        item -= getItemsPerPage();
    firstVisibleItem = to16(item);
    hotItem = to16(item);
    if (AScrollBar* bar = getScrollBar()) {
        bar->setPercentage(ZnFixed::fromInt(item) * bar->getStep());
        scrollTo(bar->getPercentage());
    }
}

int AListBox::createScrollBar()
{
    if (scrollBar)
        return 0;
    const int inset = borderInset();
    auto* bar = new AScrollBar(tgx::part::scrollBar, width() - inset - barThickness, titleHeight() + inset,
                               barThickness, height() - titleHeight() - 2 * inset);
    addChildWindow(bar);
    scrollBar = bar;
    bar->setBmp(CString(barBitmap));
    bar->setBmpInfo(barThickness, barFrameHeight, 0, 0);
    return 1;
}

void AListBox::updateScrollBarHeight()
{
    if (scrollBar)
        scrollBar->setWndPos(scrollBar->wndX(), scrollBar->wndY(), scrollBar->width(),
                             height() - titleHeight() - 2 * borderInset());
}
