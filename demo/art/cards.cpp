#include "demo/art/pictures.h"
#include "demo/palette.h"

#include <cmath>

namespace {

Canvas shipScene(float sunX)
{
    Canvas canvas(218, 118);
    paintDawn(canvas, 82, sunX);
    paintWater(canvas, 82, sunX);
    return canvas;
}

} // namespace

Canvas shipPicture(int ship)
{
    Canvas canvas = shipScene(ship == 1 ? 172.0f : 46.0f);
    Colour haze = mix(rgb(palette::slate), rgb(palette::rose), 0.4f);
    const Livery liveries[] = {
        {rgb(palette::night), rgb(palette::cream), rgb(palette::brick), rgb(palette::amber), haze, 0.05f,
         true},
        {mix(rgb(palette::sea), rgb(palette::night), 0.35f), rgb(palette::cream), rgb(palette::brass),
         rgb(palette::brass), haze, 0.05f, false},
        {mix(rgb(palette::brick), rgb(palette::night), 0.25f),
         mix(rgb(palette::cream), rgb(palette::amber), 0.2f), rgb(palette::night), rgb(palette::cream), haze,
         0.05f, true},
    };
    Place at{110, 95, ship == 0 ? 0.78f : ship == 1 ? 0.63f : 0.76f, ship == 1 ? -1.0f : 1.0f};
    const Livery& livery = liveries[ship % 3];
    if (ship == 0)
        for (int puff = 8; puff >= 0; --puff)
            drawSmoke(canvas, {at(-11, -79).x, at(-11, -79).y, 0.9f, at.facing},
                      (static_cast<float>(puff) + 0.4f) / 9, rgb(palette::mist));
    if (ship == 2)
        for (int puff = 7; puff >= 0; --puff)
            drawSmoke(canvas, {at(-7, -88).x, at(-7, -88).y, 0.7f, at.facing},
                      (static_cast<float>(puff) + 0.4f) / 8, rgb(palette::slate));
    if (ship == 1)
        drawSchooner(canvas, at, livery);
    else if (ship == 2)
        drawTug(canvas, at, livery);
    else
        drawSteamer(canvas, at, livery);
    paintReflection(canvas, 95, 20, 0.75f);
    canvas.fill(stroke({{30, 96}, {188, 96}}, 1.4f), rgb(palette::foam, 0.5f));
    return canvas;
}

Canvas emblem()
{
    Canvas canvas(112, 112);
    Shape rim = outline(disc(56, 56, 50), 7);
    canvas.fill(disc(56, 56, 55), rgb(palette::night, 0.85f));
    canvas.fill(rim, [](float x, float y) {
        float light = clamp01(0.5f - ((x - 56) + (y - 56)) / 150);
        return mix(mix(rgb(palette::brass), rgb(palette::night), 0.35f),
                   mix(rgb(palette::amber), rgb(palette::cream), 0.45f), light);
    });
    canvas.fill(disc(56, 56, 45), [](float, float y) {
        return mix(rgb(palette::harbour), rgb(palette::sea), smooth(20, 96, y));
    });
    for (int i = 0; i < 24; ++i) { // pearls on the rim
        float angle = static_cast<float>(i) * 0.2617994f;
        canvas.fill(disc(56 + 50 * std::cos(angle), 56 + 50 * std::sin(angle), 1.5f),
                    rgb(palette::night, 0.7f));
    }
    Colour gold = rgb(palette::amber);
    canvas.fill(outline(disc(56, 27, 6), 4), gold);
    canvas.fill(stroke({{56, 32}, {56, 84}}, 6), gold);
    canvas.fill(stroke({{40, 43}, {72, 43}}, 5), gold);
    canvas.fill(disc(40, 43, 3.4f), gold);
    canvas.fill(disc(72, 43, 3.4f), gold);
    std::vector<Point> arms;
    for (int i = 0; i <= 20; ++i) {
        float angle = 0.30f + static_cast<float>(i) * (2.54f / 20);
        arms.push_back({56 + 27 * std::cos(angle), 57 + 28 * std::sin(angle)});
    }
    canvas.fill(stroke(arms, 6), gold);
    canvas.fill(polygon({{24, 68}, {28, 54}, {39, 64}}), gold);
    canvas.fill(polygon({{88, 68}, {84, 54}, {73, 64}}), gold);
    return canvas;
}
