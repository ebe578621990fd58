#include "demo/art/shipyard.h"
#include "demo/palette.h"

#include <cmath>

namespace shipyard {

Colour seen(const Livery& livery, Colour colour)
{
    return mix(colour, livery.haze, livery.distance);
}

void windows(Canvas& canvas, Place at, const Livery& livery, float from, float to, float y, float step,
             float radius)
{
    Colour glass = livery.lit ? rgb(palette::amber) : seen(livery, rgb(palette::night));
    for (float x = from; x <= to; x += step) {
        Point middle = at(x, y);
        canvas.fill(disc(middle.x, middle.y, radius * at.scale), glass);
        if (livery.lit)
            canvas.lamp(middle.x, middle.y, radius * 5 * at.scale, rgb(palette::amber, 0.35f));
    }
}

void mast(Canvas& canvas, Place at, const Livery& livery, float x, float foot, float top)
{
    canvas.fill(stroke({at(x, foot), at(x, top)}, 1.6f * at.scale), seen(livery, rgb(palette::timber)));
}

void rope(Canvas& canvas, Place at, const Livery& livery, Point from, Point to)
{
    canvas.fill(stroke({at(from.x, from.y), at(to.x, to.y)}, std::max(0.6f * at.scale, 0.6f)),
                seen(livery, rgb(palette::night, 0.7f)));
}

void hull(Canvas& canvas, Place at, const Livery& livery, std::vector<Point> points)
{
    Shape shape = polygon(at(std::move(points)));
    canvas.fill(shape, [&](float, float y) {
        float height = (at.y - y) / at.scale;
        Colour side = mix(livery.hull, rgb(palette::night), 0.35f * smooth(26, 4, height));
        return seen(livery, height < 5 ? mix(rgb(palette::brick), rgb(palette::night), 0.25f) : side);
    });
}

void block(Canvas& canvas, Place at, const Livery& livery, float left, float top, float right, float bottom,
           Colour colour)
{
    Shape shape = polygon(at({{left, top}, {right, top}, {right, bottom}, {left, bottom}}));
    canvas.fill(shape, [&](float, float y) {
        float share = ((y - at.y) / at.scale - top) / (bottom - top);
        return seen(livery, mix(colour, rgb(palette::slate), 0.10f + 0.35f * share));
    });
    // The roof projects a little and casts a line of shade.
    canvas.fill(stroke({at(left - 1.5f, top), at(right + 1.5f, top)}, 1.6f * at.scale), seen(livery, colour));
}

void funnel(Canvas& canvas, Place at, const Livery& livery, float x, float top, float bottom, float width)
{
    float lean = (bottom - top) * 0.08f;
    Shape shape = polygon(at({{x - width / 2 - lean, top},
                              {x + width / 2 - lean, top},
                              {x + width / 2, bottom},
                              {x - width / 2, bottom}}));
    canvas.fill(shape, [&](float px, float py) {
        float share = ((py - at.y) / at.scale - top) / (bottom - top);
        float across = ((px - at.x) / at.scale * at.facing - x) / width;
        Colour colour = share < 0.16f                   ? rgb(palette::night)
                        : share > 0.3f && share < 0.52f ? livery.band
                                                        : livery.funnel;
        return seen(livery, mix(colour, rgb(palette::night), clamp01(0.30f + across * 0.6f) * 0.7f));
    });
}

void sail(Canvas& canvas, Place at, const Livery& livery, std::vector<Point> points, float shade)
{
    Shape shape = polygon(at(std::move(points)));
    canvas.fill(shape, [&](float x, float y) {
        float seam = std::abs(std::fmod((y - at.y) / at.scale + 400, 11.0f) - 5.5f) < 0.4f ? 0.08f : 0.0f;
        float belly = 0.12f * noise(x / (30 * at.scale), y / (40 * at.scale), 5);
        return seen(livery, mix(livery.house, rgb(palette::slate), shade + seam + belly));
    });
}

} // namespace shipyard

using namespace shipyard;

void drawSteamer(Canvas& canvas, Place at, const Livery& livery)
{
    for (float x : {-62.0f, 54.0f}) { // masts with derricks, the stays to bow and stern
        mast(canvas, at, livery, x, -16, -82);
        rope(canvas, at, livery, {x, -80}, {x < 0 ? -104.0f : 108.0f, -24});
        rope(canvas, at, livery, {x, -80}, {x < 0 ? -14.0f : 20.0f, -40});
        mast(canvas, {at(x, -20).x, at(x, -20).y, at.scale, at.facing}, livery, 0, 0, -10);
        canvas.fill(stroke({at(x, -24), at(x + 26, -58)}, 1.3f * at.scale),
                    seen(livery, rgb(palette::brass)));
        canvas.fill(stroke({at(x, -24), at(x - 24, -56)}, 1.3f * at.scale),
                    seen(livery, rgb(palette::brass)));
    }
    funnel(canvas, at, livery, -10, -78, -40, 15);
    block(canvas, at, livery, -30, -36, 24, -20, livery.house);
    block(canvas, at, livery, -4, -50, 20, -36, livery.house);
    block(canvas, at, livery, -92, -30, -76, -20, livery.house);
    hull(canvas, at, livery,
         {{-106, -24},
          {-72, -20},
          {-60, -18},
          {66, -18},
          {74, -22},
          {112, -28},
          {101, 0},
          {-96, 0},
          {-104, -10}});
    canvas.fill(stroke({at(-106, -24), at(-72, -20.5f), at(-60, -18.5f), at(66, -18.5f), at(74, -22.5f),
                        at(112, -28.5f)},
                       1.4f * at.scale),
                seen(livery, livery.house));
    windows(canvas, at, livery, -24, 20, -28, 8.8f, 1.7f);
    windows(canvas, at, livery, 1, 17, -44, 5.3f, 1.5f);
    windows(canvas, at, livery, -88, -80, -25, 8, 1.4f);
    windows(canvas, at, livery, -80, 84, -12, 12, 1.0f);
}

