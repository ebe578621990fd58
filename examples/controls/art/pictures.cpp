#include "examples/controls/art/looks.h"

#include <cmath>

namespace {

Colour sky(float y, float height)
{
    return mix(rgb(0x9CC4DA), rgb(0xEAF2F4), clamp01(y / height));
}

/// Paints the boat, which is designed for a height of 64, scaled to height.
Canvas boatPicture(int width, int height)
{
    Canvas canvas(width, height);
    const float scale = static_cast<float>(height) / 64, right = static_cast<float>(width) / scale;
    const auto fill = [&](const Shape& shape, Colour colour) {
        canvas.fill([&](float x, float y) { return shape(x / scale, y / scale) * scale; }, colour);
    };
    canvas.paint(0, 0, width, height, [&](float, float y) { return sky(y, 42 * scale); });
    fill(disc(76, 16, 7), rgb(look::amber));
    fill(polygon({{-4, 46}, {14, 34}, {30, 40}, {46, 44}, {46, 50}, {-4, 50}}), rgb(look::leaf));
    canvas.paint(0, height * 44 / 64, width, height,
                 [&](float, float y) { return mix(rgb(0x5D9BB8), rgb(look::blue), (y / scale - 44) / 20); });
    fill(stroke({{50, 12}, {50, 46}}, 1.6f), rgb(look::ink));
    fill(polygon({{52, 13}, {70, 40}, {52, 41}}), rgb(look::sheet));
    fill(polygon({{48, 17}, {48, 41}, {34, 41}}), rgb(0xE9D9BD));
    fill(polygon({{32, 44}, {72, 44}, {65, 52}, {38, 52}}), rgb(0x9C4A3C));
    for (float x : {8.0f, right - 18})
        fill(stroke({{x, 56}, {x + 10, 56}}, 1.2f), rgb(look::sheet, 0.7f));
    return canvas;
}

} // namespace

Canvas boat()
{
    return boatPicture(96, 64);
}

Canvas bay()
{
    return boatPicture(320, 200);
}

Canvas windmillStrip()
{
    // There are four sails, so a quarter of a turn leads back to the first frame.
    constexpr int frames = 6, size = 64;
    constexpr float turn = 1.5707963f / frames, hubX = 32, hubY = 26;
    Canvas strip = stripOf(frames, size, size);
    for (int n = 0; n < frames; ++n) {
        Canvas frame(size, size);
        frame.paint(0, 0, size, size, [](float, float y) { return sky(y, 56); });
        frame.fill(ellipse(20, 72, 60, 18), rgb(look::leaf));
        frame.fill(polygon({{27, 26}, {37, 26}, {42, 58}, {22, 58}}), rgb(0xE9D9BD));
        frame.fill(polygon({{25, 27}, {39, 27}, {32, 17}}), rgb(0x9C4A3C));
        frame.fill(box(29, 48, 35, 58, 2), rgb(look::ink));
        for (int sail = 0; sail < 4; ++sail) {
            const float angle = turn * static_cast<float>(n) + 1.5707963f * static_cast<float>(sail) + 0.35f;
            const float c = std::cos(angle), s = std::sin(angle);
            const auto at = [&](float along, float across) {
                return Point{hubX + along * c - across * s, hubY + along * s + across * c};
            };
            frame.fill(polygon({at(5, 0), at(23, 0), at(23, 5), at(5, 5)}), rgb(look::sheet));
            frame.fill(stroke({at(0, 0), at(24, 0)}, 1.4f), rgb(look::ink));
        }
        frame.fill(disc(hubX, hubY, 2), rgb(look::ink));
        putFrame(strip, frame, n);
    }
    return strip;
}

Canvas waveTile()
{
    // The pattern continues seamlessly at all sides.
    Canvas tile(16, 16, rgb(look::chosen));
    for (float y : {4.0f, 12.0f})
        for (float x = -8; x <= 24; x += 8) {
            const float shift = y > 8 ? 4.0f : 0.0f;
            tile.fill(
                stroke({{x + shift - 4, y + 1.5f}, {x + shift, y - 1.5f}, {x + shift + 4, y + 1.5f}}, 1.2f),
                rgb(look::blue, 0.7f));
        }
    return tile;
}

Canvas stripes()
{
    Canvas canvas(64, 64);
    canvas.paint(0, 0, 64, 64, [](float x, float y) {
        const int band = static_cast<int>(x + y) / 8 % 2;
        return rgb(band ? 0x4F6672 : 0x3C4F5A);
    });
    return canvas;
}

Canvas glow()
{
    Canvas canvas(56, 56, rgb(0x000000));
    canvas.lamp(28, 28, 28, rgb(0xFFC070));
    return canvas;
}

Canvas rings()
{
    // Transparent around the outer ring.
    Canvas canvas(56, 56);
    canvas.fill(disc(28, 28, 26), rgb(look::amber));
    canvas.fill(disc(28, 28, 17), rgb(look::sheet));
    canvas.fill(disc(28, 28, 8), rgb(look::blue));
    return canvas;
}

Canvas weatherIcons()
{
    std::vector<Canvas> icons(3, Canvas(26, 20));
    icons[0].fill(disc(13, 10, 4.5f), rgb(look::amber));
    for (int ray = 0; ray < 8; ++ray) {
        const float angle = 0.7853982f * static_cast<float>(ray), c = std::cos(angle), s = std::sin(angle);
        icons[0].fill(stroke({{13 + 6.3f * c, 10 + 6.3f * s}, {13 + 8.6f * c, 10 + 8.6f * s}}, 1.4f),
                      rgb(look::amber));
    }
    for (int n : {1, 2}) {
        const float y = n == 1 ? 11.0f : 8.0f;
        const Colour cloud = n == 1 ? rgb(0xA9BCC6) : rgb(0x7F929D);
        icons[n].fill(disc(9, y + 1, 3.5f), cloud);
        icons[n].fill(disc(13.5f, y - 1.5f, 4.5f), cloud);
        icons[n].fill(disc(18, y + 1.2f, 3.3f), cloud);
        icons[n].fill(box(8, y, 19, y + 4.5f, 2), cloud);
    }
    for (float x : {9.5f, 13.5f, 17.5f})
        icons[2].fill(stroke({{x, 14.5f}, {x - 1.5f, 18.5f}}, 1.4f), rgb(look::blue));
    return frameGrid(icons, 3);
}
