#include "tests/unit/display/display_test.h"

#include "platform/display/pen.h"

#include <cmath>
#include <set>
#include <sstream>

namespace {

constexpr std::uint32_t ground = 0x204060;
constexpr unsigned long groundColour = 0x604020; // the same with red in the low byte

class DrawingTest : public DisplayTest {
protected:
    DrawingTest() { window.setbackdrop(groundColour); }
    Scene window{100, 80};
};

TEST_F(DrawingTest, EachModeBlendsByTheAlphaOfThePixels)
{
    const struct {
        const char* name;
        std::uint32_t pixel;
        int mode;
        std::uint32_t shown;
    } rows[] = {
        {"opaque, normal", 0xFF112233, -1, 0x112233},
        {"opaque, normal mode as 0", 0xFF112233, 0, 0x112233},
        {"opaque, unknown mode", 0xFF112233, 77, 0x112233},
        {"opaque, half", 0xFF804020, 2, 0x504040},
        {"opaque, added, saturating", 0xFFF01020, 3, 0xFF5080},
        {"key colour, normal", 0x00FF00FF, 0, ground},
        {"key colour, opaque mode", 0x00FF00FF, 1, 0xFF00FF},
        {"key colour, half", 0x00FF00FF, 2, ground},
        {"key colour, added", 0x00FF00FF, 3, ground},
        {"half alpha, normal", 0x80FF0000, 0, 0x902030},
        {"half alpha, opaque mode", 0x80123456, 1, 0x123456},
        {"half alpha, added", 0x80400000, 3, 0x404060},
        {"alpha 1 of black", 0x01000000, 0, 0x204060},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        for (const int width : {1, 3, 8, 21}) { // loops of eight pixels and the rest
            surface sprite(&window);
            sprite.setImage(imageOf(width, 2, [&](int, int) { return row.pixel; }), "");
            window.frame([&] { sprite.blit(5, 5, 0, 0, width, 2, -1, -1, nullptr, row.mode); });
            for (int x = 5; x < 5 + width; x++)
                ASSERT_EQ(window.at(x, 6), row.shown) << "width " << width << ", x " << x;
            EXPECT_EQ(window.at(4, 6), ground);
            EXPECT_EQ(window.at(5 + width, 6), ground);
            EXPECT_EQ(window.at(5, 7), ground);
        }
    }
}

// A bitmap of 4 x 4. Red is the column and green the row, counted from 1.
ImageRef numbered()
{
    return imageOf(
        4, 4, [](int x, int y) { return 0xFF000000u | static_cast<unsigned>((x + 1) << 16 | (y + 1) << 8); });
}

TEST_F(DrawingTest, SourceIsClippedToTheBitmapAndTargetToTheScreen)
{
    const struct {
        const char* name;
        int x, y, sx, sy, w, h, sw, sh;
        int painted;        // pixels
        const char* points; // "X Y PIXEL, ...", PIXEL is column and row in the bitmap, or 00 for the backdrop
    } rows[] = {
        {"whole", 10, 10, 0, 0, 4, 4, -1, -1, 16, "10 10 11, 13 13 44"},
        {"part", 10, 10, 1, 2, 2, 2, -1, -1, 4, "10 10 23, 11 11 34"},
        {"past the left and top edge of the screen", -2, -3, 0, 0, 4, 4, -1, -1, 2, "0 0 34, 1 0 44"},
        {"past right and bottom", 98, 79, 0, 0, 4, 4, -1, -1, 2, "98 79 11, 99 79 21"},
        {"source starts before the bitmap", 10, 10, -2, -1, 4, 4, -1, -1, 6, "11 11 00, 12 11 11"},
        {"source ends after the bitmap", 10, 10, 3, 3, 4, 4, -1, -1, 1, "10 10 44, 11 10 00"},
        {"doubled", 10, 10, 0, 0, 8, 8, 4, 4, 64, "11 11 11, 12 11 21, 17 17 44"},
        {"halved", 10, 10, 0, 0, 2, 2, 4, 4, 4, "10 10 11, 11 11 33"},
        {"stretched by a fraction", 10, 10, 0, 0, 6, 1, 4, 1, 6, "11 10 11, 12 10 21, 14 10 31, 15 10 41"},
        {"stretched, past left", -3, 10, 0, 0, 8, 2, 4, 1, 10, "0 10 21, 1 11 31"},
        {"stretched, source starts before the bitmap", 10, 10, -1, 0, 9, 3, 3, 1, 18,
         "12 10 00, 13 10 11, 18 12 21"},
        {"stretched, source ends after the bitmap", 10, 10, 3, 0, 6, 1, 2, 1, 3, "12 10 41, 13 10 00"},
        {"no width", 10, 10, 0, 0, 0, 4, -1, -1, 0, ""},
        {"a negative height", 10, 10, 0, 0, 4, -4, -1, -1, 0, ""},
        {"an empty source", 10, 10, 0, 0, 4, 4, 0, 4, 0, ""},
        {"only one source size given", 10, 10, 0, 0, 4, 4, -1, 4, 0, ""},
        {"completely outside the screen", 100, 0, 0, 0, 4, 4, -1, -1, 0, ""},
        {"the largest numbers", INT_MAX, INT_MAX, INT_MAX, INT_MAX, INT_MAX, INT_MAX, INT_MAX, INT_MAX, 0,
         ""},
        {"the smallest numbers", INT_MIN, INT_MIN, INT_MIN, INT_MIN, INT_MAX, INT_MAX, -1, -1, 0, ""},
        {"stretched far past both edges", INT_MIN, -5, 0, 0, INT_MAX, 1000, 4, 4, 0, ""},
        {"one source pixel covers the screen", -1000000000, -1000000000, 0, 0, INT_MAX, INT_MAX, 4, 4, 8000,
         "0 0 22, 99 79 22"},
        {"a source of the largest size", 0, 0, 0, 0, 4, 4, INT_MAX, INT_MAX, 1, "0 0 11"},
        {"a source that starts at the smallest number", 0, 0, INT_MIN, 0, 100, 1, INT_MAX, 1, 0, ""},
    };
    surface sprite(&window);
    sprite.setImage(numbered(), "");
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        window.frame(
            [&] { sprite.blit(row.x, row.y, row.sx, row.sy, row.w, row.h, row.sw, row.sh, nullptr, -1); });
        EXPECT_EQ(100 * 80 - window.count(ground), row.painted);
        std::istringstream points(row.points);
        char comma = 0;
        for (int x, y, pixel; points >> x >> y >> pixel; points >> comma)
            EXPECT_EQ(window.at(x, y),
                      pixel ? static_cast<unsigned>(pixel / 10 << 16 | pixel % 10 << 8) : ground)
                << x << ", " << y;
    }
}

