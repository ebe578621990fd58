#include "tgx/wnd/anim.h"

#include "tgx/base/fixed.h"
#include "tgx/wnd/wnd.h"

#include <algorithm>

namespace {

constexpr ZnFixed fullScale = ZnFixed::fromInt(1);

void growScale(ZnFixed& scale, ZnFixed increment)
{
    if (scale < fullScale)
        scale.raw += increment.raw;
}

bool isScaleAtRest(ZnFixed scale)
{
    return scale == fullScale || scale.raw == 0;
}

/// Moves offset by the whole part of increment per tick, so half a pixel per tick moves nothing. The offset
/// stops at end.
void walk(short& offset, short end, ZnFixed increment, int frameStep)
{
    if (increment.raw == 0 || offset == end)
        return;
    offset = to16(static_cast<int>(offset + static_cast<long long>(increment.toInt()) * frameStep));
    if (increment.raw < 0 ? offset < end : offset > end)
        offset = end;
}

} // namespace

APhysicalAnim& APhysicalAnim::operator=(const APhysicalAnim& other)
{
    incPosX = other.incPosX;
    incPosY = other.incPosY;
    animOffsetX = other.animOffsetX;
    animOffsetY = other.animOffsetY;
    endPosX = other.endPosX;
    endPosY = other.endPosY;
    incScaleW = other.incScaleW;
    incScaleH = other.incScaleH;
    scaleW = other.scaleW;
    scaleH = other.scaleH;
    deleteWhenDone = other.deleteWhenDone;
    LayoutVersion::bump();
    return *this;
}

void APhysicalAnim::setMoveAnimation(int startX, int startY, int endX, int endY, ZnFixed incX, ZnFixed incY,
                                     int whenDone)
{
    animOffsetX = to16(startX);
    animOffsetY = to16(startY);
    endPosX = to16(endX);
    endPosY = to16(endY);
    incPosX = incX;
    incPosY = incY;
    deleteWhenDone = whenDone & 1;
    LayoutVersion::bump();
}

void APhysicalAnim::setScaleAnimation(ZnFixed, ZnFixed, ZnFixed, ZnFixed, int) {}

void APhysicalAnim::reset()
{
    *this = APhysicalAnim();
}

int APhysicalAnim::updatePos(int frameStep)
{
    if (frameStep == 0)
        return 1;

    const short beforeX = animOffsetX;
    const short beforeY = animOffsetY;
    const ZnFixed beforeW = scaleW;
    const ZnFixed beforeH = scaleH;
    if (incScaleW.raw != 0 || incScaleH.raw != 0) {
        growScale(scaleW, incScaleW);
        growScale(scaleH, incScaleH);
        scaleW = std::clamp(scaleW, ZnFixed(), fullScale);
        scaleH = std::clamp(scaleH, ZnFixed(), fullScale);
    }
    walk(animOffsetX, endPosX, incPosX, frameStep);
    walk(animOffsetY, endPosY, incPosY, frameStep);
    if (animOffsetX != beforeX || animOffsetY != beforeY || scaleW.raw != beforeW.raw ||
        scaleH.raw != beforeH.raw)
        LayoutVersion::bump();
    return isWndAnimFinished() ? 0 : 1;
}

int APhysicalAnim::isWndAnimFinished() const
{
    return isScaleAtRest(scaleW) && isScaleAtRest(scaleH) && animOffsetX == endPosX && animOffsetY == endPosY;
}

APhysicalAnim& AWnd::makeAnim()
{
    if (!anim)
        anim = std::make_unique<APhysicalAnim>();
    return *anim;
}

void AWnd::setMoveAnimation(int startX, int startY, int endX, int endY, ZnFixed incX, ZnFixed incY,
                            int deleteWhenDone)
{
    makeAnim().setMoveAnimation(startX, startY, endX, endY, incX, incY, deleteWhenDone);
}

void AWnd::setScaleAnimation(ZnFixed, ZnFixed, ZnFixed, ZnFixed)
{
    makeAnim();
}

void AWnd::setShrinkAnimation(ZnFixed speed)
{
    makeAnim().setMoveAnimation(0, 0, width() / 2, height() / 2, speed, speed, 1);
}

void AWnd::setGrowAnimation(ZnFixed speed)
{
    // speed only gives the rate; the direction back to rest is negative.
    const ZnFixed towardsRest = ZnFixed::fromRaw(speed.raw > 0 ? -speed.raw : speed.raw);
    makeAnim().setMoveAnimation(width() / 2, height() / 2, 0, 0, towardsRest, towardsRest, 1);
}
