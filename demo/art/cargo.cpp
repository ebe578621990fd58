#include "demo/art/pictures.h"
#include "demo/palette.h"

#include <algorithm>
#include <cmath>

namespace {

// Goods, about 56 wide and 44 high, with their bottom at y 0 and their middle at x 0.

void slate(Canvas& canvas, Place at)
{
    for (int i = 0; i < 6; ++i) {
        float x = -30 + 9 * static_cast<float>(i);
        Shape slab = polygon(at({{x, 0}, {x + 9, -36}, {x + 15, -36}, {x + 6, 0}}));
        Colour stone =
            mix(rgb(palette::slate), rgb(palette::mist), 0.12f + 0.07f * static_cast<float>(i % 3));
        canvas.fill(slab, [=](float px, float py) {
            return mix(stone, rgb(palette::night),
                       0.35f * noise(px / 9, py / 3, 81 + static_cast<std::uint32_t>(i)));
        });
        canvas.fill(stroke({at(x, 0), at(x + 9, -36), at(x + 15, -36)}, 1.4f * at.scale),
                    rgb(palette::foam, 0.55f));
        canvas.fill(stroke({at(x + 6, 0), at(x + 15, -36)}, 1.8f * at.scale), rgb(palette::night));
    }
}

void coal(Canvas& canvas, Place at)
{
    Shape heap =
        polygon(at({{-29, 0}, {-22, -14}, {-12, -24}, {-2, -35}, {8, -33}, {18, -20}, {26, -10}, {29, 0}}));
    canvas.fill(heap, mix(rgb(palette::night), rgb(palette::ink), 0.5f));
    for (int i = 0; i < 46; ++i) {
        float x = -26 + 52 * hashed(i, 1, 92), top = 33 * (1 - std::abs(x - 2) / 30);
        float y = -top * hashed(i, 2, 92), size = 2.2f + 2.4f * hashed(i, 3, 92);
        Colour face = mix(rgb(palette::ink), rgb(palette::slate), 0.3f + 0.8f * hashed(i, 4, 92));
        canvas.fill(polygon(at({{x - size, y},
                                {x, y - size},
                                {x + size, y - size * 0.2f},
                                {x + size * 0.3f, y + size * 0.7f}})),
                    face);
    }
}

void timber(Canvas& canvas, Place at)
{
    for (int row = 0; row < 3; ++row) {
        for (int i = 0; i < 4 - row; ++i) {
            float x = -22.5f + 15 * static_cast<float>(i) + 7.5f * static_cast<float>(row);
            Point end = at(x, -7.5f - 13 * static_cast<float>(row));
            Colour wood = mix(rgb(palette::brass), rgb(palette::paper), 0.25f);
            canvas.fill(disc(end.x, end.y, 7.6f * at.scale),
                        mix(rgb(palette::timber), rgb(palette::night), 0.35f));
            canvas.fill(disc(end.x, end.y, 6.2f * at.scale), wood);
            canvas.fill(outline(disc(end.x, end.y, 3.8f * at.scale), 1.1f * at.scale),
                        rgb(palette::timber, 0.8f));
            canvas.fill(disc(end.x, end.y, 1.5f * at.scale), rgb(palette::timber));
        }
    }
}

void wool(Canvas& canvas, Place at)
{
    const Point bales[] = {{-15, 0}, {15, 0}, {0, -20}};
    for (Point bale : bales) {
        Point low = at(bale.x - 14, bale.y), high = at(bale.x + 14, bale.y - 19);
        canvas.fill(box(low.x, high.y, high.x, low.y, 5 * at.scale), [=](float x, float y) {
            Colour cloth = mix(rgb(palette::cream), rgb(palette::paper), 0.5f);
            return mix(cloth, rgb(palette::timber),
                       0.35f * smooth(high.y, low.y, y) + 0.2f * noise(x / 3, y / 3, 7));
        });
        canvas.fill(outline(box(low.x, high.y, high.x, low.y, 5 * at.scale), 1.2f * at.scale),
                    rgb(palette::timber));
        for (float x : {-6.0f, 6.0f})
            canvas.fill(stroke({at(bale.x + x, bale.y - 1), at(bale.x + x, bale.y - 18)}, 1.8f * at.scale),
                        rgb(palette::brick));
    }
}

void casks(Canvas& canvas, Place at)
{
    for (Point foot : {Point{-17, 0}, Point{17, 0}, Point{0, 0}}) {
        float tall = foot.x == 0 ? 38.0f : 32.0f;
        Shape cask = polygon(at({{foot.x - 9, 0},
                                 {foot.x - 12, -tall * 0.35f},
                                 {foot.x - 12, -tall * 0.65f},
                                 {foot.x - 9, -tall},
                                 {foot.x + 9, -tall},
                                 {foot.x + 12, -tall * 0.65f},
                                 {foot.x + 12, -tall * 0.35f},
                                 {foot.x + 9, 0}}));
        float middle = at(foot.x, 0).x;
        canvas.fill(cask, [=](float x, float) {
            float across = std::abs(x - middle) / (12 * at.scale);
            Colour stave = mix(rgb(palette::brass), rgb(palette::timber), 0.35f + 0.5f * across);
            float seam = std::abs(std::fmod((x - middle) / at.scale + 40, 5.0f) - 2.5f);
            return seam < 0.5f ? mix(stave, rgb(palette::night), 0.35f) : stave;
        });
        for (float hoop : {0.12f, 0.34f, 0.66f, 0.88f}) {
            float half = hoop > 0.2f && hoop < 0.8f ? 12.0f : 10.0f;
            canvas.fill(
                stroke({at(foot.x - half, -tall * hoop), at(foot.x + half, -tall * hoop)}, 2.0f * at.scale),
                rgb(palette::night));
        }
        canvas.fill(stroke({at(foot.x - 9, -tall), at(foot.x + 9, -tall)}, 2.4f * at.scale),
                    rgb(palette::paper));
    }
}

void glass(Canvas& canvas, Place at)
{
    Point low = at(-22, 0), high = at(22, -38);
    canvas.fill(box(low.x, high.y, high.x, low.y, 1), [=](float x, float y) {
        float plank = std::fmod((low.y - y) / at.scale, 9.5f);
        Colour wood = mix(rgb(palette::paper), rgb(palette::timber), 0.25f + 0.3f * noise(x / 14, y / 2, 23));
        return plank < 1 ? mix(wood, rgb(palette::night), 0.6f) : wood;
    });
    canvas.fill(outline(box(low.x, high.y, high.x, low.y, 1), 2.4f * at.scale),
                mix(rgb(palette::timber), rgb(palette::night), 0.2f));
    // A goblet: this side up.
    Colour paint = rgb(palette::brick);
    canvas.fill(polygon(at({{-9, -32}, {9, -32}, {6, -20}, {2, -16}, {-2, -16}, {-6, -20}})), paint);
    canvas.fill(stroke({at(0, -16), at(0, -8)}, 2.6f * at.scale), paint);
    canvas.fill(stroke({at(-7, -7), at(7, -7)}, 2.8f * at.scale), paint);
}

void mail(Canvas& canvas, Place at)
{
    const Point sacks[] = {{-15, 0}, {15, 0}, {0, 2}};
    for (Point foot : sacks) {
        bool front = foot.x == 0;
        Shape sack = polygon(at({{foot.x - 13, foot.y},
                                 {foot.x - 14, foot.y - 14},
                                 {foot.x - 8, foot.y - 26},
                                 {foot.x - 4, foot.y - 30},
                                 {foot.x - 7, foot.y - 38},
                                 {foot.x + 7, foot.y - 38},
                                 {foot.x + 4, foot.y - 30},
                                 {foot.x + 8, foot.y - 26},
                                 {foot.x + 14, foot.y - 14},
                                 {foot.x + 13, foot.y}}));
        Colour cloth = mix(rgb(palette::mist), rgb(palette::paper), front ? 0.55f : 0.3f);
        float middle = at(foot.x, 0).x;
        canvas.fill(sack, [=](float x, float y) {
            float fold = noise(x / (6 * at.scale), y / (14 * at.scale), 19);
            return mix(cloth, rgb(palette::harbour),
                       0.15f + 0.35f * fold + 0.2f * clamp01((x - middle) / (14 * at.scale)));
        });
        canvas.fill(outline(sack, 1.2f * at.scale), rgb(palette::night, 0.8f));
        canvas.fill(stroke({at(foot.x - 5, foot.y - 30), at(foot.x + 5, foot.y - 30)}, 2.6f * at.scale),
                    rgb(palette::brick));
    }
    Point seal = at(0, -12);
    canvas.fill(disc(seal.x, seal.y, 5 * at.scale), rgb(palette::brick));
    canvas.fill(disc(seal.x, seal.y, 2.4f * at.scale), rgb(palette::amber));
}

void piano(Canvas& canvas, Place at)
{
    Colour wood = mix(rgb(palette::brick), rgb(palette::timber), 0.65f);
    canvas.fill(polygon(at({{-25, -42}, {25, -42}, {25, -3}, {-25, -3}})), [=](float x, float y) {
        return mix(mix(wood, rgb(palette::brass), 0.3f), mix(wood, rgb(palette::night), 0.45f),
                   clamp01((y - at(0, -42).y) / (40 * at.scale)) + 0.1f * noise(x / 12, y / 2, 5));
    });
    canvas.fill(stroke({at(-27, -42), at(27, -42)}, 3 * at.scale), mix(wood, rgb(palette::amber), 0.3f));
    canvas.fill(polygon(at({{-27, -22}, {27, -22}, {27, -15}, {-27, -15}})),
                mix(wood, rgb(palette::night), 0.3f));
    canvas.fill(polygon(at({{-25, -24}, {25, -24}, {25, -19}, {-25, -19}})), rgb(palette::cream));
    for (int i = 0; i < 9; ++i)
        canvas.fill(stroke({at(-22 + 5.5f * static_cast<float>(i), -24),
                            at(-22 + 5.5f * static_cast<float>(i), -21.5f)},
                           2.2f * at.scale),
                    rgb(palette::night));
    for (float x : {-24.0f, 24.0f}) {
        canvas.fill(stroke({at(x, -15), at(x, -3)}, 3 * at.scale), mix(wood, rgb(palette::amber), 0.2f));
        canvas.fill(stroke({at(x - 2, -1.5f), at(x + 2, -1.5f)}, 3 * at.scale), rgb(palette::night));
    }
    for (float x : {-12.0f, 12.0f}) // candlesticks
        canvas.fill(stroke({at(x, -34), at(x, -29)}, 1.8f * at.scale), rgb(palette::amber));
}

constexpr void (*goods[])(Canvas&, Place) = {slate, coal, timber, wool, casks, glass, mail, piano};

/// Paints an empty place of the hold: a dark gap between two ribs.
Canvas emptyPlace(int factor)
{
    Canvas large(64 * factor, 52 * factor);
    float f = static_cast<float>(factor);
    large.fill(box(f, f, 63 * f, 51 * f, 4 * f), rgb(palette::night, 0.45f));
    large.fill(outline(box(1.5f * f, 1.5f * f, 62.5f * f, 50.5f * f, 4 * f), f), rgb(palette::slate, 0.55f));
    large.fill(stroke({{6 * f, 46 * f}, {58 * f, 46 * f}}, f), rgb(palette::slate, 0.5f));
    return large;
}

// The places of the section begin at 110, 54: five of 74 by 52, three high.
constexpr int sectionWidth = 584, sectionHeight = 244;
constexpr float deck = 50, keel = 222, waterline = 150;

/// Paints the water beside the ship and below her.
void paintSectionWater(Canvas& canvas)
{
    canvas.paint(0, static_cast<int>(waterline) - 4, sectionWidth, sectionHeight, [](float x, float y) {
        float surface = waterline + 1.6f * std::sin(x / 13) + 1.2f * std::sin(x / 31 + 1);
        if (y < surface)
            return Colour{};
        float deep = (y - surface) / (sectionHeight - surface);
        Colour sea = mix(rgb(palette::sea), rgb(palette::harbour), 0.25f + 0.6f * deep);
        return y < surface + 1.6f ? rgb(palette::foam, 0.7f) : faded(sea, 0.55f * (1 - 0.5f * deep));
    });
}

/// Paints masts, derricks, house and funnel above the deck, cut off by the picture's edge.
void paintUpperWorks(Canvas& canvas)
{
    Colour rig = mix(rgb(palette::timber), rgb(palette::brass), 0.35f);
    for (float x : {189.0f, 411.0f}) {
        canvas.fill(stroke({{x, deck}, {x, 0}}, 4), rig);
        canvas.fill(stroke({{x, 27}, {x + 50, 5}}, 2.6f), rig);
        canvas.fill(stroke({{x, 2}, {x + 50, 5}}, 1), rgb(palette::mist, 0.5f));
        canvas.fill(stroke({{x + 49, 5}, {x + 49, 24}}, 1), rgb(palette::mist, 0.5f));
    }
    Shape chimney = polygon({{62, -6}, {88, -6}, {92, 24}, {64, 24}});
    canvas.fill(chimney, [](float x, float y) {
        Colour coat = y > 2 && y < 10 ? rgb(palette::amber) : rgb(palette::brick);
        return mix(coat, rgb(palette::night), 0.15f + 0.4f * smooth(64, 92, x));
    });
    Shape house = box(34, 22, 112, deck + 2, 2);
    canvas.fill(house, [](float, float y) {
        return mix(rgb(palette::cream), rgb(palette::slate), 0.12f + 0.35f * smooth(22, 52, y));
    });
    canvas.fill(stroke({{30, 22}, {116, 22}}, 3), rgb(palette::cream));
    for (float x = 46; x < 110; x += 15) {
        canvas.fill(disc(x, 35, 4), rgb(palette::amber));
        canvas.lamp(x, 35, 12, rgb(palette::amber, 0.35f));
    }
}

/// Paints the hull, cut open.
void paintHull(Canvas& canvas)
{
    Shape hull = polygon({{8, deck - 8},
                          {30, deck},
                          {480, deck},
                          {510, deck - 6},
                          {578, deck - 20},
                          {560, 130},
                          {536, 196},
                          {508, keel},
                          {62, keel},
                          {34, 206},
                          {22, 170},
                          {18, 120}});
    canvas.fill(hull, [](float, float y) {
        return y > waterline ? mix(mix(rgb(palette::brick), rgb(palette::night), 0.45f), rgb(palette::night),
                                   smooth(waterline, keel, y) * 0.4f)
                             : mix(rgb(palette::night), rgb(palette::harbour), 0.25f);
    });
    canvas.fill(outline(hull, 3.4f), rgb(palette::brass, 0.95f));
    canvas.fill(stroke({{30, deck}, {480, deck}}, 3), rgb(palette::cream, 0.85f));
}

/// Paints the boarded hold with a deck under each row of places.
void paintHold(Canvas& canvas)
{
    canvas.fill(box(112, 52, 488, 214, 3), [](float x, float y) {
        float plank = std::fmod(y, 13.0f);
        Colour wood = mix(mix(rgb(palette::timber), rgb(palette::night), 0.55f), rgb(palette::night),
                          0.35f * clouds(x / 40, y / 3, 3, 44));
        return plank < 1 ? mix(wood, rgb(palette::night), 0.5f) : wood;
    });
    for (float y : {106.0f, 158.0f, 210.0f})
        canvas.fill(box(112, y - 2, 488, y + 1.5f), mix(rgb(palette::timber), rgb(palette::brass), 0.45f));
    canvas.fill(outline(box(112, 52, 488, 214, 3), 2), rgb(palette::brass, 0.9f));
}

/// Paints the engine room, which is aft, with its shaft and propeller.
void paintEngineRoom(Canvas& canvas)
{
    canvas.fill(box(42, 64, 102, 208, 6), rgb(palette::night, 0.7f));
    Shape boiler = box(46, 112, 98, 186, 9);
    canvas.fill(boiler, metal(mix(rgb(palette::slate), rgb(palette::night), 0.2f), boiler));
    canvas.fill(outline(boiler, 1.6f), rgb(palette::night));
    for (float y : {126.0f, 150.0f}) {
        canvas.fill(box(46, y - 2, 98, y + 2), rgb(palette::night, 0.45f));
        for (float x = 51; x < 98; x += 6)
            canvas.fill(disc(x, y, 1), rgb(palette::mist, 0.8f));
    }
    for (float x : {55.0f, 72.0f, 89.0f}) { // fire doors
        canvas.fill(box(x - 6.5f, 160, x + 6.5f, 178, 2), rgb(palette::night));
        canvas.fill(box(x - 4.5f, 163, x + 4.5f, 176, 1), [](float, float y) {
            return mix(rgb(palette::amber), rgb(palette::brick), (y - 163) / 13);
        });
        canvas.lamp(x, 170, 17, rgb(palette::amber, 0.4f));
    }
    canvas.fill(stroke({{72, 112}, {72, 70}, {76, 52}}, 11),
                mix(rgb(palette::slate), rgb(palette::night), 0.4f));
    canvas.fill(stroke({{54, 200}, {90, 200}}, 5), rgb(palette::brass, 0.7f)); // the shaft
    canvas.fill(stroke({{6, 200}, {46, 200}}, 4), rgb(palette::brass, 0.9f));
    canvas.fill(ellipse(6, 200, 4, 17), rgb(palette::brass));
}

/// Paints the chain, which runs down from the hawse into coils.
void paintChain(Canvas& canvas)
{
    Colour chain = mix(rgb(palette::mist), rgb(palette::slate), 0.35f);
    for (int link = 0; link < 13; ++link) {
        float down = static_cast<float>(link) / 13;
        Point from{552 - 28 * smooth(0, 1, down), 58 + 104 * down};
        canvas.fill(outline(ellipse(from.x, from.y, link % 2 ? 2.2f : 3.2f, 5), 1.5f), chain);
    }
    for (int coil = 0; coil < 4; ++coil) {
        float y = 186 - 7 * static_cast<float>(coil), half = 11 - 1.5f * static_cast<float>(coil);
        canvas.fill(outline(ellipse(524, y, half, 4.5f), 2.2f), chain);
    }
}

} // namespace

