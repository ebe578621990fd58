#include "demo/art/pictures.h"
#include "demo/palette.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr float pi = 3.14159265f;

/// Averages nine points of each pixel, for paint whose own edges must be smoothed.
Paint sampled(Paint paint)
{
    return [paint = std::move(paint)](float x, float y) {
        Colour sum;
        for (float dy : {-0.33f, 0.0f, 0.33f}) {
            for (float dx : {-0.33f, 0.0f, 0.33f}) {
                Colour part = paint(x + dx, y + dy);
                sum = {sum.r + part.r * part.a, sum.g + part.g * part.a, sum.b + part.b * part.a,
                       sum.a + part.a};
            }
        }
        return sum.a > 0 ? Colour{sum.r / sum.a, sum.g / sum.a, sum.b / sum.a, sum.a / 9} : Colour{};
    };
}

} // namespace

Canvas portStrip()
{
    // Three frames of 28 x 28 with hard edges, because this strip is written with the key colour.
    Canvas strip(3 * 29, 28);
    for (int n = 0; n < 3; ++n) {
        Canvas frame(28, 28);
        Colour body = n == 0 ? rgb(palette::brick) : n == 1 ? rgb(palette::amber) : rgb(palette::cream);
        frame.fill(disc(14, 14, 13), rgb(palette::ink));
        frame.fill(disc(14, 14, 11.4f), rgb(palette::cream));
        frame.fill(disc(14, 14, 9.4f), body);
        Colour anchor = n == 0 ? rgb(palette::cream) : rgb(palette::ink);
        frame.fill(outline(disc(14, 8.2f, 1.6f), 1.2f), anchor);
        frame.fill(stroke({{14, 10}, {14, 20}}, 1.8f), anchor);
        frame.fill(stroke({{10.5f, 11.8f}, {17.5f, 11.8f}}, 1.5f), anchor);
        frame.fill(stroke({{8.4f, 16}, {10.2f, 19.2f}, {14, 20.6f}, {17.8f, 19.2f}, {19.6f, 16}}, 1.8f),
                   anchor);
        putFrame(strip, frame, n);
    }
    return strip;
}

Canvas beamStrip()
{
    // The lighthouse's light for one turn, 12 frames of 460 x 120 on black, to be added to the picture below.
    constexpr int frames = 12, width = 460, height = 120;
    Canvas strip(frames * (width + 1), height, {0, 0, 0, 1});
    for (int n = 0; n < frames; ++n) {
        float turn = 2 * pi * static_cast<float>(n) / frames;
        float reach = std::cos(turn), towards = std::sin(turn); // to the right, to the viewer
        Canvas frame(width, height, {0, 0, 0, 1});
        constexpr float lampX = width / 2.0f, lampY = height / 2.0f;
        for (float side : {1.0f, -1.0f}) {
            float along = reach * side, near = towards * side;
            frame.paint(0, 0, width, height, [&](float x, float y) {
                float dx = (x - lampX) * (along < 0 ? -1.0f : 1.0f), dy = y - lampY - dx * 0.02f;
                float length = std::abs(along) * width * 0.49f;
                if (dx <= 0 || length < 1)
                    return Colour{};
                float spread = 2.5f + dx * (0.05f + 0.10f * clamp01(near));
                float light = smooth(1, 0, std::abs(dy) / spread) * smooth(1, 0.05f, dx / length);
                return faded(mix(rgb(palette::amber), rgb(palette::cream), 0.6f), 0.62f * light);
            });
            // Looking into the lamp: a flare.
            float flare = smooth(0.5f, 1, near);
            frame.lamp(lampX, lampY, 58, rgb(palette::amber, 0.8f * flare));
            frame.lamp(lampX, lampY, 26, rgb(palette::cream, flare));
        }
        putFrame(strip, frame, n);
    }
    return strip;
}

