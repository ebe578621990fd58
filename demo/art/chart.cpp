#include "demo/art/pictures.h"
#include "demo/palette.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int chartWidth = 632, chartHeight = 520;

/// Returns the height of the land, negative at sea: a mainland along the north and west, and two islands.
float landHeight(float x, float y)
{
    float rough = (clouds(x / 62, y / 62, 4, 131) - 0.5f) * 120;
    float main = 210 - 0.42f * x - y + 90 * smooth(330, 0, x) + 95 * smooth(400, 632, x);
    float west = 118 - x + 0.10f * y + 40 * smooth(300, 520, y);
    auto island = [&](float cx, float cy, float rx, float ry) {
        return (1 - std::hypot((x - cx) / rx, (y - cy) / ry)) * std::min(rx, ry);
    };
    float land =
        std::max({main, west, island(420, 300, 92, 62), island(276, 428, 58, 40), island(560, 440, 44, 56)});
    return land + rough * 0.62f;
}

/// Draws a dashed curve from a to c that bends towards b.
void route(Canvas& canvas, Point a, Point b, Point c)
{
    auto at = [&](float t) -> Point {
        float u = 1 - t;
        return {u * u * a.x + 2 * u * t * b.x + t * t * c.x, u * u * a.y + 2 * u * t * b.y + t * t * c.y};
    };
    float length = std::hypot(b.x - a.x, b.y - a.y) + std::hypot(c.x - b.x, c.y - b.y);
    int dashes = static_cast<int>(length / 13);
    for (int i = 0; i < dashes; ++i) {
        float from = (static_cast<float>(i) + 0.2f) / static_cast<float>(dashes),
              to = from + 0.6f / static_cast<float>(dashes);
        canvas.fill(stroke({at(from), at((from + to) / 2), at(to)}, 2.6f), rgb(palette::brick));
    }
}

/// Returns the distance of each pixel from the shore, row by row. It is exact up to the farthest depth line;
/// beyond, it is only large.
std::vector<float> shoreDistance()
{
    constexpr int reach = 32;
    std::vector<float> distance(static_cast<std::size_t>(chartWidth) * chartHeight, 1000.0f);
    auto onLand = [](int x, int y) {
        return landHeight(static_cast<float>(x) + 0.5f, static_cast<float>(y) + 0.5f) > 0;
    };
    for (int y = 0; y < chartHeight; ++y) {
        for (int x = 0; x < chartWidth; ++x) {
            if (onLand(x, y) == onLand(x + 1, y) && onLand(x, y) == onLand(x, y + 1))
                continue;
            for (int py = std::max(y - reach, 0); py <= std::min(y + reach, chartHeight - 1); ++py) {
                for (int px = std::max(x - reach, 0); px <= std::min(x + reach, chartWidth - 1); ++px) {
                    float& nearest =
                        distance[static_cast<std::size_t>(py) * chartWidth + static_cast<std::size_t>(px)];
                    nearest =
                        std::min(nearest, std::hypot(static_cast<float>(px - x), static_cast<float>(py - y)));
                }
            }
        }
    }
    return distance;
}

/// Draws the rhumb lines that spread from the rose.
void drawRhumbLines(Canvas& canvas)
{
    constexpr Point rose{550, 130};
    for (int i = 0; i < 32; ++i) {
        float angle = static_cast<float>(i) * 0.1963495f;
        Point end{rose.x + 900 * std::cos(angle), rose.y + 900 * std::sin(angle)};
        canvas.fill(stroke({rose, end}, 1), rgb(palette::ink, i % 4 == 0 ? 0.34f : 0.18f));
    }
}

/// Paints land and sea.
void paintLandAndSea(Canvas& canvas)
{
    std::vector<float> shore = shoreDistance();
    canvas.paint(0, 0, chartWidth, chartHeight, [&](float x, float y) {
        float distance = shore[static_cast<std::size_t>(y) * chartWidth + static_cast<std::size_t>(x)];
        bool onLand = landHeight(x, y) > 0;
        float ink = smooth(1.7f, 0.5f, distance);
        if (onLand) {
            float slope = landHeight(x + 1, y + 1) - landHeight(x - 1, y - 1);
            Colour land =
                mix(rgb(palette::paper), rgb(palette::brass), 0.10f + 0.22f * clouds(x / 30, y / 30, 4, 140));
            land = mix(land, rgb(palette::timber),
                       0.22f * clamp01(0.5f + slope * 0.05f) * smooth(2, 22, distance));
            land = mix(land, rgb(palette::timber), 0.30f * smooth(9, 0, distance));
            return mix(land, rgb(palette::ink), ink);
        }
        // A pale shelf, and depth lines that fade seawards.
        Colour water = rgb(palette::foam, 0.70f * smooth(30, 1, distance));
        for (float line : {9.0f, 18.0f, 27.0f}) {
            float stroke = smooth(1.2f, 0.2f, std::abs(distance - line)) * (1 - line / 40);
            water = mix(water, rgb(palette::sea, 0.9f), stroke);
        }
        return mix(water, rgb(palette::ink), ink);
    });
}

