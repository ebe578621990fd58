#include "tests/unit/support/tgx_test.h"

#include <fstream>
#include <sstream>

namespace {

class DrawingTest : public TgxTest {
protected:
    void SetUp() override
    {
        bitmap("tile.bmp", 128, 64);
        bitmap("border.bmp", 71, 8);
        strip("strip.bmp", 40, 20, 2); // 81 wide: wider than two frames, so it continues in rows
        strip("row.bmp", 39, 20, 2);
        start("SCREEN 'S' 0 0 640 480 '' { BITMAP 'PIC' 10 20 300 100 'tile.bmp' 128 64 0 1 }");
        play("frame 10");
    }
    AWnd* pic() { return wnd("PIC"); }
    Drawn tileAt(int x, int y, int w, int h) { return blit("tile.bmp").from(0, 0).to(x, y, w, h); }
};

TEST_F(DrawingTest, TilingTakesPrecedenceOverStretching)
{
    EXPECT_EQ(drawn("PIC"), (Trace{blit("tile.bmp").from(0, 0, 128, 64).to(10, 20, 300, 100)}));

    pic()->setBmpTile(1);
    pic()->setBmpBlitMode(2 + 256);
    EXPECT_EQ(drawn("PIC"), (Trace{tileAt(10, 20, 128, 64).mode(2), tileAt(138, 20, 128, 64).mode(2),
                                   tileAt(266, 20, 44, 64).mode(2), tileAt(10, 84, 128, 36).mode(2),
                                   tileAt(138, 84, 128, 36).mode(2), tileAt(266, 84, 44, 36).mode(2)}));
    pic()->setBmpBlitMode(0);

    pic()->setBmpTile(0);
    pic()->setBmpStretch(2);
    pic()->setBmpOffset(3, 4);
    pic()->setBmpSourceInfo(5, 6);
    EXPECT_EQ(drawn("PIC"), (Trace{blit("tile.bmp").from(5, 6).to(13, 24, 128, 64)}));
}

TEST_F(DrawingTest, TilesOffTheScreenAreNotDrawn)
{
    pic()->setBmpTile(1);
    // Tiles are every 128 pixels from -32000: at 0, 128, ...; the last one ends at 767.
    pic()->setWndPos(-32000, 450, 32767, 32767);
    EXPECT_EQ(drawn("PIC"),
              (Trace{tileAt(0, 450, 128, 64), tileAt(128, 450, 128, 64), tileAt(256, 450, 128, 64),
                     tileAt(384, 450, 128, 64), tileAt(512, 450, 128, 64)}));
    for (int x : {700, -200}) { // the second tile would reach to 56, but is cut at -50
        pic()->setWndPos(x, 0, x < 0 ? 150 : 300, 100);
        EXPECT_EQ(drawn("PIC"), Trace{}) << x;
    }
}

TEST_F(DrawingTest, ABorderInsetsTheBitmapButLeavesItAtLeastAPixel)
{
    pic()->setBorder("border.bmp", 8, 8);
    pic()->setWndPos(0, 0, 10, 6);
    pic()->setBmpInfo(128, 64, 0, 0); // no frames: no bitmap
    // Smaller than two pieces: each corner piece shows only the part at the window's corner.
    const auto corner = [](int sx, int sy, int x, int y) {
        return blit("border.bmp").from(sx, sy).to(x, y, 5, 3).mode(-1);
    };
    EXPECT_EQ(drawn("PIC"),
              (Trace{corner(0, 0, 0, 0), corner(21, 0, 5, 0), corner(54, 5, 0, 3), corner(39, 5, 5, 3)}));

    pic()->setBmpInfo(128, 64, 0, 1);
    EXPECT_EQ(drawn("PIC").operations("blit"),
              (Trace{blit("tile.bmp").from(0, 0, 128, 64).to(8, 8, 1, 1), corner(0, 0, 0, 0),
                     corner(21, 0, 5, 0), corner(54, 5, 0, 3), corner(39, 5, 5, 3)}));
}

TEST_F(DrawingTest, BorderEdgesAreTiledBelowTheCorners)
{
    pic()->setBmpInfo(128, 64, 0, 0);
    pic()->setBorder("border.bmp", 8, 8);
    pic()->setWndPos(0, 0, 28, 21);
    const auto piece = [](int k, int x, int y, int w, int h) {
        return blit("border.bmp").from(k * 9, 0).to(x, y, w, h).mode(-1);
    };
    EXPECT_EQ(drawn("PIC"), (Trace{piece(1, 8, 0, 8, 8), piece(5, 8, 13, 8, 8), piece(1, 16, 0, 4, 8),
                                   piece(5, 16, 13, 4, 8), piece(7, 0, 8, 8, 5), piece(3, 20, 8, 8, 5),
                                   piece(0, 0, 0, 8, 8), piece(2, 20, 0, 8, 8), piece(6, 0, 13, 8, 8),
                                   piece(4, 20, 13, 8, 8)}));
    pic()->setBorder("border.bmp", 8, 0);
    EXPECT_EQ(drawn("PIC"), Trace{}) << "pieces without a size";
    expectMessage("cannot load none.bmp");
    pic()->setBorder("none.bmp", 8, 8);
    EXPECT_EQ(drawn("PIC"), Trace{});
}

TEST_F(DrawingTest, FramesAdvanceTickByTick)
{
    const struct {
        const char* name;
        int first, count, delay, step, loops;
        std::vector<int> frames;
    } rows[] = {
        {"looping", 2, 4, 1, 1, 1, {3, 4, 5, 2, 3}},
        {"once", 2, 4, 1, 1, 0, {3, 4, 5, 5}},
        {"a delay shows each frame for that many ticks", 0, 3, 3, 1, 1, {0, 0, 1, 1, 1, 2}},
        {"a step past the end goes to the first frame, whatever the surplus", 0, 4, 1, 3, 1, {3, 0, 3}},
        {"no delay, no animation", 0, 4, 0, 1, 1, {0, 0}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        pic()->setFrameCount(1);
        pic()->setCurrentFrame(row.first); // with one frame it also becomes the first one
        pic()->setBmpInfo(8, 8, row.delay, row.count);
        pic()->setLoop(row.loops);
        std::vector<int> seen;
        for (std::size_t i = 0; i < row.frames.size(); ++i) {
            win().getScreenList()->draw(row.step);
            seen.push_back(pic()->getCurrentFrame());
        }
        EXPECT_EQ(seen, row.frames);
    }
    const int frame = pic()->getCurrentFrame();
    win().getScreenList()->draw(0);
    EXPECT_EQ(pic()->getCurrentFrame(), frame) << "a step of 0 only paints";
}

TEST_F(DrawingTest, FramePositionsInAStrip)
{
    const struct {
        const char *name, *strip;
        int frameWidth, frame, srcX, srcY;
    } rows[] = {
        {"a strip of two frames is one row, and the source offset is added", "row.bmp", 40, 1, 41 + 7, 9},
        {"a wider strip continues in rows, without the offset", "strip.bmp", 40, 1, 0, 21},
        {"two rows down", "strip.bmp", 40, 2, 0, 42},
        {"frame -1 is left of the bitmap", "row.bmp", 40, -1, -41 + 7, 9},
        {"frames without a width have no rows", "strip.bmp", -1, 3, 0, 0},
        {"a strip narrower than its frames has no rows", "row.bmp", 300, 2, 602 + 7, 9},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        pic()->setBmpSourceInfo(7, 9);
        pic()->setBmp(CString(row.strip));
        pic()->setBmpInfo(row.frameWidth, 20, 0, 1);
        pic()->setCurrentFrame(row.frame);
        pic()->setBmpStretch(0);
        const std::string line = [&] {
            std::ostringstream printed;
            printed << drawn("PIC");
            return printed.str();
        }();
        EXPECT_NE(
            line.find("\"sx\":" + std::to_string(row.srcX) + ",\"sy\":" + std::to_string(row.srcY) + ","),
            std::string::npos)
            << line;
    }
}

TEST_F(DrawingTest, BitmapsAreLoadedOnceAndFailuresReportedEachTime)
{
    AWnd* wnd = pic();
    surface* loaded = wnd->getBmp();
    wnd->setBmp(CString("tile.bmp"));
    wnd->setBmp(CString());
    EXPECT_EQ(wnd->getBmp(), loaded);
    expectMessage("cannot load gone.bmp");
    wnd->setBmp(CString("gone.bmp"));
    EXPECT_EQ(wnd->getBmp(), nullptr);
    EXPECT_EQ(wnd->getBmpFilename(), "gone.bmp") << "the name is kept, so each startup tries again";
    expectMessage("cannot load gone.bmp");
    wnd->startup();

    write("Thing.PAK", fileContents(data / "tile.bmp"));
    wnd->setBmp(CString("Thing.PAK"));
    EXPECT_NE(wnd->getBmp(), nullptr);
    EXPECT_EQ(wnd->getBmpFilename(), "") << "a bitmap from a pack is not loaded by name again";
}

TEST_F(DrawingTest, ABackgroundIsCopiedFromTheBackdropAndCanBeRenewed)
{
    bitmap("backdrop.bmp", 640, 480, 0x203040);
    win().setbackdrop("backdrop.bmp", -1);
    pic()->setBmpInfo(128, 64, 0, 0);
    pic()->setWndPos(0, 0, 4, 2);
    pic()->createBkgnd(win().getBackdrop(), 1);
    const int surfaces = win().getSurfaceCount();
    play("frame");
    const auto pixel = [&](int x, int y) { return win().getScreenImage().row(y)[x] & 0xFFFFFF; };
    EXPECT_EQ(pixel(0, 0), 0u) << "darkened as a checkerboard";
    EXPECT_EQ(pixel(1, 0), 0x203040u);
    EXPECT_EQ(pixel(0, 1), 0x203040u);
    EXPECT_EQ(pixel(1, 1), 0u);
    pic()->startup();
    play("frame");
    EXPECT_EQ(pixel(0, 0), 0x203040u);
    EXPECT_EQ(win().getSurfaceCount(), surfaces) << "opening again leaks no surface";
    pic()->deleteBkgnd();
    play("frame");
    EXPECT_EQ(pic()->hasBkgnd(), 0);
    EXPECT_EQ(win().getSurfaceCount(), surfaces - 1);
}

TEST_F(DrawingTest, PositionsFollowWhenADrawMovesTheParent)
{
    // A window that moves its parent while it is drawn: its later siblings must follow at once.
    struct Mover : AWnd {
        using AWnd::AWnd;
        void draw(int step) override
        {
            AWnd::draw(step);
            getParent()->setWndPos(getParent()->wndX() + 5, 0, -1, -1);
        }
    };
    pic()->setBmpInfo(128, 64, 0, 0);
    pic()->setWndPos(0, 0, -1, -1);
    pic()->addChildWindow(new Mover(AWnd::WND_PLAIN, "MOVER", 0, 0, 10, 10));
    AWnd* later = pic()->addChildWindow(new AWnd(AWnd::WND_PLAIN, "LATER", 1, 2, 128, 64));
    later->setBmpFilename("tile.bmp", 128, 64);
    later->loadBmp();
    EXPECT_EQ(drawn("PIC"), (Trace{blit("tile.bmp").from(0, 0, 128, 64).to(6, 2, 128, 64)}));
}

class EarlyWindowTest : public TgxTest {};

TEST_F(EarlyWindowTest, AWindowMadeBeforeTheMainWindowGetsItsPictureAndFont)
{
    bitmap("tile.bmp", 128, 64);
    ASSERT_EQ(getMainWin(), nullptr);
    auto* early = new AWnd(AWnd::WND_PLAIN, "EARLY", 10, 20, 128, 64);
    early->setBmp(CString("tile.bmp"));
    early->setWindowText("hello");
    start("SCREEN 'S' 0 0 640 480 '' { WINDOW 'W' 0 0 9 9 }");
    wnd("W")->addChildWindow(early);
    wnd("S")->startup();
    EXPECT_NE(early->getBmp(), nullptr);
    EXPECT_EQ(early->getFont(), win().getFont(0));
    play("frame 6");
    EXPECT_EQ(frameDrawn().operations("textout"), Trace{text("hello").at(10, 45)}) << "centred vertically";
}

} // namespace