Canvas goodsIcons()
{
    constexpr int factor = 4;
    std::vector<Canvas> frames;
    for (auto draw : goods) {
        Canvas large(28 * factor, 28 * factor);
        draw(large, {14.0f * factor, 24.5f * factor, 0.45f * factor, 1});
        frames.push_back(shrunk(large, factor));
    }
    return frameGrid(frames, 4);
}

Canvas goodsStowed()
{
    constexpr int factor = 3;
    std::vector<Canvas> frames = {shrunk(emptyPlace(factor), factor)};
    for (auto draw : goods) {
        Canvas large = emptyPlace(factor);
        draw(large, {32.0f * factor, 46.5f * factor, 0.94f * factor, 1});
        frames.push_back(shrunk(large, factor));
    }
    return frameGrid(frames, 3);
}

Canvas holdSection()
{
    Canvas canvas(sectionWidth, sectionHeight);
    paintSectionWater(canvas);
    paintUpperWorks(canvas);
    paintHull(canvas);
    paintHold(canvas);
    paintEngineRoom(canvas);
    paintChain(canvas);
    return canvas;
}

Canvas quayCrane()
{
    // The derrick on the quay with a sling of goods, before the dawn.
    constexpr int width = 122, height = 96;
    Canvas canvas(width, height);
    paintDawn(canvas, 66, 92);
    paintWater(canvas, 66, 92);
    canvas.fill(box(-2, 78, 70, 98), [](float x, float y) {
        return mix(rgb(palette::night), rgb(palette::slate), 0.25f + 0.25f * noise(x / 6, y / 4, 3));
    });
    Colour iron = rgb(palette::night);
    canvas.fill(stroke({{30, 80}, {30, 14}}, 5), iron);
    canvas.fill(stroke({{28, 78}, {96, 16}}, 3.6f), iron);
    canvas.fill(stroke({{30, 16}, {96, 16}}, 1.4f), iron);
    canvas.fill(stroke({{30, 16}, {8, 78}}, 1.4f), iron);
    canvas.fill(box(14, 62, 42, 80, 2), mix(rgb(palette::timber), rgb(palette::night), 0.35f));
    canvas.fill(box(20, 66, 28, 73), rgb(palette::amber));
    canvas.lamp(24, 70, 16, rgb(palette::amber, 0.5f));
    canvas.fill(stroke({{96, 16}, {96, 42}}, 1.4f), iron);
    canvas.fill(stroke({{96, 40}, {84, 50}}, 1.2f), iron);
    canvas.fill(stroke({{96, 40}, {108, 50}}, 1.2f), iron);
    glass(canvas, {96, 66, 0.44f, 1});
    return canvas;
}
