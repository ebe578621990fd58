#include "platform/display/msgbox.h"
#include "platform/display/surface.h"
#include "tgx/base/fixed.h"
#include "tgx/wnd/stage.h"
#include "tgx/wnd/wnd.h"

#include <algorithm>
#include <string_view>

namespace {

bool isPackName(std::string_view name)
{
    return name.size() >= 4 && CString::equalNoCase(name.substr(name.size() - 4), ".pak");
}

} // namespace

void AWnd::setBmp(surface* newBmp)
{
    if (newBmp == bmp)
        return;
    tgx::Stage* stage = tgx::stage();
    if (bmp && stage)
        stage->deleteSurface(bmp);
    bmp = newBmp;
    if (!bmp)
        return;

    if (frameWidth <= 0)
        frameWidth = to16(std::min(width(), int(bmp->width)));
    if (frameHeight <= 0)
        frameHeight = to16(std::min(height(), int(bmp->height)));
    // A bitmap from a pack is not loaded by name again.
    bmpFilename = isPackName(bmp->filename) ? CString() : CString(bmp->filename);
}

void AWnd::setBmp(const CString& name)
{
    if (name.IsEmpty())
        return;
    const CString wanted = name; // name may refer to bmpFilename, which loading changes
    bmpFilename = wanted;
    tgx::Stage* stage = tgx::stage();
    if (!stage)
        return; // startup loads it

    if (!bmp || wanted != bmp->filename)
        setBmp(stage->createsprite(wanted, -1, -1, -1));
    if (!bmp)
        reportNotLoaded(wanted);
}

void AWnd::deleteBmp()
{
    if (!bmp || isPointer())
        return;
    if (tgx::Stage* stage = tgx::stage())
        stage->deleteSurface(bmp);
    bmp = nullptr;
}

void AWnd::setBmpFilename(const CString& name, int width, int height)
{
    bmpFilename = name;
    frameWidth = to16(width);
    frameHeight = to16(height);
}

void AWnd::setBmpInfo(int width, int height, int delay, int count)
{
    frameWidth = to16(width);
    frameHeight = to16(height);
    frameDelay = to16(delay);
    frameCount = to16(count);
}

void AWnd::setBmpOffset(int x, int y)
{
    bmpOffsetX = to16(x);
    bmpOffsetY = to16(y);
}

void AWnd::setBmpSourceInfo(int x, int y)
{
    bmpSourceX = to16(x);
    bmpSourceY = to16(y);
}

void AWnd::setCurrentFrame(int frame)
{
    currentFrame = to16(frame);
    if (frameCount == 1)
        firstFrame = currentFrame;
}

int AWnd::doNextFrame(int frameStep)
{
    if (frameDelay <= 0)
        return 0;
    frameTimer = to16(frameTimer + frameStep);
    if (frameTimer < frameDelay)
        return 0;
    frameTimer = 0;
    return 1;
}

void AWnd::getStartPosForFrame(int frame, surface* strip, int width, int height, int& x, int& y)
{
    const int stride = width + 1;
    x = stride * frame;
    y = 0;
    // The width of the whole frames in a row; 0, meaning a single row, if no frame fits or frames have no
    // width.
    const int row = stride > 0 ? strip->width / stride * stride : 0;
    if (row > 0 && x >= row) {
        y = x / row * (height + 1);
        x %= row;
    }
}

void AWnd::createBkgnd(surface* source, int darken)
{
    tgx::Stage* stage = tgx::stage();
    if (!stage)
        return;
    bkgnd = stage->createBkgndSection(source, left(), top(), width(), height(), bkgnd);
    if (darken)
        darkenRect(0, 0, width(), height());
}

void AWnd::deleteBkgnd()
{
    tgx::Stage* stage = tgx::stage();
    if (bkgnd && stage)
        stage->deleteSurface(bkgnd);
    bkgnd = nullptr;
}

void AWnd::renewBkgnds()
{
    tgx::Stage* stage = tgx::stage();
    if (bkgnd && stage)
        createBkgnd(stage->getBackdrop(), 0);
    for (int i = 0; i < children.GetSize(); ++i)
        if (AWnd* next = child(i))
            next->renewBkgnds();
}

int AWnd::darkenRect(int fromX, int fromY, int toX, int toY)
{
    tgx::Stage* stage = tgx::stage();
    if (!bkgnd || !stage)
        return 0;
    const unsigned long black = stage->getcol(0);
    const int startX = std::max(fromX, 0);
    const int startY = std::max(fromY, 0);
    const int endX = std::min(toX, int(bkgnd->width));
    const int endY = std::min(toY, int(bkgnd->height));
    for (int y = startY; y < endY; ++y) {
        // Every second pixel, counted from the rectangle's own corner.
        const int offset = static_cast<int>((0LL + startX - fromX + y - fromY) & 1);
        for (int x = startX + offset; x < endX; x += 2)
            bkgnd->setPixel(x, y, black);
    }
    return 1;
}
