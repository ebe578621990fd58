#include "demo/art/shipyard.h"
#include "demo/palette.h"

#include <algorithm>

// The vessels that the company owns besides its ships, made of the same parts.

using namespace shipyard;

void drawLighter(Canvas& canvas, Place at, const Livery& livery)
{
    // A covered hatch between two short decks, and a steering oar.
    canvas.fill(stroke({at(-98, -34), at(-58, -16)}, 2.2f * at.scale), seen(livery, rgb(palette::timber)));
    block(canvas, at, livery, -84, -30, -62, -15, livery.house);
    Shape sheet = polygon(at({{-54, -16}, {-48, -28}, {-12, -33}, {26, -30}, {60, -28}, {66, -16}}));
    canvas.fill(sheet, [&](float x, float y) {
        float fold = noise(x / (9 * at.scale), y / (22 * at.scale), 31);
        return seen(livery, mix(livery.band, rgb(palette::night), 0.10f + 0.42f * fold));
    });
    for (float x : {-30.0f, 6.0f, 42.0f})
        rope(canvas, at, livery, {x, -31}, {x + 3, -16});
    mast(canvas, at, livery, 78, -16, -34);
    hull(canvas, at, livery, {{-92, -17}, {-60, -15}, {66, -15}, {96, -20}, {84, 0}, {-82, 0}});
    canvas.fill(stroke({at(-92, -17), at(-60, -15), at(66, -15), at(96, -20)}, 2.4f * at.scale),
                seen(livery, rgb(palette::timber)));
    for (float x = -66; x <= 70; x += 34)
        canvas.fill(stroke({at(x, -13), at(x, -3)}, 1.6f * at.scale),
                    seen(livery, rgb(palette::night, 0.6f)));
}

void drawCutter(Canvas& canvas, Place at, const Livery& livery)
{
    mast(canvas, at, livery, 8, -14, -152);
    canvas.fill(stroke({at(64, -22), at(112, -34)}, 2.0f * at.scale), seen(livery, rgb(palette::timber)));
    rope(canvas, at, livery, {8, -150}, {112, -34});
    rope(canvas, at, livery, {8, -150}, {-78, -20});
    sail(canvas, at, livery, {{5, -24}, {5, -104}, {-54, -128}, {-84, -28}}, 0.05f);
    sail(canvas, at, livery, {{5, -108}, {7, -148}, {-48, -130}}, 0.14f);
    sail(canvas, at, livery, {{14, -106}, {64, -26}, {18, -26}}, 0.16f);
    sail(canvas, at, livery, {{26, -116}, {108, -36}, {72, -30}}, 0.02f);
    // The pilot's mark.
    Point mark = at(-34, -78);
    canvas.fill(outline(disc(mark.x, mark.y, 13 * at.scale), 4 * at.scale), seen(livery, livery.band));
    hull(canvas, at, livery,
         {{-82, -22}, {-40, -15}, {30, -14}, {62, -20}, {84, -26}, {68, -4}, {58, 0}, {-64, 0}, {-76, -8}});
    canvas.fill(stroke({at(-82, -22.5f), at(-40, -15.5f), at(30, -14.5f), at(62, -20.5f), at(84, -26.5f)},
                       2.0f * at.scale),
                seen(livery, rgb(palette::brass)));
}

void drawLaunch(Canvas& canvas, Place at, const Livery& livery)
{
    // An awning over the stern sheets, a boiler amidships.
    for (float x : {-62.0f, -36.0f, -10.0f})
        mast(canvas, at, livery, x, -18, -52);
    Shape awning = polygon(at({{-74, -50}, {-68, -58}, {-6, -58}, {2, -50}}));
    canvas.fill(awning, [&](float x, float) {
        bool stripe = static_cast<int>((x - at.x) / (11 * at.scale) + 100) % 2 == 0;
        return seen(livery, stripe ? livery.house : livery.band);
    });
    funnel(canvas, at, livery, 26, -74, -26, 12);
    block(canvas, at, livery, 14, -34, 44, -18, rgb(palette::brass));
    mast(canvas, at, livery, 72, -22, -52);
    hull(canvas, at, livery,
         {{-84, -22}, {-50, -17}, {30, -17}, {66, -22}, {92, -28}, {84, 0}, {-74, 0}, {-86, -10}});
    canvas.fill(stroke({at(-84, -22.5f), at(-50, -17.5f), at(30, -17.5f), at(66, -22.5f), at(92, -28.5f)},
                       2.6f * at.scale),
                seen(livery, livery.house));
}

void drawSkiff(Canvas& canvas, Place at, const Livery& livery)
{
    // Somebody sits in it and rows, facing aft.
    Colour coat = seen(livery, livery.band);
    canvas.fill(polygon(at({{-14, -18}, {-12, -44}, {4, -46}, {10, -18}})), coat);
    Point head = at(-3, -54);
    canvas.fill(disc(head.x, head.y, 9 * at.scale), seen(livery, rgb(palette::rose)));
    canvas.fill(polygon(at({{-14, -58}, {-10, -66}, {4, -66}, {8, -58}})), seen(livery, rgb(palette::night)));
    canvas.fill(stroke({at(-8, -38), at(22, -26)}, 6 * at.scale), coat);
    canvas.fill(stroke({at(26, -30), at(-52, 3)}, 3 * at.scale), seen(livery, rgb(palette::brass)));
    canvas.fill(stroke({at(-44, 0), at(-62, 7)}, 7 * at.scale), seen(livery, rgb(palette::brass)));
    hull(canvas, at, livery, {{-72, -22}, {-30, -16}, {34, -17}, {82, -28}, {66, 0}, {-58, 0}});
    canvas.fill(stroke({at(-72, -22.5f), at(-30, -16.5f), at(34, -17.5f), at(82, -28.5f)}, 3 * at.scale),
                seen(livery, livery.house));
}

void drawHulk(Canvas& canvas, Place at, const Livery& livery)
{
    // A ship that has lost everything above her deck and has a roof instead.
    mast(canvas, at, livery, 66, -34, -84);
    canvas.fill(stroke({at(66, -40), at(100, -72)}, 1.8f * at.scale), seen(livery, rgb(palette::timber)));
    rope(canvas, at, livery, {66, -82}, {100, -72});
    block(canvas, at, livery, -78, -54, 44, -32, mix(livery.house, rgb(palette::timber), 0.45f));
    Shape roof = polygon(at({{-88, -52}, {-70, -72}, {36, -72}, {54, -52}}));
    canvas.fill(roof, [&](float x, float y) {
        float slate = noise(x / (7 * at.scale), y / (3 * at.scale), 77);
        return seen(livery, mix(livery.funnel, rgb(palette::night), 0.15f + 0.4f * slate));
    });
    windows(canvas, at, livery, -66, 30, -43, 19, 3);
    hull(canvas, at, livery,
         {{-104, -46},
          {-84, -34},
          {-20, -30},
          {60, -32},
          {104, -44},
          {100, -10},
          {92, 0},
          {-88, 0},
          {-102, -14}});
    canvas.fill(stroke({at(-104, -46.5f), at(-84, -34.5f), at(-20, -30.5f), at(60, -32.5f), at(104, -44.5f)},
                       2.2f * at.scale),
                seen(livery, rgb(palette::timber)));
    for (float x = -76; x <= 84; x += 20) // gun ports from better days, painted over
        canvas.fill(
            box(at(x, 0).x - 3.5f * at.scale, at(x, -21).y, at(x, 0).x + 3.5f * at.scale, at(x, -14).y),
            seen(livery, mix(livery.hull, rgb(palette::night), 0.55f)));
}