Canvas flagStrip()
{
    // The house flag in the wind, 12 frames of 128 x 96.
    constexpr int frames = 12;
    Canvas strip(frames * 129, 96);
    for (int n = 0; n < frames; ++n) {
        Canvas frame(128, 96);
        float phase = 2 * pi * static_cast<float>(n) / frames;
        frame.fill(stroke({{6, 4}, {6, 94}}, 3.4f),
                   metal(rgb(palette::brass), stroke({{6, 4}, {6, 94}}, 3.4f)));
        frame.fill(disc(6, 4, 3.6f), rgb(palette::amber));
        frame.paint(
            0, 0, 128, 96, sampled([&](float x, float y) {
                float along = (x - 8) / 112;
                if (along < 0 || along > 1.02f)
                    return Colour{};
                float wave = std::sin(along * 7.4f - phase), slope = std::cos(along * 7.4f - phase);
                float lift =
                    (wave * 6.5f + std::sin(along * 3 - phase) * 2) * smooth(0, 0.5f, along) + along * 5;
                float v = (y - 12 - lift) / 62;
                // Swallow tail.
                float notch = 1 - 0.22f * (1 - std::abs(v - 0.5f) * 2);
                float edge = std::min({v * 62, (1 - v) * 62, (notch - along) * 112, along * 112 + 1});
                if (edge < 0)
                    return Colour{};
                bool cross = std::abs(v - 0.5f) < 0.10f || std::abs(along - 0.36f) < 0.055f;
                float star = std::hypot((along - 0.36f) * 112, (v - 0.5f) * 62);
                Colour cloth = cross ? rgb(palette::cream) : rgb(palette::brick);
                if (star < 15)
                    cloth = star < 12.5f ? rgb(palette::harbour) : rgb(palette::cream);
                if (star < 6)
                    cloth = rgb(palette::amber);
                cloth = slope > 0 ? mix(cloth, rgb(palette::night), 0.34f * slope * smooth(0, 0.3f, along))
                                  : mix(cloth, rgb(palette::cream), -0.16f * slope * smooth(0, 0.3f, along));
                return cloth;
            }));
        putFrame(strip, frame, n);
    }
    return strip;
}

Canvas steamerStrip()
{
    // A moving steamer, 16 frames of 280 x 120; the smoke goes through a whole period.
    constexpr int frames = 16;
    Canvas strip(frames * 281, 120);
    Livery livery{rgb(palette::night),
                  rgb(palette::cream),
                  rgb(palette::brick),
                  rgb(palette::amber),
                  rgb(palette::slate),
                  0.10f,
                  true};
    for (int n = 0; n < frames; ++n) {
        Canvas frame(280, 120);
        float phase = static_cast<float>(n) / frames;
        float heave = 0.7f * std::sin(2 * pi * phase);
        Place at{172, 106 + heave, 0.86f, 1};
        for (int puff = 8; puff >= 0; --puff)
            drawSmoke(frame, {at(-11, -79).x, at(-11, -79).y, 0.9f, 1},
                      (static_cast<float>(puff) + phase) / 9,
                      mix(rgb(palette::mist), rgb(palette::harbour), 0.25f));
        drawSteamer(frame, at, livery);
        // Its own shadow and bow wave on the water.
        frame.paint(60, 105, 280, 120, [&](float x, float y) {
            float below = (y - 106) / 14;
            float ripple = noise(x / 14 + 16 * phase, y * 0.6f, 91);
            float ends = smooth(74, 100, x) * smooth(276, 250, x);
            return rgb(palette::night, 0.55f * smooth(1, 0, below) * ends *
                                           smooth(0.30f, 0.60f, ripple + 0.35f * (1 - below)) *
                                           clamp01(y - 105.5f));
        });
        for (float side : {0.0f, 1.0f}) {
            float wobble = std::sin(2 * pi * phase + side * 2);
            frame.fill(stroke({{90 - 20 * side, 108 + side * 2},
                               {150, 107.5f + 0.5f * wobble},
                               {236, 107},
                               {262, 107.6f}},
                              1.3f),
                       rgb(palette::foam, 0.55f - 0.2f * side));
        }
        putFrame(strip, frame, n);
    }
    return strip;
}
