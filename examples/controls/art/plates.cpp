#include "examples/controls/art/looks.h"

// Controls that can be clicked.

namespace {

struct Tint {
    Colour high, low, rim;
};

Tint tintOf(Look look)
{
    switch (look) {
    case Hot:
        return {rgb(look::sheet), rgb(look::pale), rgb(look::blue)};
    case Pressed:
        return {rgb(look::chosen), mix(rgb(look::chosen), rgb(look::pale), 0.7f), rgb(look::blue)};
    case Disabled:
        return {mix(rgb(look::panel), rgb(look::plate), 0.4f), mix(rgb(look::panel), rgb(look::plate), 0.4f),
                rgb(look::line)};
    default:
        return {rgb(look::sheet), rgb(look::plate), rgb(look::edge)};
    }
}

/// Makes a plate with a thin rim that reaches the frame's outermost pixels.
Canvas plate(Look look, int width, int height, float rounding)
{
    Canvas frame(width, height);
    const float right = static_cast<float>(width), bottom = static_cast<float>(height);
    const Tint tint = tintOf(look);
    frame.fill(box(0, 0, right, bottom, rounding), tint.rim);
    frame.fill(box(1, 1, right - 1, bottom - 1, rounding - 1),
               [&](float, float y) { return mix(tint.high, tint.low, clamp01((y - 1) / (bottom - 2))); });
    return frame;
}

Colour markColour(Look look)
{
    return look == Rest ? rgb(look::ink) : look == Disabled ? rgb(look::edge) : rgb(look::blue);
}

/// Makes an arrow head around x, y that points along dx, dy.
Shape arrow(float x, float y, float dx, float dy)
{
    const float size = 3.2f;
    return polygon({{x + size * dx, y + size * dy},
                    {x - size * dx - 1.5f * size * dy, y - size * dy - 1.5f * size * dx},
                    {x - size * dx + 1.5f * size * dy, y - size * dy + 1.5f * size * dx}});
}

/// Makes a strip with a frame for each of the four states.
template<typename PaintLook>
Canvas stripOfLooks(int width, int height, PaintLook paintLook)
{
    Canvas strip = stripOf(looks, width, height);
    for (int n = 0; n < looks; ++n)
        putFrame(strip, paintLook(static_cast<Look>(n)), n);
    return strip;
}

/// Makes the recess for a tick or a dot.
Canvas well(Look look, const Shape& rim, const Shape& hole)
{
    Canvas frame(18, 18);
    frame.fill(rim, tintOf(look).rim);
    frame.fill(hole, look == Rest ? rgb(look::sheet) : mix(tintOf(look).high, tintOf(look).low, 0.5f));
    return frame;
}

} // namespace

Canvas buttonStrip()
{
    return stripOfLooks(100, 28, [](Look look) { return plate(look, 100, 28, 5); });
}

Canvas openingStrip()
{
    Canvas strip = stripOf(openingFrames + looks, 100, 28);
    for (int n = 0; n < openingFrames; ++n) {
        // It unrolls from its middle to both sides.
        const int width = 12 + 88 * n / openingFrames;
        Canvas frame(100, 28);
        frame.draw(plate(Hot, width, 28, 5), (100 - width) / 2, 0);
        putFrame(strip, frame, n);
    }
    for (int n = 0; n < looks; ++n)
        putFrame(strip, plate(static_cast<Look>(n), 100, 28, 5), openingFrames + n);
    return strip;
}

Canvas checkStrip()
{
    return stripOfLooks(18, 18,
                        [](Look look) { return well(look, box(1, 1, 17, 17, 3), box(2, 2, 16, 16, 2)); });
}

Canvas tick()
{
    Canvas strip = stripOf(1, 18, 18);
    strip.fill(stroke({{5, 9.2f}, {8, 12.4f}, {13, 5.8f}}, 2.4f), rgb(look::blue));
    return strip;
}

Canvas radioStrip()
{
    return stripOfLooks(18, 18, [](Look look) { return well(look, disc(9, 9, 8), disc(9, 9, 7)); });
}

Canvas dot()
{
    Canvas strip = stripOf(1, 18, 18);
    strip.fill(disc(9, 9, 4), rgb(look::blue));
    return strip;
}

Canvas tabStrip()
{
    // The selected tab looks like its page and covers the page's upper edge, which is at the tab's last two
    // rows.
    constexpr int width = 84, height = 26;
    return stripOfLooks(width, height, [](Look look) {
        Canvas frame(width, height);
        const bool isFront = look == Pressed;
        const float top = isFront ? 0.0f : 3.0f;
        const Colour ground = isFront ? rgb(look::panel) : look == Hot ? rgb(look::pale) : rgb(look::plate);
        frame.fill(box(0, top, width, height + 10, 5), look == Hot ? rgb(look::blue) : rgb(look::edge));
        frame.fill(box(1, top + 1, width - 1, height + 10, 4), ground);
        if (isFront)
            frame.fill(box(1, 1, width - 1, 3, 1), rgb(look::blue));
        else
            for (int x = 0; x < width; ++x)
                frame.at(x, height - 1) = frame.at(x, height - 2) = Colour{};
        return frame;
    });
}

Canvas comboStrip(bool hasMenu)
{
    constexpr int width = 150, height = 26;
    return stripOfLooks(width, height, [hasMenu](Look look) {
        Canvas frame = plate(look, width, height, 5);
        if (hasMenu)
            frame.fill(arrow(width - 38, 13, 0, 1), markColour(look));
        return frame;
    });
}

Canvas stepStrip(bool forwards)
{
    return stripOfLooks(24, 26, [forwards](Look look) {
        Canvas frame = plate(look, 24, 26, 5);
        frame.fill(arrow(12, 13, forwards ? 1.0f : -1.0f, 0), markColour(look));
        return frame;
    });
}

namespace {

/// Makes the frames: first button at rest and pressed, second button at rest and pressed, trough, lever.
Canvas barStrip(int width, int height, bool horizontal)
{
    Canvas strip = stripOf(6, width, height);
    Canvas trough(width, height, rgb(look::plate));
    const float right = static_cast<float>(width), bottom = static_cast<float>(height);
    if (horizontal) {
        trough.fill(box(-9, 0, right + 9, 1), rgb(look::edge));
        trough.fill(box(-9, bottom - 1, right + 9, bottom), rgb(look::edge));
    } else {
        trough.fill(box(0, -9, 1, bottom + 9), rgb(look::edge));
        trough.fill(box(right - 1, -9, right, bottom + 9), rgb(look::edge));
    }
    for (int n = 0; n < 4; ++n) {
        const Look look = n % 2 ? Pressed : Rest;
        const float towards = n < 2 ? -1.0f : 1.0f;
        Canvas button = plate(look, width, height, 1);
        button.fill(arrow(right / 2, bottom / 2, horizontal ? towards : 0, horizontal ? 0 : towards),
                    markColour(look));
        putFrame(strip, button, n);
    }
    putFrame(strip, trough, 4);
    Canvas lever = plate(Hot, width, height, 1);
    for (float at : {-3.0f, 0.0f, 3.0f}) {
        const float x = right / 2 + at, y = bottom / 2 + at;
        lever.fill(horizontal ? box(x - 0.5f, 5, x + 0.5f, bottom - 5)
                              : box(5, y - 0.5f, right - 5, y + 0.5f),
                   rgb(look::blue));
    }
    putFrame(strip, lever, 5);
    return strip;
}

} // namespace

Canvas scrollStrip(bool horizontal)
{
    return barStrip(18, 18, horizontal);
}

Canvas listBarStrip()
{
    return barStrip(16, 26, false);
}