TEST_F(DrawingTest, ShapesPaintTheirPixels)
{
    constexpr std::uint32_t ink = 0xFFFFFF;
    enum Shape { Fill, Outline, Line };
    constexpr int least = INT_MIN, most = INT_MAX, about = -1; // three pixels across a diagonal
    const struct {
        const char* name;
        Shape shape;
        int x1, y1, x2, y2, width;
        int painted;       // pixels
        const char* areas; // of painted pixels: "LEFT TOP RIGHT BOTTOM, ..."
    } rows[] = {
        {"fill excludes its second corner", Fill, 10, 20, 13, 22, 0, 6, "10 20 13 22"},
        {"fill with swapped corners", Fill, 13, 20, 10, 22, 0, 0, ""},
        {"fill with the extreme coordinates", Fill, least, least, most, most, 0, 8000, ""},
        {"outline", Outline, 10, 20, 14, 25, 0, 14, "10 20 14 21, 10 24 14 25, 10 20 11 25, 13 20 14 25"},
        {"outline one pixel wide is a line", Outline, 10, 20, 11, 25, 0, 5, "10 20 11 25"},
        {"outline outside the screen is invisible", Outline, least, -1, most, 81, 0, 0, ""},
        {"horizontal line includes both ends", Line, 10, 20, 15, 20, 1, 6, "10 20 16 21"},
        {"diagonal line", Line, 15, 25, 10, 20, 1, 6,
         "10 20 11 21, 11 21 12 22, 12 22 13 23, 13 23 14 24, 14 24 15 25, 15 25 16 26"},
        {"line of one point", Line, 10, 20, 10, 20, 0, 1, "10 20 11 21"},
        {"thick vertical line", Line, 20, 10, 20, 30, 2, 42, "19 10 21 31"},
        {"horizontal line with the extreme coordinates", Line, least, 40, most, 40, 1, 100, "0 40 100 41"},
        {"diagonal line with the extreme coordinates", Line, least, least, most, most, 3, about, ""},
        {"line of the largest width", Line, 50, 40, 60, 40, most, 8000, ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        window.frame([&] {
            if (row.shape == Fill)
                window.fillrect(row.x1, row.y1, row.x2, row.y2, ink);
            else if (row.shape == Outline)
                window.rectangle(row.x1, row.y1, row.x2, row.y2, ink);
            else
                window.drawLine(row.x1, row.y1, row.x2, row.y2, row.width, ink);
        });
        if (row.painted == about) {
            EXPECT_NEAR(window.count(ink), 4 * 80, 90);
        } else {
            EXPECT_EQ(window.count(ink), row.painted);
        }
        std::istringstream areas(row.areas);
        char comma = 0;
        for (int left, top, right, bottom; areas >> left >> top >> right >> bottom; areas >> comma)
            for (int i = 0; i < (right - left) * (bottom - top); i++)
                EXPECT_EQ(window.at(left + i % (right - left), top + i / (right - left)), ink) << i;
    }
}

TEST_F(DrawingTest, ALineIsTheSameFromBothEndsAndEquallyWideAtEveryAngle)
{
    for (int width = 1; width <= 6; width++) {
        for (const auto& [dx, dy] :
             {std::pair{30, 0}, {30, 7}, {30, 18}, {30, 30}, {11, 30}, {0, 30}, {-17, 30}, {-30, 4}}) {
            window.frame([&, x = dx, y = dy] { window.drawLine(50, 30, 50 + x, 30 + y, width, 0xFFFFFF); });
            const int painted = window.count(0xFFFFFF);
            const Image first = window.getScreenImage();
            window.frame([&, x = dx, y = dy] { window.drawLine(50 + x, 30 + y, 50, 30, width, 0xFFFFFF); });
            EXPECT_EQ(first.pixels, window.getScreenImage().pixels) << width << ": " << dx << ", " << dy;
            EXPECT_EQ(window.at(50, 30), 0xFFFFFFu);
            EXPECT_EQ(window.at(50 + dx, 30 + dy), 0xFFFFFFu);
            const double caps = 3.14 * (width - 1) * (width - 1) / 4; // half a circle at each end
            const double length =
                width == 1 ? std::max(std::abs(dx), std::abs(dy)) + 1 : std::hypot(dx, dy) + 1;
            EXPECT_NEAR((painted - caps) / length, width, width == 1 ? 0.01 : 0.6)
                << width << ": " << dx << ", " << dy;
        }
    }
}

TEST_F(DrawingTest, APenDrawsThroughADeviceContextWithRedInTheLowByte)
{
    HPEN pen = CreatePen(PS_SOLID, 1, 0x0000FF);
    window.frame([&] {
        HDC context = nullptr;
        ASSERT_EQ(window.getBackBuffer()->GetDC(&context), 0);
        HGDIOBJ before = SelectObject(context, pen);
        MoveToEx(context, 3, 4, nullptr);
        LineTo(context, 6, 4);
        LineTo(context, 6, 6);
        EXPECT_EQ(DeleteObject(pen), 0) << "it is still selected";
        SelectObject(context, before);
        EXPECT_EQ(window.getBackBuffer()->ReleaseDC(context), 0);
    });
    EXPECT_EQ(DeleteObject(pen), 1);
    EXPECT_EQ(window.count(0xFF0000), 6);
    EXPECT_EQ(window.at(6, 6), 0xFF0000u);
}

TEST_F(DrawingTest, ARowOfPiecesLooksLikeItsPieces)
{
    // Two pieces of 4 x 4 with a column between them. All pixels differ, and some are transparent.
    surface strip(&window);
    strip.setImage(imageOf(9, 4,
                           [](int x, int y) {
                               return (x + y) % 5 == 0
                                          ? 0x00FF00FFu
                                          : 0xFF000000u | static_cast<unsigned>(x << 20 | y << 12);
                           }),
                   "");
    const struct {
        const char* name;
        int x, y, length;
        bool down;
    } rows[] = {
        {"horizontal, the last piece cut", 10, 10, 30, false},
        {"vertical", 10, 10, 32, true},
        {"one cut piece", 10, 10, 3, false},
        {"across the left edge of the screen", -7, 10, 50, false},
        {"across the bottom edge", 10, 60, 50, true},
        {"wider than the screen", -2000, 10, 30000, false},
        {"outside the screen", 10, -40, 20, true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const int otherX = row.down ? row.x + 40 : row.x;
        const int otherY = row.down ? row.y : row.y + 40;
        window.frame([&] {
            for (int done = 0; done < row.length; done += 4) {
                const int cut = std::min(4, row.length - done);
                const int w = row.down ? 4 : cut, h = row.down ? cut : 4;
                const int dx = row.down ? 0 : done, dy = row.down ? done : 0;
                strip.blit(row.x + dx, row.y + dy, 0, 0, w, h, -1, -1, nullptr, -1);
                strip.blit(otherX + dx, otherY + dy, 5, 0, w, h, -1, -1, nullptr, -1);
            }
        });
        const ImageRef expected = copyImage(window.getScreenImage());
        window.frame(); // clears the screen
        window.frame([&] {
            strip.blitRows({row.x, row.y, 0}, {otherX, otherY, 5}, 4, row.length, row.down);
        });
        EXPECT_EQ(window.getLastFrame().commands().size(), 4u)
            << "the backdrop, two rows and the end of the frame";
        for (int y = 0; y < window.screenHeight; y++)
            for (int x = 0; x < window.screenWidth; x++)
                ASSERT_EQ(window.at(x, y), expected->row(y)[x] & 0xFFFFFF) << x << ", " << y;
    }
}

class TextTest : public DrawingTest {
protected:
    // Returns the first column that the text paints, and the one after the last.
    std::pair<int, int> paintedColumns() const
    {
        std::pair<int, int> columns{INT_MAX, 0};
        for (int x = 0; x < 100; x++)
            for (int y = 0; y < 80; y++)
                if (window.at(x, y) == 0xFFFFFF)
                    columns = {std::min(columns.first, x), x + 1};
        return columns;
    }
    void write(const char* text, int raw, int scale, int mode, int x = 10, int y = 10)
    {
        window.frame([&] { window.textout(x, y, text, font, nullptr, raw, ZnFixed::fromRaw(scale), mode); });
    }
    bmpfont* font = window.getFont(0);
};

TEST_F(TextTest, ScaleRevealsInMode1AndStretchesInMode0)
{
    const int full = window.getStringLength("HHHHHHHH", font); // includes the gap after the last letter
    ASSERT_EQ(full, 8 * 7);
    const struct {
        const char* name;
        int scale, mode;
        int end; // column after the last painted one, 0 if there is none
    } rows[] = {
        {"complete", 4096, 1, 10 + full - 1},
        {"more than complete", 4499, 1, 10 + full - 1},
        {"half revealed", 2048, 1, 10 + full / 2 - 1},
        {"cut inside a letter", 2048 + 146, 1, 10 + full / 2 + 1},
        {"nothing revealed", 0, 1, 0},
        {"a negative share", -4096, 1, 0},
        {"original size", 4096, 0, 10 + full - 1},
        {"half the size", 2048, 0, 10 + full / 2},
        {"one and a half", 6144, 0, 10 + (full - 1) * 3 / 2 + 1},
        {"size 0", 0, 0, 0},
        {"a negative size", -1, 0, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        write("HHHHHHHH", 0, row.scale, row.mode);
        const auto [first, end] = paintedColumns();
        EXPECT_EQ(end, row.end);
        if (row.end > 0) {
            EXPECT_EQ(first, 10);
        }
    }
    write("H", 0, INT_MAX, 0, -1000, -2000000);
    EXPECT_EQ(window.count(0xFFFFFF), 8000) << "a stroke of the letter covers the screen";
}

TEST_F(TextTest, OnlyRawTextBreaksLines)
{
    const auto rowsOfInk = [&] {
        int rows = 0;
        for (int y = 0; y < 80; y++) {
            bool ink = false;
            for (int x = 0; x < 100; x++)
                ink |= window.at(x, y) == 0xFFFFFF;
            rows += ink;
        }
        return rows;
    };
    write("H", 0, 4096, 1);
    const int one = rowsOfInk();
    write("H\nH\\nH", 1, 4096, 1);
    EXPECT_EQ(rowsOfInk(), 3 * one);
    EXPECT_EQ(paintedColumns().second, 10 + 6);
    write("H\nH", 0, 4096, 1);
    EXPECT_EQ(rowsOfInk(), one);
}

TEST_F(TextTest, EveryPrintableCharacterHasItsOwnShape)
{
    std::set<std::vector<std::uint32_t>> seen;
    int inked = 0;
    for (int character = 0x21; character < 0x100; character++) {
        if (character == 0x7F || character == 0xA0)
            continue;
        const Glyph& glyph = font->glyph(static_cast<unsigned char>(character));
        EXPECT_FALSE(glyph.pixels.empty()) << character;
        EXPECT_GT(font->advance(static_cast<unsigned char>(character)), 0) << character;
        EXPECT_GE(glyph.top, 0) << character;
        EXPECT_LE(glyph.top + glyph.height, font->lineHeight) << character;
        auto key = glyph.pixels;
        key.insert(key.end(), {static_cast<unsigned>(glyph.top), static_cast<unsigned>(glyph.width)});
        seen.insert(key);
        inked++;
    }
    // Some share a shape: the box of the five undefined characters, the two hyphens, low quote and comma, and
    // some bars.
    EXPECT_GE(static_cast<int>(seen.size()), inked - 12);
}

TEST_F(TextTest, ExtremeTextsAreDrawnInLimitedTime)
{
    const std::string longText(1 << 20, 'W');
    const std::string breaks(1 << 20, '\n');
    window.frame([&] {
        window.textout(INT_MIN, 0, longText.c_str(), font, nullptr, 0, ZnFixed::fromRaw(INT_MAX), 0);
        window.textout(INT_MAX, INT_MAX, longText.c_str(), font, nullptr, 1, ZnFixed::fromRaw(INT_MAX), 1);
        window.textout(0, INT_MIN, breaks.c_str(), font, nullptr, 1, ZnFixed::fromRaw(1), 0);
        window.textout(5, 5, nullptr, font, nullptr, 0, ZnFixed::fromRaw(4096), 0);
        window.textout(5, 5, "text", nullptr, nullptr, 0, ZnFixed::fromRaw(4096), 0);
    });
    EXPECT_EQ(window.count(ground), 8000);
    write(longText.c_str(), 0, 4096, 1, -700000);
    EXPECT_GT(window.count(0xFFFFFF), 100) << "the middle of a long text";
    EXPECT_EQ(window.getStringLength(nullptr, font), 0);
    bmpfont wide;
    wide.advances['W'] = INT16_MAX;
    EXPECT_EQ(window.getStringLength(longText.c_str(), &wide), INT_MAX);
}

TEST_F(TextTest, AFontThatCannotBeLoadedIsReportedAndReplaced)
{
    DisplayTest::write("broken.ttf", "not a font");
    EXPECT_EQ(window.addNewFont("none.ttf", "", 12, 0), 1);
    EXPECT_EQ(window.addNewFont("broken.ttf", "bold", 12, 0), 2);
    EXPECT_EQ(takeMessages(), (std::vector<std::string>{"cannot load none.ttf", "cannot load broken.ttf"}));
    EXPECT_EQ(window.getStringLength("abc", window.getFont(2)), window.getStringLength("abc", font));
    EXPECT_EQ(window.getFontIndex(window.getFont(2)), 2);
    EXPECT_EQ(window.getFont(3), nullptr);
    EXPECT_EQ(window.getFont(-1), nullptr);
}

} // namespace
