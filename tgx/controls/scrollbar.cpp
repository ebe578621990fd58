#include "tgx/controls/scrollbar.h"

#include "platform/display/surface.h"
#include "tgx/controls/listbox/listbox.h"
#include "tgx/wnd/stage.h"
#include "tgx/wnd/window_cast.h"

#include <algorithm>

namespace {

constexpr ZnFixed full = ZnFixed::fromInt(100);

enum Frame { FirstButton, FirstPressed, SecondButton, SecondPressed, Trough, Lever };

constexpr unsigned long outlineColour = 0xFFFFFF;

} // namespace

AScrollBar::AScrollBar(const CString& name, int x, int y, int width, int height)
    : AWnd(WND_SCROLLBAR, name, x, y, width, height)
{}

void AScrollBar::startup()
{
    AWnd::startup();
}

void AScrollBar::close()
{
    AWnd::close();
}

void AScrollBar::setPercentage(ZnFixed value)
{
    percentage = std::clamp(value, ZnFixed(), full);
}

ZnFixed AScrollBar::getPercentageAfter(int steps) const
{
    const long long moved = percentage.raw + static_cast<long long>(steps) * step.raw;
    return ZnFixed::fromRaw(static_cast<int>(std::clamp<long long>(moved, 0, full.raw)));
}

/// Returns the list box that contains this bar, or null.
AListBox* AScrollBar::getList() const
{
    AWnd* holder = getParent();
    return windowAs<AListBox>(holder);
}

/// Returns the centre of the lever: one and a half frames from the start, plus the fraction of the travel.
int AScrollBar::getLeverWndPos() const
{
    constexpr int oneAndAHalf = 6144;
    const long long fraction = (percentage / full).raw;
    return static_cast<int>((fraction * getTravel() + static_cast<long long>(getFrameSize()) * oneAndAHalf) /
                            ZnFixed::one);
}

/// Returns a whole percentage, without limits: a dragged lever moves in steps of 1.0, whatever step is.
/// Returns 0 if the lever cannot travel.
int AScrollBar::getPercentageFromWndPos(int pos) const
{
    const long long fromStart = (pos * 4096LL - getFrameSize() * 6144LL) / ZnFixed::one;
    return ((static_cast<int>(fromStart) / ZnFixed::fromInt(getTravel())) * full).toInt();
}

int AScrollBar::handleMouseAction(const CString&, AWnd*, int x, int y, E_MOUSEACTION action)
{
    if (!isVisible(1)) {
        release(); // a bar hidden while it is held would capture all input
        return 0;
    }
    // An end button is only drawn pressed after an action that has pressed it.
    prevPressed = 0;
    nextPressed = 0;
    switch (action) {
    case MA_LBUTTONDOWN: // arrives on every tick of the hold, which makes dragging and repeating work
        tgx::stage()->setMouseCaptureWnd(this);
        press(getMouseWndPos(x, y));
        applyPercentage();
        break;
    case MA_LBUTTONUP:
        release();
        applyPercentage();
        break;
    case MA_MOVE:
        release();
        break;
    default:
        break;
    }
    return 0;
}

void AScrollBar::release()
{
    leverHeld = 0;
    tgx::Stage* stage = tgx::stage();
    if (stage->getMouseCaptureWnd(0) == this)
        stage->setMouseCaptureWnd(nullptr);
}

void AScrollBar::press(int pos)
{
    const int lever = getLeverWndPos();
    const int half = getFrameSize() / 2;
    if (lever - half <= pos && pos <= lever + half)
        leverHeld = 1;
    if (leverHeld) {
        percentage = ZnFixed::fromInt(std::clamp(getPercentageFromWndPos(pos), 0, 100));
        return;
    }
    if (!tgx::stage()->isMouseDownInterval(-1))
        return;
    if (pos < getFrameSize()) {
        prevPressed = 1;
        percentage = getPercentageAfter(-1);
    } else if (pos > getScrollLength() - getFrameSize()) {
        nextPressed = 1;
        percentage = getPercentageAfter(1);
    } else if (const AListBox* list = getList()) {
        const int page = list->getItemsPerPage(); // a press beside the lever moves by a page
        percentage = getPercentageAfter(pos > lever + half ? page : -page);
    }
}

void AScrollBar::applyPercentage()
{
    setPercentage(percentage);
    if (AListBox* list = getList())
        list->scrollTo(percentage);
}

/// Blits length pixels of a frame along the axis; across it the frame keeps its own size.
void AScrollBar::blitFrame(int frame, int along, int length)
{
    const int source = frame * (frameWidth + 1);
    if (horizontal)
        bmp->blit(left() + along, top(), source, 0, length, frameHeight, -1, -1, nullptr, -1);
    else
        bmp->blit(left(), top() + along, source, 0, frameWidth, length, -1, -1, nullptr, -1);
}

void AScrollBar::outlineLever(int lever)
{
    const int size = getFrameSize() > 0 ? getFrameSize() : getScrollWide();
    const int start = lever - size / 2;
    const int x = left() + (horizontal ? start : 0);
    const int y = top() + (horizontal ? 0 : start);
    tgx::stage()->rectangle(x, y, x + (horizontal ? size : getScrollWide()),
                            y + (horizontal ? getScrollWide() : size), outlineColour);
}

void AScrollBar::draw(int frameStep)
{
    AWnd::draw(frameStep);
    if (!isVisible(1))
        return;
    const int lever = getLeverWndPos();
    if (!bmp) {
        outlineLever(lever);
        return;
    }
    const int size = getFrameSize();
    const int end = getScrollLength() - size;
    if (size > 0)
        for (int along = size; along < end; along += size)
            blitFrame(Trough, along, std::min(size, end - along));
    blitFrame(prevPressed ? FirstPressed : FirstButton, 0, size);
    blitFrame(nextPressed ? SecondPressed : SecondButton, end, size);
    blitFrame(Lever, lever - size / 2, size);
}
