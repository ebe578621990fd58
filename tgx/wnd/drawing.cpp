#include "platform/display/surface.h"
#include "tgx/base/fixed.h"
#include "tgx/wnd/border.h"
#include "tgx/wnd/child_walk.h"
#include "tgx/wnd/stage.h"
#include "tgx/wnd/wnd.h"

#include <algorithm>

namespace {

/// The tiles of a row or column that touch the screen: from first up to, but not including, end.
struct Steps {
    int first, end;
};

/// Returns the tiles that touch the screen. A tile of size pixels begins every stride pixels from start; the
/// last one is cut at start + length.
Steps stepsOnScreen(int start, int length, int stride, int size, int screen)
{
    const int count = (length + stride - 1) / stride;
    int first = 0;
    if (start + size <= 0)
        first = (-start - size) / stride + 1;
    const bool isOff = screen <= start || start + length <= 0;
    const int end = isOff ? 0 : std::min(count, (screen - start + stride - 1) / stride);
    return {first, end};
}

/// A popup that has slid away is closed by the window that opened it.
void closeFinishedPopup(const AWnd& opener)
{
    tgx::Stage* stage = tgx::stage();
    if (!stage || stage->getPopupWndCount() == 0)
        return;
    const AWnd* popup = opener.getPopupWnd();
    if (popup && popup->hasWndAnimData() && popup->isWndAnimFinished())
        stage->deletePopupWnd();
}

} // namespace

void AWnd::draw(int frameStep)
{
    const Layout& at = layout();
    if (!at.visible)
        return;
    const int atLeft = at.left;
    const int atTop = at.top;

    if (bkgnd) {
        if (bmpStretch)
            bkgnd->blit(atLeft, atTop, width(), height(), nullptr, -1);
        else
            bkgnd->blit(atLeft, atTop, 0, 0, width(), height(), -1, -1, nullptr, -1);
    }
    if (bmp && frameCount > 0) {
        advanceFrame(frameStep);
        paintBitmap(atLeft, atTop);
    }
    if (border)
        border->draw(atLeft, atTop, width(), height());
    if (!windowText.IsEmpty()) {
        // A right-justified text ends textOffsetX pixels before the right edge.
        const int x = textJustify == TJ_RIGHT ? atLeft : atLeft + textOffsetX;
        textOut(x, atTop + textOffsetY, width() - textOffsetX, height() - textOffsetY, windowText,
                textJustify, textWrap, ZnFixed::fromInt(1), 0, nullptr);
    }
    if (children.GetSize() > 0) {
        ChildWalk walk(children);
        while (walk.canContinue()) {
            prefetchChildren(walk.getIndex());
            if (AWnd* next = walk.next())
                next->draw(frameStep);
        }
        if (!walk.isHolderAlive())
            return;
    }

    closeFinishedPopup(*this);
    if (frameStep != 0 && anim && !anim->updatePos(frameStep) && anim->getDeleteWhenDone()) {
        anim.reset();
        LayoutVersion::bump();
    }
}

/// Prefetches the next windows and their bitmaps while this one is drawn: drawing many small windows mostly
/// waits for memory.
void AWnd::prefetchChildren(int index) const
{
    constexpr int windowsAhead = 8;
    constexpr int bitmapsAhead = 4;
    const int count = children.GetSize();
    if (index + windowsAhead < count) {
        const char* wnd = reinterpret_cast<const char*>(child(index + windowsAhead));
        __builtin_prefetch(wnd);
        __builtin_prefetch(wnd + 64);
        __builtin_prefetch(wnd + 128);
    }
    if (index + bitmapsAhead < count && child(index + bitmapsAhead))
        __builtin_prefetch(child(index + bitmapsAhead)->bmp);
}

void AWnd::advanceFrame(int frameStep)
{
    if (frameStep == 0 || !doNextFrame(frameStep))
        return;
    const int end = firstFrame + frameCount;
    int next = currentFrame + frameStep;
    if (next >= end)
        next = loop ? firstFrame : end - 1;
    currentFrame = to16(std::max<int>(next, firstFrame));
}

void AWnd::paintBitmap(int atLeft, int atTop)
{
    int srcX = (frameWidth + 1) * currentFrame + bmpSourceX;
    int srcY = bmpSourceY;
    if (bmp->width > 2 * frameWidth)
        getStartPosForFrame(currentFrame, bmp, frameWidth, frameHeight, srcX, srcY);

    int x = atLeft + bmpOffsetX;
    int y = atTop + bmpOffsetY;
    int w = width();
    int h = height();
    if (border) {
        const int inset = border->getBorderWidth();
        x += inset;
        y += inset;
        w = std::max(1, w - 2 * inset);
        h = std::max(1, h - 2 * inset);
    }

    const int sourceW = std::min(frameWidth, bmp->width);
    const int sourceH = std::min(frameHeight, bmp->height);
    if (bmpTile)
        paintTiles(srcX, srcY, x, y, w, h);
    else if (bmpStretch)
        bmp->blit(x, y, srcX, srcY, w, h, sourceW, sourceH, nullptr, bmpBlitMode);
    else
        bmp->blit(x, y, srcX, srcY, std::min(w, sourceW), std::min(h, sourceH), -1, -1, nullptr, bmpBlitMode);
}

/// Paints the tiles, leaving out those that are wholly off the screen.
void AWnd::paintTiles(int srcX, int srcY, int x, int y, int w, int h)
{
    const tgx::Stage* stage = tgx::stage();
    if (!stage || bmp->width <= 0 || bmp->height <= 0)
        return;
    const int tileW = std::min({int(frameWidth), w, int(bmp->width)});
    const int tileH = std::min({int(frameHeight), h, int(bmp->height)});
    const Steps columns = stepsOnScreen(x, w, bmp->width, tileW, stage->screenWidth);
    const Steps rows = stepsOnScreen(y, h, bmp->height, tileH, stage->screenHeight);
    for (int row = rows.first; row < rows.end; ++row) {
        const int toY = y + row * bmp->height;
        for (int column = columns.first; column < columns.end; ++column) {
            const int toX = x + column * bmp->width;
            bmp->blit(toX, toY, srcX, srcY, std::min(tileW, x + w - toX), std::min(tileH, y + h - toY), -1,
                      -1, nullptr, bmpBlitMode);
        }
    }
}
