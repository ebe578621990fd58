#include "tgx/controls/progressbar.h"

#include "platform/display/surface.h"
#include "tgx/base/fixed.h"
#include "tgx/base/swapped.h"

#include <algorithm>

namespace {

constexpr ZnFixed full = ZnFixed::fromInt(100);

} // namespace

AProgressBar::AProgressBar(const CString& name, int x, int y, int width, int height)
    : AWnd(WND_PROGRESSBAR, name, x, y, width, height)
{}

void AProgressBar::setPercentage(ZnFixed value)
{
    percentage = std::clamp(value, ZnFixed(), full);
}

bool AProgressBar::hasEmptyPicture() const
{
    return 2 * frameWidth <= bmp->width;
}

/// Draws a part of frame 0, from its left edge and srcY, at the window's left edge and y.
void AProgressBar::drawFull(int srcY, int y, int w, int h)
{
    bmp->blit(left(), y, 0, srcY, w, h, -1, -1, nullptr, -1);
}

/// Draws the upper h rows of frame 1.
void AProgressBar::drawEmpty(int h)
{
    bmp->blit(left(), top(), frameWidth + 1, 0, frameWidth, h, -1, -1, nullptr, -1);
}

void AProgressBar::draw(int frameStep)
{
    {
        const Swapped<surface*> noBitmap(bmp, nullptr); // the base paints everything except the bar
        AWnd::draw(frameStep);
    }
    if (!isVisible(1) || !bmp)
        return;
    const ZnFixed fraction = percentage / full;
    if (horizontal) {
        if (hasEmptyPicture())
            drawEmpty(frameHeight);
        drawFull(0, top(), scaledSize(frameWidth, fraction), frameHeight);
    } else {
        const int filled = scaledSize(frameHeight, fraction);
        if (hasEmptyPicture())
            drawEmpty(frameHeight - filled);
        drawFull(frameHeight - filled, bottom() - filled, frameWidth, filled);
    }
}