/// Draws hills where the land is high, with one stroke up and one down.
void drawHills(Canvas& canvas)
{
    for (int i = 0; i < 60; ++i) {
        float x = 30 + 570 * hashed(i, 1, 150), y = 26 + 460 * hashed(i, 2, 150);
        if (landHeight(x, y) < 34 || landHeight(x - 14, y) < 20 || landHeight(x + 14, y) < 20 ||
            landHeight(x, y + 8) < 20)
            continue;
        float size = 5 + 5 * hashed(i, 3, 150);
        canvas.fill(
            stroke({{x - size, y + size * 0.7f}, {x, y - size * 0.5f}, {x + size, y + size * 0.7f}}, 1.3f),
            rgb(palette::timber));
        canvas.fill(stroke({{x + 1, y}, {x + size * 0.5f, y + size * 0.7f}}, 1), rgb(palette::timber, 0.7f));
    }
}

/// Draws meridians and parallels.
void drawGrid(Canvas& canvas)
{
    for (int i = 1; i < 6; ++i)
        canvas.fill(
            stroke({{static_cast<float>(i) * 105.5f, 0}, {static_cast<float>(i) * 105.5f, chartHeight}}, 1),
            rgb(palette::ink, 0.16f));
    for (int i = 1; i < 5; ++i)
        canvas.fill(
            stroke({{0, static_cast<float>(i) * 104.5f}, {chartWidth, static_cast<float>(i) * 104.5f}}, 1),
            rgb(palette::ink, 0.16f));
}

/// Draws the company's routes, with the ports at their ends.
void drawRoutes(Canvas& canvas)
{
    constexpr Point ellery{144, 210}, quillHaven{353, 68}, northSound{543, 35}, brannoc{298, 315},
        gannet{288, 390}, farholm{513, 410};
    route(canvas, ellery, {290, 190}, quillHaven);
    route(canvas, ellery, {430, 260}, northSound);
    route(canvas, ellery, {230, 230}, brannoc);
    route(canvas, ellery, {190, 340}, gannet);
    route(canvas, brannoc, {390, 470}, farholm);
}

} // namespace

Canvas chartCoast()
{
    Canvas canvas(chartWidth, chartHeight);
    drawRhumbLines(canvas); // the land is painted over them
    paintLandAndSea(canvas);
    drawHills(canvas);
    drawGrid(canvas);
    drawRoutes(canvas);
    return canvas;
}

Canvas compassRose()
{
    Canvas canvas(120, 120);
    canvas.fill(outline(disc(60, 60, 50), 1.2f), rgb(palette::ink));
    canvas.fill(outline(disc(60, 60, 45), 1), rgb(palette::ink, 0.6f));
    for (int i = 0; i < 32; ++i) {
        float angle = static_cast<float>(i) * 0.1963495f;
        canvas.fill(stroke({{60 + 45 * std::cos(angle), 60 + 45 * std::sin(angle)},
                            {60 + 50 * std::cos(angle), 60 + 50 * std::sin(angle)}},
                           1),
                    rgb(palette::ink));
    }
    for (int i = 0; i < 16; ++i) { // short points first, the four long ones on top
        int point = i < 4 ? i * 4 + 1 : i < 8 ? i * 4 - 13 : i < 12 ? i * 4 - 30 : i * 4 - 48;
        float length = point % 4 == 0   ? 58.0f
                       : point % 2 == 0 ? 40.0f
                                        : 26.0f,
              half = point % 4 == 0 ? 9.0f : 7.0f;
        float angle = static_cast<float>(point) * 0.3926991f, c = std::cos(angle), s = std::sin(angle);
        auto turned = [&](float along, float aside) -> Point {
            return {60 + c * along - s * aside, 60 + s * along + c * aside};
        };
        canvas.fill(polygon({turned(0, 0), turned(half * 1.4f, half), turned(length, 0)}),
                    rgb(palette::cream));
        canvas.fill(polygon({turned(0, 0), turned(half * 1.4f, -half), turned(length, 0)}),
                    point == 12 ? rgb(palette::brick) : rgb(palette::ink));
        canvas.fill(stroke({turned(half * 1.4f, half), turned(length, 0)}, 0.9f), rgb(palette::ink));
        canvas.fill(stroke({turned(half * 1.4f, -half), turned(length, 0)}, 0.9f), rgb(palette::ink));
    }
    canvas.fill(disc(60, 60, 4.5f), rgb(palette::brass));
    canvas.fill(outline(disc(60, 60, 4.5f), 1), rgb(palette::ink));
    return canvas;
}

Canvas deskBackdrop()
{
    Canvas canvas(1024, 768);
    canvas.paint(0, 0, 1024, 768, [](float x, float y) {
        int plank = static_cast<int>(y / 128);
        float inPlank = y - 128 * static_cast<float>(plank);
        float bend = 26 * noise(x / 300, static_cast<float>(plank) * 9, 171);
        float grain = clouds(x / 150 + 17 * static_cast<float>(plank), (y + bend) / 5, 5, 173);
        float rings =
            0.5f + 0.5f * std::sin((y + bend) * 0.35f +
                                   7 * clouds(x / 210, y / 60, 3, 175 + static_cast<std::uint32_t>(plank)));
        Colour wood = mix(rgb(palette::timber), rgb(palette::night), 0.22f + 0.34f * grain + 0.12f * rings);
        wood = mix(wood, rgb(palette::night), 0.7f * smooth(125.5f, 127.5f, inPlank));
        wood = mix(wood, rgb(palette::brass), 0.15f * smooth(2.5f, 0.5f, inPlank));
        // Lamp light from the upper left, night in the corners.
        float light = smooth(980, 60, std::hypot(x - 330, (y - 230) * 1.15f));
        wood = mix(mix(wood, rgb(palette::night), 0.62f), mix(wood, rgb(palette::amber), 0.13f), light);
        return wood;
    });
    return canvas;
}