void drawTug(Canvas& canvas, Place at, const Livery& livery)
{
    mast(canvas, at, livery, 30, -30, -92);
    rope(canvas, at, livery, {30, -90}, {84, -34});
    rope(canvas, at, livery, {30, -90}, {-72, -22});
    funnel(canvas, at, livery, -6, -86, -40, 19);
    block(canvas, at, livery, -34, -40, 34, -18, livery.house);
    block(canvas, at, livery, 8, -62, 32, -40, livery.house);
    hull(canvas, at, livery,
         {{-80, -20}, {-40, -16}, {20, -18}, {54, -26}, {86, -36}, {78, 0}, {-66, 0}, {-78, -8}});
    canvas.fill(stroke({at(-80, -20.5f), at(-40, -16.5f), at(20, -18.5f), at(54, -26.5f), at(86, -36.5f)},
                       2.6f * at.scale),
                seen(livery, rgb(palette::timber)));
    for (float x = -60; x <= 60; x += 20) { // fenders
        Point middle = at(x, -8);
        canvas.fill(outline(disc(middle.x, middle.y, 4.6f * at.scale), 2.2f * at.scale),
                    seen(livery, rgb(palette::night)));
    }
    windows(canvas, at, livery, -26, 28, -29, 10.8f, 2.4f);
    windows(canvas, at, livery, 13, 27, -53, 7, 2.4f);
}

void drawSchooner(Canvas& canvas, Place at, const Livery& livery)
{
    mast(canvas, at, livery, -34, -16, -132);
    mast(canvas, at, livery, 30, -16, -138);
    canvas.fill(stroke({at(84, -24), at(124, -38)}, 2.0f * at.scale), seen(livery, rgb(palette::timber)));
    rope(canvas, at, livery, {30, -137}, {124, -38});
    rope(canvas, at, livery, {30, -110}, {100, -30});
    rope(canvas, at, livery, {-34, -131}, {30, -137});
    rope(canvas, at, livery, {-34, -131}, {-92, -24});
    sail(canvas, at, livery, {{-37, -26}, {-37, -94}, {-84, -118}, {-98, -30}}, 0.05f);
    sail(canvas, at, livery, {{-37, -98}, {-36, -130}, {-80, -120}}, 0.12f);
    sail(canvas, at, livery, {{27, -26}, {27, -98}, {-12, -122}, {-24, -30}}, 0.10f);
    sail(canvas, at, livery, {{27, -102}, {28, -134}, {-9, -124}}, 0.18f);
    sail(canvas, at, livery, {{36, -104}, {94, -34}, {40, -30}}, 0.14f);
    sail(canvas, at, livery, {{52, -104}, {118, -40}, {100, -38}}, 0.02f);
    hull(canvas, at, livery,
         {{-98, -24}, {-60, -17}, {30, -16}, {70, -20}, {98, -28}, {80, -4}, {72, 0}, {-80, 0}, {-92, -10}});
    canvas.fill(stroke({at(-98, -24.5f), at(-60, -17.5f), at(30, -16.5f), at(70, -20.5f), at(98, -28.5f)},
                       1.8f * at.scale),
                seen(livery, rgb(palette::brass)));
    block(canvas, at, livery, -70, -25, -46, -18, livery.band);
}

void drawSmoke(Canvas& canvas, Place funnelTop, float age, Colour colour)
{
    float size = (7 + 24 * age) * funnelTop.scale;
    Point middle = funnelTop(-92 * age, -30 * std::sqrt(age) - 2);
    float strength = 0.62f * smooth(0, 0.03f, age) * smooth(1, 0.30f, age);
    for (int y = static_cast<int>(middle.y - size); y <= static_cast<int>(middle.y + size); ++y) {
        for (int x = static_cast<int>(middle.x - size * 1.3f); x <= static_cast<int>(middle.x + size * 1.3f);
             ++x) {
            float fx = static_cast<float>(x) + 0.5f, fy = static_cast<float>(y) + 0.5f;
            float away = std::hypot((fx - middle.x) / 1.3f, fy - middle.y) / size;
            float torn = clouds(fx / (9 * funnelTop.scale) + age * 3, fy / (9 * funnelTop.scale), 3, 17);
            canvas.over(
                x, y, faded(colour, strength * smooth(1, 0.25f, away + (torn - 0.5f) * (0.2f + 0.6f * age))));
        }
    }
}
