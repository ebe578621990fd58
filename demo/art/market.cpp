#include "demo/art/plates.h"
#include "demo/palette.h"

#include <cmath>

namespace {

constexpr std::uint32_t goodsColours[] = {palette::cream, palette::lagoon, palette::amber, palette::rose};
constexpr int goodsCount = 4;

/// Paints the two panels of a progress bar side by side: full and empty.
template<class PaintPanel>
Canvas panels(int width, int height, PaintPanel paintPanel)
{
    Canvas both(2 * width + 1, height);
    for (int n = 0; n < 2; ++n) {
        Canvas panel(width, height);
        paintPanel(panel, n == 0);
        putFrame(both, panel, n);
    }
    return both;
}

/// The keys form a grid with columns 48 apart; the middle of the first is at 29.
constexpr int keyColumns = 10, keyRows = 4, keyStep = 48, keyHeight = 46;

Shape keyCap(float middle, float top)
{
    return box(middle - 21, top + 2, middle + 21, top + keyHeight - 2, 6);
}

} // namespace

Canvas marketMark(int kind)
{
    Canvas canvas(18, 14);
    if (kind < goodsCount)
        canvas.fill(stroke({{3, 7}, {15, 7}}, 4), rgb(goodsColours[kind]));
    else // the marker that the graph draws
        canvas.fill(box(7, 1, 11, 13), rgb(kind == goodsCount ? 0xFF8000 : 0x00A200));
    return canvas;
}

Canvas stockBar(int goods)
{
    constexpr int width = 168, height = 18;
    const Colour body = mix(rgb(goodsColours[goods]), rgb(palette::night), 0.18f);
    return panels(width, height, [&](Canvas& panel, bool full) {
        panel.fill(box(0, 0, width, height, 4), rgb(palette::night));
        panel.fill(outline(box(0.5f, 0.5f, width - 0.5f, height - 0.5f, 3.5f), 1), rgb(palette::brass, 0.8f));
        if (full)
            panel.fill(box(2, 2, width - 2, height - 2, 2.4f), [&](float, float y) {
                return mix(mix(body, rgb(palette::cream), 0.3f), mix(body, rgb(palette::night), 0.45f),
                           (y - 2) / (height - 4));
            });
        for (float part = 1; part < 8; ++part) {
            float x = part * width / 8;
            panel.fill(box(x - 0.5f, 2, x + 0.5f, height - 2),
                       full ? rgb(palette::night, 0.35f) : rgb(palette::slate, 0.6f));
        }
    });
}

Canvas oilTank()
{
    constexpr int width = 44, height = 80;
    return panels(width, height, [](Canvas& panel, bool full) {
        Shape wall = box(1, 1, width - 1, height - 1, 8), inside = box(4, 4, width - 4, height - 4, 5);
        panel.fill(wall, metal(rgb(palette::brass), wall));
        panel.fill(inside, [full](float x, float) {
            float across = std::abs(x - 22) / 18;
            Colour glass = mix(rgb(palette::harbour), rgb(palette::night), 0.35f + 0.5f * across);
            Colour liquid = mix(rgb(palette::amber), rgb(palette::timber), 0.12f + 0.6f * across * across);
            return full ? liquid : glass;
        });
        panel.fill(box(9, 10, 12, height - 12, 1.5f), rgb(palette::cream, full ? 0.5f : 0.22f));
        for (float part = 1; part < 4; ++part) { // quarters
            float y = part * height / 4;
            panel.fill(box(28, y - 0.5f, width - 5, y + 0.5f),
                       full ? rgb(palette::night, 0.65f) : rgb(palette::mist, 0.7f));
        }
    });
}

