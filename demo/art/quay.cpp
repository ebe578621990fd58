#include "demo/art/pictures.h"
#include "demo/palette.h"

#include <cmath>

namespace {

/// Paints bricks in running bond, lit by nearby lamps.
Colour brickwork(float x, float y)
{
    constexpr float rowHeight = 10, length = 26;
    int row = static_cast<int>(std::floor(y / rowHeight));
    float shifted = x + (row % 2 ? length / 2 : 0);
    int column = static_cast<int>(std::floor(shifted / length));
    float inX = shifted - static_cast<float>(column) * length, inY = y - static_cast<float>(row) * rowHeight;
    Colour brick = mix(rgb(palette::brick), rgb(palette::harbour), 0.52f + 0.22f * hashed(column, row, 3));
    brick = mix(brick, rgb(palette::night), 0.30f * clouds(x / 60, y / 60, 4, 7));
    bool mortar = inX < 1.6f || inY < 1.6f;
    return mortar ? mix(brick, rgb(palette::night), 0.45f) : brick;
}

void archedWindow(Canvas& canvas, float x, float top, float width, float height, bool lit)
{
    auto arch = [&](float grow) -> Shape {
        Shape head = disc(x, top + width / 2, width / 2 + grow);
        Shape body = box(x - width / 2 - grow, top + width / 2, x + width / 2 + grow, top + height + grow);
        return [head, body](float px, float py) { return std::min(head(px, py), body(px, py)); };
    };
    canvas.fill(arch(9), mix(rgb(palette::slate), rgb(palette::harbour), 0.55f)); // stone surround
    canvas.fill(arch(0), [&](float px, float py) {
        Colour dark = mix(rgb(palette::night), rgb(palette::harbour), 0.7f * smooth(top + height, top, py));
        if (!lit)
            return dark;
        float glow = smooth(width, 0, std::hypot(px - x, (py - top - height * 0.55f) * 0.7f));
        return mix(mix(rgb(palette::brass), rgb(palette::timber), 0.35f), rgb(palette::amber), glow);
    });
    Colour frame = rgb(palette::night);
    for (float share : {-0.17f, 0.17f})
        canvas.fill(stroke({{x + share * width, top}, {x + share * width, top + height}}, 3), frame);
    for (float y = top + width / 2; y < top + height; y += width * 0.36f)
        canvas.fill(stroke({{x - width / 2, y}, {x + width / 2, y}}, 3), frame);
    canvas.fill(outline(arch(0), 4), frame);
    canvas.fill(box(x - width / 2 - 16, top + height + 4, x + width / 2 + 16, top + height + 15, 2),
                mix(rgb(palette::slate), rgb(palette::night), 0.3f));
    if (lit)
        canvas.lamp(x, top + height * 0.55f, width * 1.5f, rgb(palette::amber, 0.20f));
}

void crate(Canvas& canvas, float x, float foot, float size)
{
    canvas.fill(box(x, foot - size, x + size, foot, 1), [&](float px, float py) {
        float plank = std::fmod(py - foot + 400, size / 5);
        float grain = clouds(px / 20, py / 2, 3, 57);
        Colour wood = mix(rgb(palette::timber), rgb(palette::night), 0.15f + 0.45f * grain);
        return plank < 1.4f ? mix(wood, rgb(palette::night), 0.6f) : wood;
    });
    Colour rail = mix(rgb(palette::timber), rgb(palette::brass), 0.22f);
    canvas.fill(outline(box(x + 4, foot - size + 4, x + size - 4, foot - 4), 7), rail);
    canvas.fill(stroke({{x + 7, foot - 7}, {x + size - 7, foot - size + 7}}, 7), rail);
}

} // namespace

Canvas quayBackdrop()
{
    Canvas canvas(1024, 768);
    canvas.paint(0, 0, 1024, 768, brickwork);
    canvas.paint(0, 92, 1024, 108, [](float, float y) { // a stone course
        return mix(mix(rgb(palette::slate), rgb(palette::harbour), 0.45f), rgb(palette::night),
                   smooth(98, 108, y));
    });
    for (int i = 0; i < 5; ++i)
        archedWindow(canvas, 106 + 203 * static_cast<float>(i), 150, 104, 250, i == 1 || i == 4);
    // Cobbles up to the wall's foot.
    canvas.paint(0, 640, 1024, 768, [](float x, float y) {
        float depth = (y - 640) / 128, rowPos = std::pow(depth, 0.75f) * 7;
        int row = static_cast<int>(rowPos);
        float size = 22 + 22 * depth, shifted = (x - 512) / size + (row % 2 ? 0.5f : 0.0f) + 200;
        int column = static_cast<int>(shifted);
        float inX = shifted - static_cast<float>(column) - 0.5f,
              inY = rowPos - static_cast<float>(row) - 0.5f;
        float dome = clamp01(1 - std::hypot(inX, inY) * 1.7f);
        Colour stone = mix(rgb(palette::harbour), rgb(palette::slate), 0.25f + 0.3f * hashed(column, row, 8));
        stone = mix(mix(rgb(palette::night), rgb(palette::harbour), 0.3f), stone, smooth(0.05f, 0.5f, dome));
        return mix(stone, rgb(palette::amber), 0.16f * dome * smooth(420, 0, std::abs(x - 312)));
    });
    canvas.paint(0, 610, 1024, 640,
                 [](float, float y) { return rgb(palette::night, 0.65f * smooth(610, 640, y)); });
    crate(canvas, 890, 690, 76);
    crate(canvas, 962, 700, 92);
    crate(canvas, 918, 614, 62);
    // The edges are darker, so that panels in front stand out.
    canvas.paint(0, 0, 1024, 768, [](float x, float y) {
        float away = std::hypot((x - 512) / 700, (y - 380) / 520);
        return rgb(palette::night, 0.62f * smooth(0.25f, 1.1f, away));
    });
    return canvas;
}
