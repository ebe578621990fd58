#pragma once

#include "tgx/wnd/wnd.h"

/// Shows a percentage as a part of its bitmap. Takes no input.
///
/// Frame 0 of the bitmap is the full bar. Frame 1, the empty bar, is shown where the bar is not full; a
/// bitmap less than two frames wide has none.
class TGX_API AProgressBar : public AWnd {
public:
    /// Grows from the left.
    AProgressBar(const CString& id, int x, int y, int width, int height);

    /// The bar lies on top of text and children.
    void draw(int frameStep) override;

    /// Stores value, held between 0 and 100.0.
    void setPercentage(ZnFixed value);
    ZnFixed getPercentage() const { return percentage; }
    int getHorizontal() const { return horizontal; }
    /// Lowest bit. 0: grows from the bottom.
    void setHorizontal(int set) { horizontal = set & 1; }

protected:
    ZnFixed percentage = ZnFixed::fromInt(75);
    unsigned horizontal : 1 = 1;

private:
    bool hasEmptyPicture() const;
    void putFull(int srcY, int y, int w, int h);
    void putEmpty(int h);
};
