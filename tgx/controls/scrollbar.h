#pragma once

#include "tgx/wnd/wnd.h"

/// A bar with a button at each end and a lever between them. Its value is a percentage, whatever it scrolls.
/// Inside an AListBox it scrolls that list; elsewhere the game reads the value.
///
/// Its bitmap is a strip of six frames: first button at rest and pressed, second button at rest and pressed,
/// trough, lever.
class TGX_API AScrollBar : public AWnd {
public:
    /// Makes a bar without a bitmap, of which only the lever's outline is drawn.
    AScrollBar(const CString& id, int x, int y, int width, int height);

    void draw(int frameStep) override;
    void startup() override;
    void close() override;
    /// Always returns 0, so that the windows above handle the action too.
    int handleMouseAction(const CString& id, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;

    /// Stores value, limited to 0 to 100.0. Does not scroll anything.
    void setPercentage(ZnFixed value);
    ZnFixed getPercentage() const { return percentage; }
    /// Sets the percentage points by which a click on an end button moves the lever; any value is accepted.
    void setStep(ZnFixed value) { step = value; }
    ZnFixed getStep() const { return step; }
    /// Returns the percentage after moving by steps, which may be negative, limited as above.
    ZnFixed getPercentageAfter(int steps) const;
    int getLeverHeld() const { return leverHeld; }
    int getHorizontal() const { return horizontal; }
    /// Stores the lowest bit of set.
    void setHorizontal(int set) { horizontal = set & 1; }

protected:
    ZnFixed percentage;                 // 0 to 100.0
    ZnFixed step = ZnFixed::fromInt(1); // percentage points
    unsigned leverHeld : 1 = 0;         // until the release, even if the pointer has left the lever
    unsigned prevPressed : 1 = 0;       // the button at the start is drawn pressed
    unsigned nextPressed : 1 = 0;       // the button at the end is drawn pressed
    unsigned horizontal : 1 = 0;

private:
    // Lengths and positions along the axis, in pixels from the window's start.
    int getFrameSize() const { return horizontal ? frameWidth : frameHeight; }
    int getScrollLength() const { return horizontal ? width() : height(); }
    int getScrollWide() const { return horizontal ? height() : width(); }
    int getTravel() const { return getScrollLength() - 3 * getFrameSize(); }
    int getLeverWndPos() const;
    int getPercentageFromWndPos(int pos) const;
    int getMouseWndPos(int x, int y) const { return horizontal ? getWndX(x) : getWndY(y); }
    void press(int pos);
    void release();
    AListBox* getList() const;
    void applyPercentage();
    void blitFrame(int frame, int along, int length);
    void outlineLever(int lever);
};
