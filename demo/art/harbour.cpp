#include "demo/art/pictures.h"
#include "demo/palette.h"

#include <cmath>

namespace {

constexpr int horizon = 420;
constexpr float sunX = 452;

/// Paints a range of hills from noise; farther hills have more of the sky's haze.
void hills(Canvas& canvas, float base, float height, float step, std::uint32_t seed, Colour colour,
           float fromX, float toX)
{
    canvas.paint(0, static_cast<int>(base - height) - 2, canvas.width, static_cast<int>(base),
                 [&](float x, float y) {
                     float ends = smooth(fromX, fromX + 160, x) * smooth(toX, toX - 160, x);
                     float top = base - height * (0.25f + 0.75f * clouds(x / step, 0.5f, 4, seed)) * ends;
                     float lifted = smooth(base - height, base, y);
                     return faded(mix(colour, rgb(palette::rose), 0.18f * lifted), clamp01(y - top + 0.5f));
                 });
}

void lighthouse(Canvas& canvas, Place at)
{
    Colour rock = mix(rgb(palette::night), rgb(palette::harbour), 0.35f);
    Shape cliff = polygon(at({{-190, 8},
                              {-190, -46},
                              {-120, -58},
                              {-70, -52},
                              {-30, -60},
                              {26, -58},
                              {52, -42},
                              {86, -30},
                              {110, -10},
                              {150, 8}}));
    canvas.fill(cliff, [&](float x, float y) {
        float grain = clouds(x / 26, y / 9, 4, 41);
        float lit = smooth(-10, 130, x - at.x) * smooth(at.y + 10, at.y - 70, y);
        return mix(mix(rock, rgb(palette::night), 0.8f * smooth(0.55f, 0.30f, grain)), rgb(palette::rose),
                   0.34f * lit * smooth(0.35f, 0.7f, grain));
    });
    // Keeper's house.
    canvas.fill(polygon(at({{-74, -84}, {-30, -84}, {-30, -54}, {-74, -54}})),
                mix(rgb(palette::mist), rgb(palette::harbour), 0.55f));
    canvas.fill(polygon(at({{-80, -83}, {-66, -100}, {-38, -100}, {-24, -83}})),
                mix(rgb(palette::brick), rgb(palette::night), 0.45f));
    for (float x : {-64.0f, -44.0f}) {
        Point pane = at(x, -72);
        canvas.fill(box(pane.x, pane.y, pane.x + 7, pane.y + 9), rgb(palette::amber));
        canvas.lamp(pane.x + 3, pane.y + 4, 20, rgb(palette::amber, 0.4f));
    }
    // Tower: white with brick bands, warmer on the side towards the sun.
    Shape tower = polygon(at({{-15, -168}, {15, -168}, {22, -54}, {-22, -54}}));
    canvas.fill(tower, [&](float x, float y) {
        float height = (at.y - y) / at.scale;
        bool band = std::fmod(height - 54, 46.0f) > 23;
        float across = (x - at.x) / 22;
        Colour wall = band ? rgb(palette::brick) : mix(rgb(palette::cream), rgb(palette::mist), 0.4f);
        wall = mix(wall, rgb(palette::harbour), clamp01(0.45f - 0.55f * across));
        return mix(wall, rgb(palette::rose), 0.25f * clamp01(across));
    });
    canvas.fill(polygon(at({{-22, -174}, {22, -174}, {18, -167}, {-18, -167}})), rgb(palette::night));
    canvas.fill(polygon(at({{-11, -196}, {11, -196}, {11, -174}, {-11, -174}})), rgb(palette::amber));
    for (float x : {-11.0f, -4.0f, 4.0f, 11.0f})
        canvas.fill(stroke({at(x, -196), at(x, -174)}, 1.6f), rgb(palette::night));
    canvas.fill(polygon(at({{-15, -195}, {-8, -206}, {0, -211}, {8, -206}, {15, -195}})),
                rgb(palette::night));
    canvas.fill(stroke({at(-22, -182), at(22, -182)}, 1.2f), rgb(palette::night));
    canvas.fill(stroke({at(0, -222), at(0, -208)}, 1.4f), rgb(palette::night));
    canvas.lamp(at(0, -185).x, at(0, -185).y, 60, rgb(palette::amber, 0.8f));
}

void crane(Canvas& canvas, Place at, Colour colour)
{
    auto bar = [&](Point from, Point to, float width) {
        canvas.fill(stroke({at(from.x, from.y), at(to.x, to.y)}, width * at.scale), colour);
    };
    bar({-26, 0}, {-16, -84}, 4.5f); // portal
    bar({26, 0}, {16, -84}, 4.5f);
    bar({-22, -36}, {22, -36}, 3);
    bar({-22, -36}, {18, -80}, 1.8f);
    bar({22, -36}, {-18, -80}, 1.8f);
    canvas.fill(polygon(at({{-30, -112}, {18, -112}, {22, -84}, {-30, -84}})), colour); // cabin
    bar({10, -110}, {112, -206}, 3.4f); // jib with its lattice
    bar({2, -122}, {110, -210}, 2.2f);
    for (float t = 0.08f; t < 0.95f; t += 0.12f) {
        bar({10 + 102 * t, -110 - 96 * t}, {2 + 108 * (t + 0.06f), -122 - 88 * (t + 0.06f)}, 1.4f);
        bar({2 + 108 * t, -122 - 88 * t}, {10 + 102 * (t + 0.06f), -110 - 96 * (t + 0.06f)}, 1.4f);
    }
    bar({-18, -112}, {-10, -160}, 2.6f);
    bar({-10, -160}, {110, -210}, 1.2f);
    bar({-10, -160}, {-30, -112}, 1.6f);
    bar({111, -208}, {111, -120}, 1.0f);
    canvas.fill(polygon(at({{99, -120}, {123, -120}, {123, -104}, {99, -104}})), colour);
    Point pane = at(4, -104);
    canvas.fill(box(pane.x, pane.y, pane.x + 9 * at.scale, pane.y + 8 * at.scale), rgb(palette::amber));
    canvas.lamp(pane.x + 4, pane.y + 4, 22 * at.scale, rgb(palette::amber, 0.4f));
}

/// Paints the roofs of the town along the right-hand shore, with a light here and there.
void town(Canvas& canvas)
{
    // The church above the roofs.
    Colour stone = mix(mix(rgb(palette::slate), rgb(palette::rose), 0.30f), rgb(palette::harbour), 0.35f);
    canvas.fill(box(842, 318, 860, 412), stone);
    canvas.fill(polygon({{839, 319}, {851, 268}, {863, 319}}), stone);
    for (int row = 0; row < 4; ++row) {
        Colour wall = mix(mix(rgb(palette::slate), rgb(palette::rose), 0.30f), rgb(palette::harbour),
                          0.30f + 0.17f * static_cast<float>(row));
        for (int i = 0; i < 22; ++i) {
            float width = 18 + 20 * hashed(i, row, 51),
                  x = 640 + 20 * static_cast<float>(i) + 9 * hashed(i, row, 52);
            float slope = smooth(600, 1010, x);
            float base = 420 - (48 - 15 * static_cast<float>(row)) * slope,
                  top = base - 12 - 20 * hashed(i, row, 53) * (0.4f + slope);
            canvas.fill(box(x, top, x + width, 421), wall);
            canvas.fill(
                polygon({{x - 2, top + 0.5f}, {x + width / 2, top - 10}, {x + width + 2, top + 0.5f}}),
                mix(wall, rgb(palette::brick), 0.35f));
            if (hashed(i, row, 54) > 0.55f) {
                float lampX = x + width * 0.4f, lampY = top + 6;
                canvas.fill(box(lampX, lampY, lampX + 3, lampY + 4), rgb(palette::amber));
                canvas.lamp(lampX + 1.5f, lampY + 2, 10, rgb(palette::amber, 0.4f));
            }
        }
    }
}

} // namespace

