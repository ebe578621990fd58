#include "demo/art/pictures.h"
#include "demo/palette.h"

#include <cmath>

namespace {

using DrawVessel = void (*)(Canvas&, Place, const Livery&);

/// How to paint a vessel's picture in the fleet list.
struct Sitter {
    DrawVessel draw;
    float scale, facing;
    float sunX;
    std::uint32_t hull, funnel, band;
    float fog; // 0 clear, 1 nothing visible
};

// In the order of fleetPicture.
constexpr Sitter sitters[] = {
    {drawLighter, 0.66f, 1, 34, palette::timber, palette::night, palette::brass, 0},      // Ada
    {drawLighter, 0.66f, -1, 168, palette::slate, palette::night, palette::mist, 0},      // Bess
    {drawLighter, 0.70f, 1, 120, palette::harbour, palette::night, palette::brick, 0.3f}, // Clara
    {drawLighter, 0.70f, -1, 60, palette::timber, palette::night, palette::sea, 0},       // Dora
    {drawLighter, 0.74f, 1, 190, palette::brick, palette::night, palette::paper, 0},      // Effie
    {drawCutter, 0.56f, 1, 176, palette::night, palette::brass, palette::brick, 0},       // Petrel
    {drawLaunch, 0.58f, -1, 40, palette::sea, palette::brick, palette::brick, 0},         // Wren
    {drawSchooner, 0.60f, 1, 50, palette::timber, palette::brass, palette::brass, 0.2f},  // Marigold
    {drawSkiff, 0.62f, 1, 160, palette::brick, palette::brass, palette::harbour, 0},      // Sprat
    {drawHulk, 0.74f, 1, 110, palette::night, palette::slate, palette::brass, 0.5f},      // Temperance
    {drawHulk, 0.70f, -1, 184, palette::timber, palette::brick, palette::brass, 0.15f},   // Good Intent
    {drawSteamer, 0.76f, -1, 160, palette::sea, palette::amber, palette::night, 0},       // Halcyon
    {drawSchooner, 0.62f, -1, 92, palette::night, palette::brass, palette::mist, 0.4f},   // Fulmar
};

/// Paints a signal flag of 20 x 16 on a canvas of 24 x 28.
Canvas signal(int number)
{
    Canvas frame(24, 28);
    const Colour blue = mix(rgb(palette::sea), rgb(palette::harbour), 0.25f), white = rgb(palette::cream),
                 yellow = rgb(palette::amber), red = rgb(palette::brick), black = rgb(palette::night);
    const Paint cloths[] = {
        // The blue peter: she sails today.
        [=](float x, float y) { return std::abs(x - 12) < 5 && std::abs(y - 14) < 4 ? white : blue; },
        [=](float, float) { return yellow; },                                    // healthy, wants to land
        [=](float x, float) { return x < 12 ? white : red; },                    // a pilot is on board
        [=](float x, float y) { return (x < 12) == (y < 14) ? yellow : black; }, // stay where you are
        [=](float x, float y) { return (x < 12) == (y < 14) ? red : white; },    // running into danger
        [=](float x, float y) { return (x - 2) / 20 + (y - 6) / 16 < 1 ? yellow : red; }, // a man overboard
    };
    frame.fill(box(2, 6, 22, 22), [&](float x, float y) {
        Colour cloth = cloths[number](x, y);
        return mix(cloth, rgb(palette::night), 0.16f + 0.16f * std::sin(x * 0.55f + 1)); // in the wind
    });
    frame.fill(outline(box(1.5f, 5.5f, 22.5f, 22.5f), 1), rgb(palette::night, 0.9f));
    return frame;
}

} // namespace

