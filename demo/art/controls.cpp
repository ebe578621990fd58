#include "demo/art/plates.h"
#include "demo/palette.h"

#include <cmath>

namespace {

/// Paints the recess for a tick or a dot.
Canvas well(Look look, const Shape& rim, const Shape& hole)
{
    Canvas frame(24, 24);
    frame.fill(rim, look == Hot ? rgb(palette::amber)
                                : mix(rgb(palette::brass), rgb(palette::night), look == Disabled ? 0.6f : 0));
    Colour ground = look == Pressed ? mix(rgb(palette::brass), rgb(palette::night), 0.5f)
                                    : mix(rgb(palette::night), rgb(palette::harbour), 0.4f);
    frame.fill(hole, ground);
    return frame;
}

} // namespace

Colour edge(Look look)
{
    return rgb(palette::brass, look == Hot ? 1.0f : look == Disabled ? 0.35f : 0.75f);
}

Canvas plate(Look look, int width, int height, float rounding)
{
    Canvas frame(width, height);
    float right = static_cast<float>(width), bottom = static_cast<float>(height);
    Colour high = mix(rgb(palette::slate), rgb(palette::harbour), 0.35f), low = rgb(palette::harbour);
    if (look == Hot) {
        high = mix(rgb(palette::brass), rgb(palette::slate), 0.35f);
        low = mix(rgb(palette::brass), rgb(palette::night), 0.5f);
    } else if (look == Pressed) {
        high = rgb(palette::night);
        low = mix(rgb(palette::harbour), rgb(palette::brass), 0.3f);
    } else if (look == Disabled) {
        high = low = mix(rgb(palette::harbour), rgb(palette::night), 0.6f);
    }
    frame.fill(box(1, 1, right - 1, bottom - 1, rounding),
               [&](float, float y) { return mix(high, low, y / bottom); });
    frame.fill(outline(box(1.5f, 1.5f, right - 1.5f, bottom - 1.5f, rounding - 0.5f), 1.4f), edge(look));
    if (look == Rest || look == Hot)
        frame.fill(stroke({{rounding + 2, 3.2f}, {right - rounding - 2, 3.2f}}, 1),
                   rgb(palette::cream, 0.22f));
    return frame;
}

Shape arrow(bool horizontal, bool forwards)
{
    float base = forwards ? 9.0f : 15.0f, tip = forwards ? 16.0f : 8.0f;
    return horizontal ? polygon({{base, 6.5f}, {tip, 12}, {base, 17.5f}})
                      : polygon({{6.5f, base}, {12, tip}, {17.5f, base}});
}

Canvas buttonStrip(int opening, int width)
{
    constexpr int height = 44;
    const float middle = static_cast<float>(width) / 2;
    Canvas strip = stripOf(opening + looks, width, height);
    for (int n = 0; n < opening; ++n) {
        // The plate is uncovered from its middle, behind two edges of lamplight.
        float reach = smooth(0, 1, static_cast<float>(n + 1) / static_cast<float>(opening)) * middle;
        Canvas frame = plate(Rest, width, height, 6);
        frame.fill(box(3, 3, 2 * middle - 3, height - 3, 4), [&](float x, float) {
            float behind = reach - std::abs(x - middle);
            return rgb(palette::amber, 0.85f * smooth(46, 0, behind) * smooth(-2, 0, behind));
        });
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                frame.at(x, y).a *= clamp01(reach - std::abs(static_cast<float>(x) + 0.5f - middle) + 0.5f);
        putFrame(strip, frame, n);
    }
    for (int look = 0; look < looks; ++look)
        putFrame(strip, plate(static_cast<Look>(look), width, height, 6), opening + look);
    return strip;
}

Canvas checkStrip()
{
    Canvas strip = stripOf(looks, 24, 24);
    for (int look = 0; look < looks; ++look)
        putFrame(strip, well(static_cast<Look>(look), box(1, 1, 23, 23, 4), box(2.8f, 2.8f, 21.2f, 21.2f, 3)),
                 look);
    return strip;
}

