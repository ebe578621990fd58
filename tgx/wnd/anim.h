#pragma once

#include "platform/framework/znfixed.h"
#include "tgx/export.h"

/// The movement of a window: an offset from its resting place that moves towards an end, tick by tick, while
/// the window is drawn, and a scale of its size. Owned by its window, which creates it on demand.
class TGX_API APhysicalAnim {
public:
    APhysicalAnim() = default;
    APhysicalAnim(const APhysicalAnim&) = default;
    APhysicalAnim& operator=(const APhysicalAnim& other);
    virtual ~APhysicalAnim() = default;

    /// Starts a movement. Start and end are in pixels from the resting place, increments in pixels per tick,
    /// of which only the whole part counts. The direction of the increments is not checked. Only the lowest
    /// bit of deleteWhenDone is used.
    void setMoveAnimation(int startX, int startY, int endX, int endY, ZnFixed incX, ZnFixed incY,
                          int deleteWhenDone);
    /// Does nothing. The game's classes may implement a scale animation by writing the fields; their window
    /// then calls layoutChanged.
    void setScaleAnimation(ZnFixed, ZnFixed, ZnFixed, ZnFixed, int);
    /// Resets all fields to their defaults: finished and at rest.
    void reset();
    /// Advances the offsets by frameStep ticks, and the scale by one increment whatever the step. Returns 1
    /// while the movement runs, 0 once it has finished. A step of 0 changes nothing and returns 1.
    int updatePos(int frameStep);
    /// Returns 1 if the offsets have reached their ends and each scale is 1.0 or 0.
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
    ZnFixed incPosX, incPosY;     // pixels per tick
    short animOffsetX = 0;        // pixels
    short animOffsetY = 0;        // pixels
    short endPosX = 0;            // pixels
    short endPosY = 0;            // pixels
    ZnFixed incScaleW, incScaleH; // per drawn frame
    ZnFixed scaleW = ZnFixed::fromInt(1);
    ZnFixed scaleH = ZnFixed::fromInt(1);
    unsigned deleteWhenDone : 1 = 1;
};
