#pragma once

#include "tgx/wnd/wnd.h"

/// A bar with a button at each end and a lever between them. Its value is a percentage, whatever it scrolls.
/// Inside an AListBox it scrolls that list by itself; elsewhere the game reads it.
///
/// Its bitmap is a strip of six frames: first button at rest and pressed, second button at rest and pressed,
/// trough, lever.
class TGX_API AScrollBar : public AWnd {
public:
    /// Without a bitmap only the lever's outline shows.
    AScrollBar(const CString& id, int x, int y, int width, int height);

    void draw(int frameStep) override;
    void startup() override;
    void close() override;
    /// 0, so that the action goes on up the tree.
    int handleMouseAction(const CString& id, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;

    /// Stores value, held between 0 and 100.0. Scrolls nothing by itself.
    void setPercentage(ZnFixed value);
    ZnFixed getPercentage() const { return percentage; }
    /// Percentage points that a click on an end button moves; no bounds.
    void setStep(ZnFixed value) { step = value; }
    ZnFixed getStep() const { return step; }
    /// The percentage that so many steps on, or back, lead to, held as above.
    ZnFixed getPercentageAfter(int steps) const;
    int getLeverHeld() const { return leverHeld; }
    int getHorizontal() const { return horizontal; }
    /// Lowest bit.
    void setHorizontal(int set) { horizontal = set & 1; }

protected:
    ZnFixed percentage;                 // 0 to 100.0
    ZnFixed step = ZnFixed::fromInt(1); // percentage points
    unsigned leverHeld : 1 = 0;         // until the release, also when the pointer has left the lever
    unsigned prevPressed : 1 = 0;       // the button at the start shows pressed
    unsigned nextPressed : 1 = 0;       // the button at the end does
    unsigned horizontal : 1 = 0;

private:
    // Along the axis, pixels from the window's start.
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
    void settle();
    void put(int frame, int along, int length);
    void outlineLever(int lever);
};