Canvas oilPipe()
{
    constexpr int width = 208, height = 20;
    Canvas canvas(width, height);
    Colour iron = mix(rgb(palette::slate), rgb(palette::mist), 0.25f);
    Shape pipe = stroke({{22, 11}, {186, 11}}, 6);
    canvas.fill(stroke({{22, 11}, {186, 11}}, 8), rgb(palette::night));
    for (float x : {22.0f, 76.67f, 131.33f, 186.0f}) {
        canvas.fill(box(x - 4, 0, x + 4, 11), rgb(palette::night));
        canvas.fill(box(x - 3, 0, x + 3, 11), [=](float px, float) {
            return mix(iron, rgb(palette::night), 0.15f + 0.5f * smooth(x - 3, x + 3, px));
        });
    }
    canvas.fill(pipe, metal(iron, pipe));
    for (float x : {49.33f, 104.0f, 158.67f}) { // a wheel on each valve
        canvas.fill(disc(x, 11, 8.4f), rgb(palette::night));
        canvas.fill(outline(disc(x, 11, 6.4f), 2.6f), metal(rgb(palette::brick), disc(x, 11, 6.4f)));
        for (int spoke = 0; spoke < 3; ++spoke) {
            float angle = 0.5f + static_cast<float>(spoke) * 1.0472f;
            float dx = 6 * std::cos(angle), dy = 6 * std::sin(angle);
            canvas.fill(stroke({{x - dx, 11 - dy}, {x + dx, 11 + dy}}, 1.4f), rgb(palette::brick));
        }
        canvas.fill(disc(x, 11, 2), rgb(palette::brass));
    }
    return canvas;
}

Canvas tickerTape()
{
    // Paper with holes along both edges, from the machine to where it is torn off.
    constexpr int width = 848, height = 36;
    Canvas canvas(width, height);
    std::vector<Point> rim = {{0, 0}, {width - 8, 0}};
    for (int i = 0; i <= 9; ++i)
        rim.push_back(
            {static_cast<float>(width) - (i % 2 ? 1.0f : 8.0f), static_cast<float>(i) * height / 9});
    rim.push_back({0, height});
    canvas.fill(polygon(rim), [](float x, float y) {
        Colour sheet = mix(rgb(palette::cream), rgb(palette::paper), 0.45f + 0.4f * noise(x / 40, y / 6, 51));
        sheet = mix(sheet, rgb(palette::timber), 0.22f * smooth(6, 0, y) + 0.30f * smooth(30, 36, y));
        return mix(sheet, rgb(palette::night), 0.6f * smooth(22, 0, x));
    });
    for (float x = 10; x < width - 8; x += 14)
        for (float y : {5.0f, height - 5.0f})
            canvas.fill(disc(x, y, 1.8f), mix(rgb(palette::night), rgb(palette::timber), 0.3f));
    return canvas;
}

Canvas tickerMachine()
{
    constexpr int width = 64, height = 44;
    Canvas canvas(width, height);
    canvas.lamp(30, 22, 24, rgb(palette::amber, 0.15f));
    Shape foot = box(4, 36, 60, 43, 2);
    canvas.fill(foot, metal(mix(rgb(palette::timber), rgb(palette::brass), 0.3f), foot));
    Shape works = box(16, 20, 48, 37, 2);
    canvas.fill(works, metal(rgb(palette::brass), works));
    for (float x : {24.0f, 40.0f}) {
        canvas.fill(disc(x, 24, 8), metal(rgb(palette::brass), disc(x, 24, 8)));
        canvas.fill(outline(disc(x, 24, 4.6f), 1.4f), rgb(palette::night, 0.75f));
        canvas.fill(disc(x, 24, 1.6f), rgb(palette::night));
    }
    canvas.fill(box(46, 18, 64, 30), [](float x, float) { // where the tape comes out
        return mix(rgb(palette::paper), rgb(palette::timber), 0.35f + 0.5f * smooth(46, 64, x));
    });
    Shape dome = [](float x, float y) { return std::max(ellipse(32, 37, 27, 35)(x, y), y - 37); };
    canvas.fill(dome, rgb(palette::foam, 0.13f));
    canvas.fill(outline(dome, 1.4f), rgb(palette::foam, 0.6f));
    canvas.fill(stroke({{13, 28}, {17, 16}, {23, 9}}, 2.2f), rgb(palette::cream, 0.6f));
    return canvas;
}

