#include "demo/art/pictures.h"
#include "demo/palette.h"

#include <cmath>

Paint metal(Colour base, const Shape& shape)
{
    return [base, shape](float x, float y) {
        float slope =
            shape(x + 0.7f, y + 0.7f) - shape(x - 0.7f, y - 0.7f); // towards the light or away from it
        Colour lit = mix(base, rgb(palette::cream), 0.55f);
        Colour shaded = mix(base, rgb(palette::night), 0.5f);
        return mix(lit, shaded, clamp01(0.5f + slope * 0.35f));
    };
}

Canvas brassBorder()
{
    Canvas frame(48, 48); // pieces of 16
    // A dark rim outside keeps the frame readable on any backdrop.
    frame.fill(outline(box(2.5f, 2.5f, 45.5f, 45.5f, 5), 5), rgb(palette::night, 0.92f));
    Shape bar = outline(box(3.5f, 3.5f, 44.5f, 44.5f, 5), 3);
    frame.fill(bar, metal(rgb(palette::brass), box(3.5f, 3.5f, 44.5f, 44.5f, 5)));
    frame.fill(outline(box(7.5f, 7.5f, 40.5f, 40.5f, 2), 1), rgb(palette::brass, 0.55f));
    for (float x : {8.0f, 40.0f}) { // rivets
        for (float y : {8.0f, 40.0f}) {
            frame.fill(disc(x, y, 4.6f), rgb(palette::night));
            frame.fill(disc(x, y, 3.6f), metal(rgb(palette::brass), disc(x, y, 3.6f)));
        }
    }
    return cutBorder(frame);
}

Canvas cordBorder()
{
    Canvas frame(24, 24); // pieces of 8
    frame.fill(outline(box(2, 2, 22, 22, 2), 4), rgb(palette::night, 0.9f));
    frame.fill(outline(box(1.5f, 1.5f, 22.5f, 22.5f, 2.5f), 1), rgb(palette::brass));
    frame.fill(outline(box(3.5f, 3.5f, 20.5f, 20.5f, 1), 1), rgb(palette::slate, 0.8f));
    return cutBorder(frame);
}

Canvas paperBorder()
{
    // A chart's edge: a graduated scale in black and white between two lines.
    Canvas frame(48, 48, rgb(palette::paper)); // pieces of 16
    frame.fill(outline(box(1, 1, 47, 47), 2), mix(rgb(palette::paper), rgb(palette::timber), 0.55f));
    frame.fill(outline(box(5.5f, 5.5f, 42.5f, 42.5f), 1), rgb(palette::ink));
    frame.fill(outline(box(11.5f, 11.5f, 36.5f, 36.5f), 1), rgb(palette::ink));
    for (int i = 0; i < 2; ++i) {
        float from = 16 + 8 * static_cast<float>(i);
        float low = i ? 9.0f : 6.0f,
              high = low + 3; // alternating, so that eight pixels of one follow eight of the other
        frame.fill(box(from, low, from + 8, high), rgb(palette::ink));
        frame.fill(box(from, 48 - high, from + 8, 48 - low), rgb(palette::ink));
        frame.fill(box(low, from, high, from + 8), rgb(palette::ink));
        frame.fill(box(48 - high, from, 48 - low, from + 8), rgb(palette::ink));
    }
    for (float x : {5.5f, 36.5f})
        for (float y : {5.5f, 36.5f})
            frame.fill(box(x, y, x + 6, y + 6), rgb(palette::ink));
    return cutBorder(frame);
}

Canvas panelFill()
{
    // Stretched over a panel of any size, and only darker towards the bottom, so that text is easy to read.
    Canvas canvas(16, 64);
    canvas.paint(0, 0, 16, 64, [](float, float y) {
        return faded(mix(mix(rgb(palette::harbour), rgb(palette::night), 0.35f), rgb(palette::night), y / 64),
                     0.90f);
    });
    return canvas;
}

