#pragma once

#include "platform/framework/znfixed.h"
#include "tgx/export.h"

/// Movement of a window: an offset from its resting place that walks towards an end, tick by tick, while the
/// window is drawn; and a scale of its size. Owned by its window, which makes it on demand.
class TGX_API APhysicalAnim {
public:
    APhysicalAnim() = default;
    APhysicalAnim(const APhysicalAnim&) = default;
    APhysicalAnim& operator=(const APhysicalAnim& other);
    virtual ~APhysicalAnim() = default;

    /// Start and end in pixels from the resting place, increments in pixels a tick, of which only the whole
    /// part counts. Nothing compares the increments with the direction. deleteWhenDone: lowest bit.
    void setMoveAnimation(int startX, int startY, int endX, int endY, ZnFixed incX, ZnFixed incY,
                          int deleteWhenDone);
    /// Stores nothing: what a scale animation would be is left to the game's classes, which may write the
    /// fields (their window then calls layoutChanged).
    void setScaleAnimation(ZnFixed, ZnFixed, ZnFixed, ZnFixed, int);
    /// All fields back to their defaults: finished, at rest.
    void reset();
    /// Walks on by frameStep ticks; the scale by one increment whatever the step. 1 while running, 0 when
    /// finished. A step of 0 changes nothing and answers 1.
    int updatePos(int frameStep);
    /// 1 when offsets stand at their ends and each scale is 1.0 or 0.
    int isWndAnimFinished() const;

    ZnFixed getIncPosAnimX() const { return incPosX; }
    ZnFixed getIncPosAnimY() const { return incPosY; }
    int getAnimOffsetX() const { return animOffsetX; }
    int getAnimOffsetY() const { return animOffsetY; }
    int getEndPosAnimX() const { return endPosX; }
    int getEndPosAnimY() const { return endPosY; }
    ZnFixed getIncScaleAnimfloatW() const { return incScaleW; }
    ZnFixed getIncScaleAnimfloatH() const { return incScaleH; }
    ZnFixed getScaleW() const { return scaleW; }
    ZnFixed getScaleH() const { return scaleH; }
    int getDeleteWhenDone() const { return deleteWhenDone; }

protected:
    ZnFixed incPosX, incPosY;     // pixels a tick
    short animOffsetX = 0;        // pixels
    short animOffsetY = 0;        // pixels
    short endPosX = 0;            // pixels
    short endPosY = 0;            // pixels
    ZnFixed incScaleW, incScaleH; // a draw
    ZnFixed scaleW = ZnFixed::fromInt(1);
    ZnFixed scaleH = ZnFixed::fromInt(1);
    unsigned deleteWhenDone : 1 = 1;
};
