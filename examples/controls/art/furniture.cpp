#include "examples/controls/art/looks.h"

#include <algorithm>

// Pages, frames, lists and bars.

namespace {

Canvas plain(int width, int height, Colour colour)
{
    return Canvas(width, height, colour);
}

/// Makes a border strip with pieces of that size: a line with round corners, filled with ground.
Canvas frameOf(int piece, Colour rim, float thickness, Colour ground, float rounding = 4)
{
    Canvas frame(3 * piece, 3 * piece);
    const float side = static_cast<float>(3 * piece);
    frame.fill(box(0, 0, side, side, rounding), rim);
    frame.fill(
        box(thickness, thickness, side - thickness, side - thickness, std::max(rounding - thickness, 0.0f)),
        ground);
    return cutBorder(frame);
}

} // namespace

Canvas page()
{
    return plain(8, 8, rgb(look::page));
}

Canvas panelFill()
{
    return plain(8, 8, rgb(look::panel));
}

Canvas sheetFill()
{
    return plain(8, 8, rgb(look::sheet));
}

Canvas panelFrame()
{
    return frameOf(16, rgb(look::edge), 1, rgb(look::panel));
}

Canvas sheetFrame()
{
    return frameOf(8, rgb(look::edge), 1, rgb(look::sheet));
}

Canvas hotFrame()
{
    return frameOf(8, rgb(look::blue), 2, rgb(look::sheet));
}

Canvas menuFrame()
{
    return frameOf(8, rgb(look::edge), 1, rgb(look::sheet), 0);
}

Canvas rule()
{
    return plain(8, 1, rgb(look::line));
}

Canvas dim()
{
    return plain(8, 8, rgb(look::ink, 0.45f));
}

// A list stretches these over its width and leaves out their last line and column.

Canvas titleBand()
{
    Canvas band = plain(9, 22, rgb(look::plate));
    band.paint(0, 20, 9, 21, [](float, float) { return rgb(look::edge); });
    return band;
}

Canvas rowBand(bool isChosen)
{
    return plain(9, 21, isChosen ? rgb(look::chosen) : rgb(look::pale));
}

Canvas keyPlates()
{
    Canvas keys(10 * 26 + 10, 4 * 24);
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 10; ++x) {
            const float left = static_cast<float>(5 + x * 26), top = static_cast<float>(y * 24);
            keys.fill(box(left + 1, top + 1, left + 25, top + 23, 4), rgb(look::edge));
            keys.fill(box(left + 2, top + 2, left + 24, top + 22, 3), rgb(look::sheet));
        }
    return keys;
}

Canvas keyBand(bool isChosen)
{
    // A highlight covers the gaps at both sides of its cell: 16 plus twice 10, plus the column that is left
    // out.
    Canvas key(37, 25);
    key.fill(box(6, 1, 30, 23, 4), rgb(look::blue));
    key.fill(box(7, 2, 29, 22, 3), rgb(isChosen ? look::chosen : look::pale));
    return key;
}

Canvas progressStrip()
{
    constexpr int width = 180, height = 16;
    Canvas strip = stripOf(2, width, height);
    for (int n = 0; n < 2; ++n) {
        Canvas frame(width, height);
        frame.fill(box(0, 0, width, height, 4), rgb(look::edge));
        frame.fill(box(1, 1, width - 1, height - 1, 3), [n](float, float y) {
            return n == 0 ? mix(rgb(look::blue), rgb(look::chosen), 0.45f * (1 - y / height))
                          : rgb(look::sheet);
        });
        putFrame(strip, frame, n);
    }
    return strip;
}

Canvas tankStrip()
{
    constexpr int width = 28, height = 116;
    Canvas strip = stripOf(2, width, height);
    for (int n = 0; n < 2; ++n) {
        Canvas frame(width, height);
        frame.fill(box(0, 0, width, height, 6), rgb(look::edge));
        frame.fill(box(1, 1, width - 1, height - 1, 5), [n](float x, float) {
            return n == 0 ? mix(rgb(look::amber), rgb(look::sheet), 0.45f * smooth(14, 4, x))
                          : rgb(look::sheet);
        });
        for (int mark = 1; mark < 10; ++mark) {
            const float y = static_cast<float>(height * mark / 10);
            frame.fill(box(width - (mark % 2 ? 7.0f : 11.0f), y, width - 1, y + 1), rgb(look::ink, 0.6f));
        }
        putFrame(strip, frame, n);
    }
    return strip;
}

Canvas tape()
{
    // A strip of paper with holes along both edges, to be tiled.
    Canvas paper = plain(12, 36, rgb(look::sheet));
    for (float y : {5.0f, 31.0f})
        paper.fill(disc(6, y, 2), rgb(look::page));
    paper.paint(0, 0, 12, 1, [](float, float) { return rgb(look::line); });
    paper.paint(0, 35, 12, 36, [](float, float) { return rgb(look::line); });
    return paper;
}