Canvas headerShade()
{
    Canvas canvas(8, 128);
    canvas.paint(0, 0, 8, 128,
                 [](float, float y) { return rgb(palette::night, 0.80f * smooth(128, 30, y)); });
    return canvas;
}

Canvas dimming()
{
    return Canvas(8, 8, rgb(palette::night, 0.6f));
}

Canvas rule()
{
    Canvas canvas(128, 2);
    canvas.paint(0, 0, 128, 2, [](float x, float y) {
        float ends = smooth(0, 26, x) * smooth(128, 102, x);
        return y < 1 ? rgb(palette::brass, 0.85f * ends) : rgb(palette::night, 0.6f * ends);
    });
    return canvas;
}

Canvas routeSample()
{
    Canvas canvas(32, 6);
    for (float x : {3.0f, 13.0f, 23.0f})
        canvas.fill(stroke({{x, 3}, {x + 6, 3}}, 3), mix(rgb(palette::brick), rgb(palette::rose), 0.35f));
    return canvas;
}

Canvas shoalSample()
{
    Canvas canvas(28, 28);
    Shape pool = box(1, 1, 27, 27, 5);
    canvas.fill(pool, mix(rgb(palette::sea), rgb(palette::mist), 0.62f));
    canvas.fill(disc(14, 14, 10), mix(rgb(palette::sea), rgb(palette::foam), 0.75f));
    canvas.fill(outline(disc(14, 14, 10), 1.2f), rgb(palette::sea));
    canvas.fill(outline(disc(14, 14, 6), 1), rgb(palette::sea));
    canvas.fill(outline(pool, 1), rgb(palette::night));
    return canvas;
}

Canvas plankTile()
{
    Canvas canvas(128, 48);
    for (int row = 0; row < 3; ++row) {
        int joint = row == 1 ? 72 : row == 0 ? 20 : 112;
        canvas.paint(0, row * 16, 128, row * 16 + 16, [&](float x, float y) {
            float wrapped = std::fmod(x + 128 - static_cast<float>(joint),
                                      128.0f); // the grain continues across the tile's seam
            float fade = smooth(0, 18, wrapped) * smooth(128, 110, wrapped);
            float grain = clouds(wrapped / 30, y / 2.2f, 4, 201 + static_cast<std::uint32_t>(row)) * fade +
                          0.5f * (1 - fade);
            float tone = 0.30f + 0.12f * static_cast<float>((row * 7) % 3);
            Colour wood = mix(rgb(palette::timber), rgb(palette::night), tone + 0.5f * (grain - 0.5f));
            float inRow = y - static_cast<float>(row * 16);
            wood = mix(wood, rgb(palette::night), 0.75f * smooth(14.2f, 15.6f, inRow));
            wood = mix(wood, rgb(palette::brass), 0.12f * smooth(2, 0, inRow));
            bool atJoint = wrapped < 1.4f;
            return atJoint ? mix(wood, rgb(palette::night), 0.7f) : wood;
        });
        for (int side : {-5, 6}) {
            float x = std::fmod(static_cast<float>(joint + side + 128), 128.0f);
            canvas.fill(disc(x, static_cast<float>(row) * 16 + 8, 1.5f), rgb(palette::night));
        }
    }
    return canvas;
}

Canvas seaTile()
{
    Canvas canvas(64, 64, mix(rgb(palette::sea), rgb(palette::mist), 0.62f));
    auto wave = [&](float x, float y) {
        for (float dx : {-64.0f, 0.0f, 64.0f})
            canvas.fill(stroke({{x + dx - 8, y},
                                {x + dx - 4, y - 2.4f},
                                {x + dx, y},
                                {x + dx + 4, y - 2.4f},
                                {x + dx + 8, y}},
                               1.1f),
                        rgb(palette::sea, 0.45f));
    };
    wave(16, 18);
    wave(50, 50);
    return canvas;
}
