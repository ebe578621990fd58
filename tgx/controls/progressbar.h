#pragma once

#include "tgx/wnd/wnd.h"

/// Shows a percentage by drawing a part of its bitmap. Takes no input.
///
/// Frame 0 of the bitmap is the full bar. Frame 1, the empty bar, is shown where the bar is not full; a
/// bitmap less than two frames wide has no empty bar.
class TGX_API AProgressBar : public AWnd {
public:
    /// Makes a bar that grows from the left.
    AProgressBar(const CString& id, int x, int y, int width, int height);

    /// Draws the bar above text and children.
    void draw(int frameStep) override;

    /// Stores value, limited to 0 to 100.0.
    void setPercentage(ZnFixed value);
    ZnFixed getPercentage() const { return percentage; }
    int getHorizontal() const { return horizontal; }
    /// Stores the lowest bit of set. 0: the bar grows from the bottom.
    void setHorizontal(int set) { horizontal = set & 1; }

protected:
    ZnFixed percentage = ZnFixed::fromInt(75);
    unsigned horizontal : 1 = 1;

private:
    bool hasEmptyPicture() const;
    void drawFull(int srcY, int y, int w, int h);
    void drawEmpty(int h);
};
