#include "platform/display/host.h"
#include "tests/unit/support/tgx_test.h"
#include "tgx/controls/scrollbar.h"

namespace {

/// A bar 200 pixels long with frames of 20: the lever's centre runs from 30 to 170.
class ScrollBarTest : public TgxTest {
protected:
    void SetUp() override
    {
        strip("bar.bmp", 20, 20, 6);
        start("SCREEN \"S\" 0 0 640 480 \"\"\n"
              "BEGIN\n"
              "  VSCROLLBAR \"V\" 100 100 20 200 \"bar.bmp\" 20 20\n"
              "  HSCROLLBAR \"H\" 200 100 210 20 \"bar.bmp\" 20 20\n"
              "  HSCROLLBAR \"BARE\" 200 200 210 16 \"\" 0 0\n"
              "  VSCROLLBAR \"BAREV\" 500 100 16 200 \"\" 20 24\n"
              "  HSCROLLBAR \"SHORT\" 200 300 60 20 \"bar.bmp\" 20 20\n"
              "END\n");
        play("frame 6");
    }
    AScrollBar* bar(const std::string& id) { return static_cast<AScrollBar*>(wnd(id)); }
    int percent(const std::string& id) { return bar(id)->getPercentage().raw; }
    Drawn frame(int n, int x, int y, int w, int h)
    {
        return blit("bar.bmp").from(n * 21, 0).to(x, y, w, h).mode(-1);
    }
};

TEST_F(ScrollBarTest, ACancelledPressReleasesTheLever)
{
    play("move 110 130", "press left", "tick 2");
    EXPECT_EQ(bar("V")->getLeverHeld(), 1);
    displayhost::current().input().cancel(MouseButton::Left);
    play("tick", "move 110 200", "tick");
    EXPECT_EQ(bar("V")->getLeverHeld(), 0);
    EXPECT_EQ(win().getMouseCaptureWndCount(), 0);
    EXPECT_EQ(percent("V"), 0);
}

TEST_F(ScrollBarTest, ADragFollowsThePointerOffTheBarInWholePercentages)
{
    const struct {
        const char* name;
        const char* event;
        int percent;
        int held;
    } rows[] = {
        {"on the lever, after its centre", "move 110 135", 0, 0},
        {"held: the lever moves to the pointer", "press left", 3, 1},
        {"half way", "move 110 200", 50, 1},
        {"off the bar", "move 400 240", 78, 1},
        {"past its end", "move 400 470", 100, 1},
        {"past its start", "move 400 0", 0, 1},
        {"back", "move 110 171", 29, 1},
        {"the release drops the lever", "release left", 29, 0},
        {"and the pointer no longer moves it", "move 110 250", 29, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        play(row.event, "tick");
        EXPECT_EQ(percent("V"), row.percent * 4096);
        EXPECT_EQ(bar("V")->getLeverHeld(), row.held);
        EXPECT_EQ(win().getMouseCaptureWndCount(), row.held);
    }
}

TEST_F(ScrollBarTest, AnEndButtonRepeatsWhileItIsHeld)
{
    bar("V")->setStep(ZnFixed::fromRaw(6144));
    play("move 110 295", "press left", "tick");
    EXPECT_EQ(percent("V"), 6144) << "the press itself counts";
    play("tick 28");
    EXPECT_EQ(percent("V"), 6144);
    play("tick");
    EXPECT_EQ(percent("V"), 2 * 6144) << "from the thirtieth tick";
    play("tick 10");
    EXPECT_EQ(percent("V"), 3 * 6144) << "every tenth tick";
    play("release left", "tick", "move 110 105", "press left", "tick");
    EXPECT_EQ(percent("V"), 2 * 6144);
    play("release left", "tick", "press right", "tick");
    EXPECT_EQ(percent("V"), 2 * 6144) << "other buttons do nothing";
}

TEST_F(ScrollBarTest, OutsideAListAPressBesideTheLeverDoesNothing)
{
    play("move 110 250", "press left", "tick", "tick 40", "release left", "tick");
    EXPECT_EQ(percent("V"), 0);
    play("move 110 120", "press left", "tick");
    EXPECT_EQ(bar("V")->getLeverHeld(), 1)
        << "the lever begins where the first button ends and takes precedence";
}

TEST_F(ScrollBarTest, ABarHiddenWhileItIsHeldReleasesTheCapture)
{
    play("move 110 130", "press left", "tick");
    EXPECT_EQ(win().getMouseCaptureWnd(0), wnd("V"));
    wnd("V")->setVisible(0);
    play("tick");
    EXPECT_EQ(win().getMouseCaptureWndCount(), 0);
    EXPECT_EQ(bar("V")->getLeverHeld(), 0);
    play("release left", "tick", "move 398 110", "press left", "tick");
    EXPECT_EQ(percent("H"), 4096) << "the input reaches the window under the pointer";
}

TEST_F(ScrollBarTest, TheValueIsLimited)
{
    bar("V")->setPercentage(ZnFixed::fromInt(500));
    EXPECT_EQ(percent("V"), 409600);
    bar("V")->setPercentage(ZnFixed::fromInt(-1));
    EXPECT_EQ(percent("V"), 0);
    play("move 230 310", "press left", "tick");
    EXPECT_EQ(percent("SHORT"), 0) << "a bar without travel";
}

TEST_F(ScrollBarTest, TroughButtonsAndLever)
{
    bar("H")->setPercentage(ZnFixed::fromInt(50));
    // The base paints the strip's first frame below everything.
    EXPECT_EQ(drawn("H"),
              (Trace{blit("bar.bmp").from(0, 0, 20, 20).to(200, 100, 210, 20), frame(4, 220, 100, 20, 20),
                     frame(4, 240, 100, 20, 20), frame(4, 260, 100, 20, 20), frame(4, 280, 100, 20, 20),
                     frame(4, 300, 100, 20, 20), frame(4, 320, 100, 20, 20), frame(4, 340, 100, 20, 20),
                     frame(4, 360, 100, 20, 20), frame(4, 380, 100, 10, 20), frame(0, 200, 100, 20, 20),
                     frame(2, 390, 100, 20, 20), frame(5, 295, 100, 20, 20)}));
}

TEST_F(ScrollBarTest, WithoutABitmapTheLeverIsOutlined)
{
    // Without a frame size the lever is as long as the bar is thick, and its centre runs over the whole bar.
    bar("BARE")->setPercentage(ZnFixed::fromInt(50));
    EXPECT_EQ(drawn("BARE"), (Trace{outline(297, 200, 313, 216, "#ffffff")}));
    bar("BAREV")->setPercentage(ZnFixed::fromInt(50));
    EXPECT_EQ(drawn("BAREV"), (Trace{outline(500, 188, 516, 212, "#ffffff")})) << "as long as its frames";
}

TEST_F(ScrollBarTest, WithoutAFrameSizeNoTroughIsDrawn)
{
    bar("V")->setBmpInfo(0, 0, 1, 1);
    play("draw"); // must terminate
    const auto drawnNow = drawn("V").operations("blit");
    EXPECT_EQ(drawnNow, (Trace{blit("bar.bmp").from(0, 0, 0, 0).to(100, 100, 20, 200),
                               blit("bar.bmp").from(0, 0).to(100, 100, 0, 0).mode(-1),
                               blit("bar.bmp").from(2, 0).to(100, 300, 0, 0).mode(-1),
                               blit("bar.bmp").from(5, 0).to(100, 100, 0, 0).mode(-1)}));
}

} // namespace
