#include "demo/art/plates.h"
#include "demo/palette.h"

#include <algorithm>
#include <cmath>

// List boxes, combo boxes and the boxes that pop up.

namespace {

/// Makes an arrow head of half size with its middle at x, y.
Shape mark(float x, float y, bool down)
{
    float tip = down ? 3.2f : -3.2f;
    return polygon({{x - 6, y - tip}, {x + 6, y - tip}, {x, y + tip}});
}

} // namespace

// Pictures that a list stretches over its width change little or not at all along it. Their last line and
// column are never visible.

Canvas rowBand(bool selected)
{
    Canvas band(128, 29);
    Colour body = selected ? rgb(palette::amber) : rgb(palette::mist);
    band.paint(0, 0, 128, 29, [&](float x, float y) {
        float ends = selected ? 1.0f : smooth(0, 24, x) * smooth(128, 104, x);
        bool atEdge = y < 1 || (y > 27 && y < 28);
        if (y > 28)
            return Colour{};
        float strength = selected ? (atEdge ? 0.85f : 0.26f) : (atEdge ? 0.55f : 0.15f);
        return faded(body, strength * ends);
    });
    return band;
}

Canvas readingLine()
{
    Canvas line(64, 21);
    line.paint(0, 16, 64, 18, [](float x, float y) {
        return rgb(palette::amber, (y < 17 ? 0.5f : 0.25f) * smooth(0, 10, x) * smooth(64, 40, x));
    });
    return line;
}

Canvas cellFrame(bool selected)
{
    Canvas frame(85, 53); // with the line and column that are never visible
    Shape rim = box(3, 1, 81, 51, 4);
    Colour colour = rgb(selected ? palette::amber : palette::cream);
    if (selected)
        frame.fill(rim, faded(colour, 0.30f));
    frame.fill(outline(rim, 2), faded(colour, selected ? 0.95f : 0.8f));
    return frame;
}

Canvas titleBand()
{
    Canvas band(8, 29);
    band.paint(0, 0, 8, 28, [](float, float y) {
        if (y > 26)
            return rgb(palette::brass, y > 27 ? 0.35f : 0.9f);
        return faded(mix(rgb(palette::slate), rgb(palette::harbour), 0.4f + 0.6f * y / 26), 0.95f);
    });
    return band;
}

Canvas listFill()
{
    // A shade darker than the panel below it.
    Canvas canvas(8, 8);
    canvas.paint(0, 0, 8, 8, [](float, float) { return rgb(palette::night, 0.62f); });
    return canvas;
}

Canvas listBarStrip()
{
    constexpr int width = 16, height = 26;
    Canvas strip = stripOf(6, width, height);
    for (int n = 0; n < 4; ++n) {
        Look look = n % 2 ? Pressed : Rest;
        Canvas frame = plate(look, width, height, 4);
        frame.fill(mark(8, 13, n >= 2), look == Pressed ? rgb(palette::amber) : rgb(palette::cream));
        putFrame(strip, frame, n);
    }
    Canvas trough(width, height);
    trough.paint(0, 0, width, height, [](float x, float) {
        float across = std::abs(x - 8);
        return across > 5 ? rgb(palette::night)
                          : mix(rgb(palette::night), rgb(palette::harbour), 0.45f + across / 14);
    });
    putFrame(strip, trough, 4);
    Canvas lever = trough;
    Shape knob = box(1.5f, 1.5f, 14.5f, 24.5f, 4);
    lever.fill(box(0.5f, 0.5f, 15.5f, 25.5f, 5), rgb(palette::night));
    lever.fill(knob, metal(rgb(palette::brass), knob));
    for (float y : {9.0f, 13.0f, 17.0f})
        lever.fill(stroke({{5, y}, {11, y}}, 1.2f), rgb(palette::night, 0.7f));
    putFrame(strip, lever, 5);
    // It is written without alpha; the trough shows around the plates.
    for (int n = 0; n < 4; ++n) {
        Canvas whole = trough;
        Canvas frame(width, height);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                frame.at(x, y) = strip.at(n * (width + 1) + x, y);
        whole.draw(frame, 0, 0);
        putFrame(strip, whole, n);
    }
    return strip;
}

Canvas comboStrip(Drop drop, bool buttons)
{
    constexpr int width = 184, height = 36;
    Canvas strip = stripOf(looks, width, height);
    for (int n = 0; n < looks; ++n) {
        Look look = static_cast<Look>(n);
        Canvas frame(width, height);
        Shape rim = box(1, 1, width - 1, height - 1, 6);
        frame.fill(rim, [&](float, float y) {
            Colour high = rgb(palette::night);
            Colour low = mix(rgb(palette::harbour), rgb(look == Hot ? palette::brass : palette::night),
                             look == Hot ? 0.35f : 0.3f);
            return look == Pressed ? mix(low, high, y / height) : mix(high, low, y / height);
        });
        frame.fill(outline(box(1.5f, 1.5f, width - 1.5f, height - 1.5f, 5.5f), 1.4f), edge(look));
        if (drop != Drop::None)
            frame.fill(mark(width - (buttons ? 44.0f : 20.0f), 18, drop == Drop::Below),
                       rgb(look == Hot ? palette::amber : palette::brass, look == Disabled ? 0.4f : 1.0f));
        putFrame(strip, frame, n);
    }
    return strip;
}