Canvas fleetPicture(int vessel)
{
    const Sitter& sitter = sitters[vessel];
    constexpr float horizon = 82, water = 95;
    Canvas canvas(218, 118);
    paintDawn(canvas, horizon, sitter.sunX);
    paintWater(canvas, horizon, sitter.sunX);
    Livery livery{rgb(sitter.hull),
                  rgb(palette::cream),
                  rgb(sitter.funnel),
                  rgb(sitter.band),
                  mix(rgb(palette::slate), rgb(palette::rose), 0.4f),
                  0.05f + 0.25f * sitter.fog,
                  sitter.fog > 0 || sitter.draw == drawSteamer};
    Place at{109, water, sitter.scale, sitter.facing};
    if (sitter.draw == drawSteamer || sitter.draw == drawLaunch) {
        Place top = sitter.draw == drawSteamer ? Place{at(-11, -79).x, at(-11, -79).y, 0.9f, at.facing}
                                               : Place{at(25, -74).x, at(25, -74).y, 0.5f, at.facing};
        for (int puff = 8; puff >= 0; --puff)
            drawSmoke(canvas, top, (static_cast<float>(puff) + 0.4f) / 9, rgb(palette::mist));
    }
    sitter.draw(canvas, at, livery);
    paintReflection(canvas, static_cast<int>(water), 20, 0.75f);
    canvas.fill(stroke({{30, water + 1}, {188, water + 1}}, 1.4f), rgb(palette::foam, 0.5f));
    canvas.paint(0, 0, canvas.width, canvas.height, [&](float x, float y) {
        float bank = smooth(20, 92, y) * (0.6f + 0.4f * clouds(x / 50, y / 14, 3, 61));
        return rgb(palette::mist, sitter.fog * 0.8f * bank);
    });
    return canvas;
}

Canvas vesselKinds()
{
    constexpr DrawVessel kinds[] = {drawSteamer, drawSchooner, drawTug,   drawLighter,
                                    drawCutter,  drawLaunch,   drawSkiff, drawHulk};
    constexpr int factor = 4;
    Livery livery{mix(rgb(palette::mist), rgb(palette::slate), 0.3f),
                  rgb(palette::cream),
                  rgb(palette::brick),
                  rgb(palette::amber),
                  {},
                  0,
                  false};
    std::vector<Canvas> frames;
    for (DrawVessel draw : kinds) {
        bool sails = draw == drawSchooner || draw == drawCutter;
        float scale = sails ? 0.64f : draw == drawSkiff ? 0.98f : draw == drawLighter ? 0.86f : 0.78f;
        Canvas large(44 * factor, 28 * factor);
        draw(large, {22.0f * factor - 2, 23.5f * factor, scale, 1}, livery);
        large.fill(stroke({{6, 24.4f * factor}, {170, 24.4f * factor}}, 4), rgb(palette::sea));
        frames.push_back(shrunk(large, factor));
    }
    return frameGrid(frames, 4);
}

Canvas signalFlags()
{
    std::vector<Canvas> frames;
    for (int n = 0; n < 6; ++n)
        frames.push_back(signal(n));
    return frameGrid(frames, 3);
}

Canvas gauge(bool coal)
{
    // Two panels of 76 x 28: full, and empty.
    constexpr int width = 76, height = 28;
    Canvas both(2 * width + 1, height);
    for (int panel = 0; panel < 2; ++panel) {
        Canvas frame(width, height);
        frame.fill(box(0, 8, width, 20, 4), rgb(palette::night));
        frame.fill(outline(box(0.5f, 8.5f, width - 0.5f, 19.5f, 3.5f), 1), rgb(palette::brass, 0.8f));
        Colour body = coal ? rgb(palette::brass) : mix(rgb(palette::sea), rgb(palette::foam), 0.45f);
        if (panel == 0)
            frame.fill(box(2, 10, width - 2, 18, 2.4f), [&](float, float y) {
                return mix(mix(body, rgb(palette::cream), 0.35f), mix(body, rgb(palette::night), 0.3f),
                           (y - 10) / 8);
            });
        for (float tenth = 1; tenth < 4; ++tenth) // quarters
            frame.fill(box(tenth * width / 4 - 0.5f, 10, tenth * width / 4 + 0.5f, 18),
                       panel == 0 ? rgb(palette::night, 0.35f) : rgb(palette::slate, 0.7f));
        putFrame(both, frame, panel);
    }
    return both;
}