Canvas newShipStern()
{
    // The ship is on the slip with her stern to the quay and a board for her name.
    constexpr int width = 242, height = 106;
    Canvas canvas(width, height);
    paintDawn(canvas, 78, 30);
    paintWater(canvas, 78, 30);
    for (int i = 0; i < 7; ++i) { // the ways
        float y = 88 + 4 * static_cast<float>(i), half = 66 + 9 * static_cast<float>(i);
        canvas.fill(stroke({{121 - half, y}, {121 + half, y}}, 2.4f),
                    mix(rgb(palette::timber), rgb(palette::night), 0.3f));
    }
    for (float side : {-1.0f, 1.0f}) {
        canvas.fill(stroke({{121 + side * 40, 80}, {121 + side * 72, 108}}, 4), rgb(palette::timber));
        for (float lean : {0.0f, 13.0f}) // shores
            canvas.fill(
                stroke({{121 + side * (78 + lean * 0.4f), 58 - lean}, {121 + side * (106 + lean), 104}}, 3),
                mix(rgb(palette::timber), rgb(palette::brass), 0.25f));
    }
    const std::vector<Point> hull = {{27, 20},  {32, 42},  {44, 60},  {66, 76},  {96, 88},  {112, 97},
                                     {130, 97}, {146, 88}, {176, 76}, {198, 60}, {210, 42}, {215, 20}};
    Shape body = polygon(hull);
    canvas.fill(body, [](float x, float y) {
        float across = (x - 121) / 95;
        Colour plate = mix(rgb(palette::harbour), rgb(palette::slate), 0.35f);
        Colour keel = mix(rgb(palette::brick), rgb(palette::night), 0.15f);
        Colour side = y > 64 ? keel : plate;
        side = mix(side, rgb(palette::night), 0.25f + 0.45f * smooth(-0.5f, 1, across));
        side = mix(side, rgb(palette::rose), 0.30f * smooth(-0.35f, -1, across));
        float seam = std::fmod(y, 9.0f);
        return seam < 1 ? mix(side, rgb(palette::night), 0.35f) : side;
    });
    canvas.fill(stroke({{38, 64}, {204, 64}}, 1.6f), rgb(palette::cream, 0.0f));
    canvas.fill(stroke({{26, 20}, {216, 20}}, 5), mix(rgb(palette::timber), rgb(palette::brass), 0.45f));
    canvas.fill(stroke({{26, 18.4f}, {216, 18.4f}}, 1.2f), rgb(palette::amber, 0.8f));
    for (float x = 32; x < 214; x += 14.8f) // the rail
        canvas.fill(stroke({{x, 18}, {x, 8}}, 1.4f), rgb(palette::mist));
    canvas.fill(stroke({{29, 8}, {213, 8}}, 1.8f), rgb(palette::cream));
    // Her screw, and the rudder in front of it.
    for (float side : {-1.0f, 1.0f})
        canvas.fill(ellipse(121 + side * 9, 90, 9, 4),
                    metal(rgb(palette::brass), ellipse(121 + side * 9, 90, 9, 4)));
    canvas.fill(box(118, 70, 124, 101, 1), mix(rgb(palette::night), rgb(palette::slate), 0.4f));
    // The board.
    Shape board = box(38, 28, 204, 58, 5);
    canvas.fill(box(36.5f, 26.5f, 205.5f, 59.5f, 6), rgb(palette::night));
    canvas.fill(board, [](float x, float y) {
        return mix(mix(rgb(palette::night), rgb(palette::harbour), 0.45f), rgb(palette::night),
                   0.5f * noise(x / 30, y / 3, 9));
    });
    canvas.fill(outline(box(40, 30, 202, 56, 4), 1.6f), rgb(palette::amber));
    return canvas;
}

Canvas keyCaps()
{
    constexpr int width = keyColumns * keyStep + 10, height = keyRows * keyHeight + 4;
    Canvas canvas(width, height);
    for (int row = 0; row < keyRows; ++row)
        for (int column = 0; column < keyColumns; ++column) {
            float middle = 29 + keyStep * static_cast<float>(column),
                  top = keyHeight * static_cast<float>(row);
            Shape cap = keyCap(middle, top);
            canvas.fill([&](float x, float y) { return cap(x, y - 2); }, rgb(palette::night));
            canvas.fill(cap, [=](float, float y) {
                return mix(mix(rgb(palette::slate), rgb(palette::harbour), 0.35f),
                           mix(rgb(palette::harbour), rgb(palette::night), 0.25f), (y - top) / keyHeight);
            });
            canvas.fill(outline(keyCap(middle, top), 1.2f), rgb(palette::brass, 0.7f));
            canvas.fill(stroke({{middle - 14, top + 5}, {middle + 14, top + 5}}, 1),
                        rgb(palette::cream, 0.22f));
        }
    return canvas;
}

Canvas keyFrame(bool pressed)
{
    Canvas frame(keyStep + 11, keyHeight + 1); // with the line and column that are never visible
    Shape cap = keyCap(29, 0);
    frame.fill(cap, rgb(palette::amber, pressed ? 0.45f : 0.22f));
    frame.fill(outline(cap, 2.2f), rgb(palette::amber));
    return frame;
}