Canvas radioStrip()
{
    Canvas strip = stripOf(looks, 24, 24);
    for (int look = 0; look < looks; ++look)
        putFrame(strip, well(static_cast<Look>(look), disc(12, 12, 11), disc(12, 12, 9.2f)), look);
    return strip;
}

Canvas tick()
{
    Canvas strip = stripOf(1, 24, 24);
    strip.fill(stroke({{6.5f, 12.5f}, {10.5f, 16.5f}, {17.8f, 7.5f}}, 3.4f), rgb(palette::amber));
    return strip;
}

Canvas dot()
{
    Canvas strip = stripOf(1, 24, 24);
    strip.fill(disc(12, 12, 5.2f), metal(rgb(palette::amber), disc(12, 12, 5.2f)));
    return strip;
}

Canvas tabStrip()
{
    // The selected tab has no lower edge; its colour there is that of the page's upper edge.
    constexpr int width = 164, height = 38;
    Canvas strip = stripOf(looks, width, height);
    for (int n = 0; n < looks; ++n) {
        Look look = static_cast<Look>(n);
        Canvas frame(width, height);
        float top = look == Pressed ? 1.0f : 5.0f;
        Colour page = mix(rgb(palette::harbour), rgb(palette::night), 0.35f);
        Colour high = look == Pressed ? mix(rgb(palette::slate), rgb(palette::harbour), 0.4f)
                      : look == Hot   ? mix(rgb(palette::brass), rgb(palette::slate), 0.45f)
                                      : rgb(palette::harbour);
        Colour low = look == Pressed ? page : mix(rgb(palette::harbour), rgb(palette::night), 0.75f);
        frame.fill(box(1, top, width - 1, height + 12, 7),
                   [&](float, float y) { return mix(high, low, clamp01((y - top) / 30)); });
        frame.fill(outline(box(1.5f, top + 0.5f, width - 1.5f, height + 12, 6.5f), 1.4f),
                   look == Pressed ? rgb(palette::brass) : edge(look));
        if (look != Pressed) // the page's edge continues below it
            for (int y = height - 3; y < height; ++y)
                for (int x = 0; x < width; ++x)
                    frame.at(x, y) = Colour{};
        putFrame(strip, frame, n);
    }
    return strip;
}

Canvas scrollStrip(bool horizontal)
{
    // Frames: first button at rest and pressed, second button at rest and pressed, trough, lever.
    Canvas strip = stripOf(6, 24, 24);
    for (int n = 0; n < 4; ++n) {
        Look look = n % 2 ? Pressed : Rest;
        Canvas frame = plate(look, 24, 24, 5);
        frame.fill(arrow(horizontal, n >= 2), look == Pressed ? rgb(palette::amber) : rgb(palette::cream));
        putFrame(strip, frame, n);
    }
    Canvas trough(24, 24);
    trough.paint(0, 0, 24, 24, [&](float x, float y) {
        float across = std::abs((horizontal ? y : x) - 12);
        if (across > 7)
            return Colour{};
        return across > 6 ? rgb(palette::brass, 0.6f)
                          : mix(rgb(palette::night), rgb(palette::harbour), 0.3f + across / 20);
    });
    putFrame(strip, trough, 4);
    Canvas lever(24, 24);
    Shape knob = box(2, 2, 22, 22, 6);
    lever.fill(box(1, 1, 23, 23, 7), rgb(palette::night, 0.9f));
    lever.fill(knob, metal(rgb(palette::brass), knob));
    for (float at : {8.5f, 12.0f, 15.5f})
        lever.fill(horizontal ? stroke({{at, 8}, {at, 16}}, 1.2f) : stroke({{8, at}, {16, at}}, 1.2f),
                   rgb(palette::night, 0.7f));
    putFrame(strip, lever, 5);
    return strip;
}

Canvas fieldFill()
{
    // Stretched over an edit field of any size, so the light is even.
    Canvas canvas(16, 32);
    canvas.paint(0, 0, 16, 32, [](float, float y) {
        return mix(rgb(palette::paper), rgb(palette::cream), 0.25f + 0.35f * y / 32);
    });
    return canvas;
}