Canvas harbourBackdrop()
{
    Canvas canvas(1024, 768);
    paintDawn(canvas, horizon, sunX);
    Colour far = mix(rgb(palette::mist), rgb(palette::rose), 0.55f);
    hills(canvas, horizon, 74, 210, 61, mix(far, rgb(palette::slate), 0.25f), 470, 1400);
    hills(canvas, horizon, 44, 150, 62, mix(far, rgb(palette::slate), 0.55f), 560, 1400);
    hills(canvas, horizon, 30, 180, 63, mix(far, rgb(palette::slate), 0.45f), -400, 400);
    town(canvas);
    Livery moored{rgb(palette::harbour),
                  mix(rgb(palette::cream), rgb(palette::mist), 0.6f),
                  rgb(palette::brick),
                  rgb(palette::cream),
                  mix(rgb(palette::slate), rgb(palette::rose), 0.35f),
                  0.45f,
                  true};
    crane(canvas, {880, 424, 0.62f, -1}, mix(rgb(palette::night), rgb(palette::slate), 0.45f));
    crane(canvas, {960, 428, 0.86f, -1}, mix(rgb(palette::night), rgb(palette::harbour), 0.4f));
    paintWater(canvas, horizon, sunX);
    paintReflection(canvas, horizon, 110, 0.55f);
    drawSteamer(canvas, {676, 430, 0.62f, -1}, moored);
    lighthouse(canvas, {132, 436, 1, 1});
    paintReflection(canvas, 442, 200, 0.45f, 300);
    canvas.fill(stroke({{-4, 444}, {170, 444.5f}, {276, 443.5f}}, 1.6f), rgb(palette::foam, 0.45f));
    for (int i = 0; i < 5; ++i) { // gulls
        float x = 250 + 88 * static_cast<float>(i) + 50 * hashed(i, 1, 77), y = 236 + 84 * hashed(i, 2, 77),
              s = 5 + 5 * hashed(i, 3, 77);
        canvas.fill(stroke({{x - s, y - s * 0.45f},
                            {x - s * 0.4f, y - s * 0.5f},
                            {x, y},
                            {x + s * 0.4f, y - s * 0.5f},
                            {x + s, y - s * 0.45f}},
                           1.5f),
                    mix(rgb(palette::night), rgb(palette::slate), 0.3f));
    }
    return canvas;
}
