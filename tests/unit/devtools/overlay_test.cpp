#include "devtools/overlay.h"

#include <gtest/gtest.h>

using namespace tgx;

namespace {

constexpr std::uint32_t ground = 0xFF204060;

class OverlayTest : public testing::Test {
protected:
    OverlayTest() { begin(320, 200); }

    void begin(int width, int height)
    {
        screen = makeImage(width, height);
        for (std::uint32_t& pixel : screen->pixels)
            pixel = ground;
        overlay.begin(*screen);
    }
    std::uint32_t at(int x, int y) const { return overlay.getPicture().row(y)[x]; }
    /// Returns how many pixels of the screen have changed.
    int changed() const
    {
        int count = 0;
        for (int y = 0; y < overlay.height(); ++y)
            for (int x = 0; x < overlay.width(); ++x)
                count += at(x, y) != ground;
        return count;
    }

    ImageRef screen;
    Overlay overlay;
};

TEST_F(OverlayTest, FillsAndOutlinesThePartOfABoxThatIsOnTheScreen)
{
    const struct {
        const char* name;
        Box box;
        int filled, outlined; // pixels
    } rows[] = {
        {"inside", {10, 10, 20, 15}, 50, 26},
        {"over the top left corner", {-5, -5, 5, 5}, 25, 9},
        {"over all edges", {-1, -1, 321, 201}, 320 * 200, 0},
        {"one pixel", {319, 199, 320, 200}, 1, 1},
        {"empty", {10, 10, 10, 20}, 0, 0},
        {"with edges in the wrong order", {20, 20, 10, 10}, 0, 0},
        {"beyond the screen", {400, 400, 500, 500}, 0, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        overlay.begin(*screen);
        overlay.fill(row.box, 0xFFFFFF);
        EXPECT_EQ(changed(), row.filled);
        overlay.begin(*screen);
        overlay.outline(row.box, 0xFFFFFF);
        EXPECT_EQ(changed(), row.outlined);
    }
    overlay.begin(*screen);
    overlay.fill({0, 0, 3, 1}, 0xFF0001, 128);
    EXPECT_EQ(at(0, 0), 0xFF8F2030u);
}

TEST_F(OverlayTest, TextHasItsColourAndIsLargerOnALargeScreen)
{
    overlay.text(10, 10, "I", 0x123456);
    const int small = changed();
    EXPECT_GT(small, 0);
    for (int y = 0; y < 200; ++y)
        for (int x = 0; x < 320; ++x)
            EXPECT_TRUE(at(x, y) == ground || at(x, y) == 0xFF123456) << x << ' ' << y;
    const int width = overlay.textWidth("Width");
    overlay.text(-3, -4, "over the edge");
    overlay.text(300, 195, "over the other edge");

    begin(1280, 1024);
    overlay.text(10, 10, "I", 0x123456);
    EXPECT_EQ(changed(), 4 * small);
    EXPECT_EQ(overlay.textWidth("Width"), 2 * width);
}

TEST_F(OverlayTest, CutsLinesThatAreTooLong)
{
    const std::string line = "a line that is not short";
    EXPECT_EQ(overlay.fitted(line, overlay.textWidth(line)), line);
    const std::string cut = overlay.fitted(line, overlay.textWidth(line) - 1);
    EXPECT_LE(overlay.textWidth(cut), overlay.textWidth(line) - 1);
    EXPECT_EQ(cut.substr(cut.size() - 3), "...");
    EXPECT_EQ(line.find(cut.substr(0, cut.size() - 3)), 0u);
    EXPECT_EQ(overlay.fitted(line, 0), "...");
}

TEST_F(OverlayTest, PanelsStayInsideTheirRoom)
{
    const std::vector<PanelLine> few{{"id\tGO"}, {"two"}};
    const std::vector<PanelLine> many(50, PanelLine{std::string(200, 'W') + '\t' + std::string(200, 'W')});
    const struct {
        const char* name;
        const std::vector<PanelLine>& lines;
        Corner corner;
        Box room;
        bool atLeft, atTop;
    } rows[] = {
        {"top left", few, Corner::TopLeft, {0, 0, 320, 200}, true, true},
        {"bottom right of a part", few, Corner::BottomRight, {160, 0, 320, 150}, false, false},
        {"cut on all sides", many, Corner::TopRight, {20, 10, 200, 90}, true, true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        overlay.begin(*screen);
        const Box box = paintPanel(overlay, row.lines, row.corner, row.room);
        EXPECT_TRUE(row.room.contains(box));
        EXPECT_EQ(box.x0 - row.room.x0 < row.room.x1 - box.x1 + 1, row.atLeft);
        EXPECT_EQ(box.y0 - row.room.y0 < row.room.y1 - box.y1, row.atTop);
        const int within = changed();
        overlay.fill(box, ground & 0xFFFFFF);
        EXPECT_GT(within, 0);
        EXPECT_EQ(changed(), 0) << "pixels outside the panel";
    }
    overlay.begin(*screen);
    EXPECT_TRUE(paintPanel(overlay, {}, Corner::TopLeft).isEmpty());
    EXPECT_TRUE(paintPanel(overlay, few, Corner::TopLeft, {0, 0, 15, 15}).isEmpty()) << "no room for a line";
    EXPECT_EQ(changed(), 0);
}

} // namespace
