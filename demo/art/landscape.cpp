#include "demo/art/pictures.h"
#include "demo/palette.h"

#include <algorithm>
#include <cmath>

void paintDawn(Canvas& canvas, float horizon, float sunX)
{
    const struct {
        float at;
        Colour colour;
    } steps[] = {
        {0.00f, mix(rgb(palette::night), rgb(palette::harbour), 0.45f)},
        {0.38f, mix(rgb(palette::harbour), rgb(palette::slate), 0.55f)},
        {0.66f, mix(rgb(palette::slate), rgb(palette::rose), 0.50f)},
        {0.85f, mix(rgb(palette::rose), rgb(palette::amber), 0.35f)},
        {1.00f, mix(rgb(palette::amber), rgb(palette::cream), 0.40f)},
    };
    float width = static_cast<float>(canvas.width);
    canvas.paint(0, 0, canvas.width, static_cast<int>(horizon) + 1, [&](float x, float y) {
        float height = clamp01(y / horizon);
        std::size_t step = 1;
        while (step < std::size(steps) - 1 && height > steps[step].at)
            ++step;
        Colour sky = mix(steps[step - 1].colour, steps[step].colour,
                         smooth(steps[step - 1].at, steps[step].at, height));
        // Away from the sun the dawn is colder.
        float aside = clamp01(std::abs(x - sunX) / width);
        sky = mix(sky, mix(rgb(palette::slate), rgb(palette::harbour), 1 - height),
                  0.62f * smooth(0.1f, 0.95f, aside));

        // Long thin clouds, lit from below near the sun.
        float u = x / width, v = y / horizon;
        float cover = clouds(u * 3.2f + v * 1.2f, v * 13 + 0.8f * noise(u * 5, v * 3, 3), 5, 11);
        float cloud = smooth(0.50f, 0.76f, cover) * smooth(0.0f, 0.25f, v) * smooth(1.02f, 0.80f, v);
        float near = smooth(0.75f, 0.0f, aside);
        Colour lit = mix(mix(rgb(palette::slate), rgb(palette::mist), 0.25f),
                         mix(rgb(palette::rose), rgb(palette::amber), 0.55f), near * v);
        sky = mix(sky, lit, 0.62f * cloud);
        float rim = smooth(0.58f, 0.70f, cover) * smooth(0.86f, 0.72f, cover) * near *
                    smooth(0.35f, 0.9f, v) * smooth(1.0f, 0.88f, v);
        return mix(sky, rgb(palette::cream), 0.35f * rim);
    });
    // A few last stars.
    for (int i = 0; i < canvas.width / 11; ++i) {
        float x = hashed(i, 1, 5) * width, y = hashed(i, 2, 5) * horizon * 0.55f;
        float strength = 0.5f * hashed(i, 3, 5) * (1 - y / (horizon * 0.55f)) *
                         smooth(0.1f, 0.6f, std::abs(x - sunX) / width);
        canvas.lamp(x, y, 1.0f + 1.2f * hashed(i, 4, 5), rgb(palette::cream, strength));
    }
    float sun = std::max(width * 0.026f, 9.0f); // radius
    float sunY = horizon - sun / 2;
    canvas.lamp(sunX, sunY, sun * 12, rgb(palette::amber, 0.50f));
    canvas.lamp(sunX, sunY, sun * 4, rgb(palette::cream, 0.60f));
    canvas.fill(disc(sunX, sunY, sun), mix(rgb(palette::cream), rgb(palette::amber), 0.15f));
}

void paintWater(Canvas& canvas, float horizon, float sunX)
{
    float height = static_cast<float>(canvas.height) - horizon;
    canvas.paint(0, static_cast<int>(horizon), canvas.width, canvas.height, [&](float x, float y) {
        float depth = clamp01((y - horizon) / height);
        float away = 1 / (0.02f + depth); // rows of waves get larger towards the viewer
        Colour water = mix(mix(rgb(palette::rose), rgb(palette::sea), 0.45f),
                           mix(rgb(palette::sea), rgb(palette::harbour), 0.55f), smooth(0, 0.35f, depth));
        water = mix(water, mix(rgb(palette::harbour), rgb(palette::night), 0.5f), smooth(0.25f, 1, depth));
        float aside = std::abs(x - sunX) / static_cast<float>(canvas.width);
        water = mix(water, mix(rgb(palette::harbour), rgb(palette::sea), 0.35f),
                    0.55f * smooth(0.15f, 0.8f, aside) * (1 - depth));
        // Ripples: noise stretched along the row, finer towards the horizon.
        float row = std::log(0.03f + depth) * 26;
        float ripple = clouds((x - sunX) * away * 0.010f, row, 3, 23);
        water =
            mix(water, rgb(palette::night), 0.30f * smooth(0.55f, 0.30f, ripple) * smooth(0, 0.1f, depth));
        water = mix(water, rgb(palette::foam), 0.16f * smooth(0.58f, 0.80f, ripple));
        // The sun's reflection: broken light that widens towards the viewer.
        float path = smooth(1, 0, std::abs(x - sunX) / (26 + 150 * depth));
        float glitter = smooth(0.50f - 0.12f * path, 0.66f, ripple) * path;
        return mix(water, mix(rgb(palette::amber), rgb(palette::cream), 0.5f * path),
                   glitter * (0.95f - 0.5f * depth));
    });
}

void paintReflection(Canvas& canvas, int horizon, int depth, float strength, int right)
{
    for (int row = 1; row < depth && horizon + row < canvas.height; ++row) {
        float below = static_cast<float>(row) / static_cast<float>(depth);
        for (int x = 0; x < (right > 0 ? right : canvas.width); ++x) {
            float shift = (noise(static_cast<float>(x) * 0.02f, static_cast<float>(row) * 0.45f, 31) - 0.5f) *
                          (3 + 16 * below);
            int sourceX = std::clamp(x + static_cast<int>(std::lround(shift)), 0, canvas.width - 1);
            int sourceY = std::max(horizon - row, 0);
            Colour mirrored = canvas.at(sourceX, sourceY);
            mirrored.a = 1;
            float side = right > 0 ? smooth(static_cast<float>(right), static_cast<float>(right) * 0.6f,
                                            static_cast<float>(x))
                                   : 1;
            canvas.over(x, horizon + row, faded(mirrored, strength * (1 - below) * side));
        }
    }
}