Canvas stepStrip(bool forwards)
{
    Canvas strip = stripOf(looks, 28, 36);
    for (int n = 0; n < looks; ++n) {
        Look look = static_cast<Look>(n);
        Canvas frame = plate(look, 28, 36, 6);
        Shape head = arrow(true, forwards);
        frame.fill([head](float x, float y) { return head(x - 2, y - 6); },
                   rgb(look == Pressed ? palette::amber : palette::cream, look == Disabled ? 0.35f : 1.0f));
        putFrame(strip, frame, n);
    }
    return strip;
}

Canvas menuFill()
{
    Canvas canvas(8, 64);
    canvas.paint(0, 0, 8, 64, [](float, float y) {
        return mix(mix(rgb(palette::harbour), rgb(palette::slate), 0.25f),
                   mix(rgb(palette::harbour), rgb(palette::night), 0.45f), y / 64);
    });
    return canvas;
}

Canvas menuBorder()
{
    // Pieces of 4 without gaps, so that nothing shows through a menu.
    Canvas frame(12, 12, rgb(palette::night));
    frame.fill(outline(box(1.5f, 1.5f, 10.5f, 10.5f), 1.4f), rgb(palette::brass));
    return cutBorder(frame);
}

Canvas hotCordBorder()
{
    Canvas frame(24, 24); // pieces of 8
    frame.fill(outline(box(2, 2, 22, 22, 2), 4), rgb(palette::night, 0.9f));
    frame.fill(outline(box(1.5f, 1.5f, 22.5f, 22.5f, 2.5f), 1.6f), rgb(palette::amber));
    frame.fill(outline(box(3.5f, 3.5f, 20.5f, 20.5f, 1), 1), rgb(palette::brass));
    return cutBorder(frame);
}

Canvas noticeFill()
{
    // Like a panel, but opaque.
    Canvas canvas(16, 64);
    canvas.paint(0, 0, 16, 64, [](float, float y) {
        return mix(mix(rgb(palette::harbour), rgb(palette::slate), 0.12f),
                   mix(rgb(palette::harbour), rgb(palette::night), 0.75f), y / 64);
    });
    return canvas;
}

Canvas bell()
{
    Canvas canvas(80, 88);
    canvas.lamp(40, 46, 40, rgb(palette::amber, 0.16f));
    Shape bracket = stroke({{12, 8}, {68, 8}}, 5);
    canvas.fill(bracket, metal(mix(rgb(palette::timber), rgb(palette::brass), 0.3f), bracket));
    canvas.fill(outline(disc(40, 15, 5), 3), rgb(palette::brass));
    std::vector<Point> side;
    for (int i = 0; i <= 20; ++i) {
        float down = static_cast<float>(i) / 20;
        float half = 11 + 5 * smooth(0, 0.25f, down) + 5 * down + 11 * smooth(0.72f, 1, down);
        side.push_back({40 + half, 20 + 46 * down});
    }
    std::vector<Point> outlinePoints = side;
    for (auto it = side.rbegin(); it != side.rend(); ++it)
        outlinePoints.push_back({80 - it->x, it->y});
    Shape body = polygon(outlinePoints);
    canvas.fill(body, [](float x, float y) {
        float across = (x - 40) / 30;
        Colour brass = mix(rgb(palette::brass), rgb(palette::amber), 0.35f);
        brass = mix(brass, rgb(palette::night), 0.55f * smooth(-0.2f, 1.1f, across));
        brass = mix(brass, rgb(palette::cream), 0.55f * smooth(0.3f, 0, std::abs(across + 0.38f)));
        bool ring = (y > 31 && y < 33) || (y > 56 && y < 58);
        return ring ? mix(brass, rgb(palette::night), 0.45f) : brass;
    });
    canvas.fill(stroke({{12, 66}, {68, 66}}, 4), [](float x, float) {
        return mix(rgb(palette::amber), rgb(palette::timber), smooth(10, 70, x));
    });
    canvas.fill(disc(40, 72, 5), metal(rgb(palette::brass), disc(40, 72, 5)));
    canvas.fill(stroke({{40, 76}, {41, 86}}, 2.4f), rgb(palette::paper)); // the lanyard
    return canvas;
}

Canvas helm()
{
    Canvas canvas(80, 88);
    constexpr float x = 40, y = 44;
    canvas.lamp(x, y, 40, rgb(palette::amber, 0.16f));
    Colour wood = mix(rgb(palette::timber), rgb(palette::brass), 0.45f);
    for (int i = 0; i < 8; ++i) {
        float angle = static_cast<float>(i) * 0.7853982f, c = std::cos(angle), s = std::sin(angle);
        Shape spoke = stroke({{x + 8 * c, y + 8 * s}, {x + 28 * c, y + 28 * s}}, 4);
        Shape handle = stroke({{x + 29 * c, y + 29 * s}, {x + 37 * c, y + 37 * s}}, 5.4f);
        canvas.fill(spoke, metal(wood, spoke));
        canvas.fill(handle, metal(wood, handle));
    }
    Shape rim = outline(disc(x, y, 24), 7);
    canvas.fill(outline(disc(x, y, 24), 9), rgb(palette::night, 0.6f));
    canvas.fill(rim, [&](float px, float py) {
        float light = clamp01(0.5f - ((px - x) + (py - y)) / 60);
        return mix(mix(wood, rgb(palette::night), 0.45f), mix(wood, rgb(palette::amber), 0.55f), light);
    });
    canvas.fill(outline(disc(x, y, 24), 1.4f), rgb(palette::amber, 0.8f));
    canvas.fill(disc(x, y, 9), metal(rgb(palette::brass), disc(x, y, 9)));
    canvas.fill(disc(x, y, 3), rgb(palette::night));
    return canvas;
}
