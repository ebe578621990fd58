#include "platform/host/headless/headless_host.h"
#include "tests/unit/support/tgx_test.h"
#include "tgx/frame/governor.h"

namespace {

TEST(FrameGovernor, StepsFollowTheFrameRate)
{
    const struct {
        const char* name;
        std::vector<int> milliseconds; // between frames
        std::vector<int> steps;
    } rows[] = {
        {"at 48 frames per second every second frame is a step", {20, 20, 20, 20}, {0, 1, 0, 1}},
        {"at 30 frames per second every frame is a step", {33, 33}, {1, 1}},
        {"no time at all counts as a millisecond", {0}, {0}},
        {"a few slow frames do not raise the step", {142, 142, 142, 142}, {1, 1, 1, 3}},
        {"a fast frame restarts the count of slow ones", {142, 142, 142, 33, 142}, {1, 1, 1, 1, 1}},
        {"more than a second", {200, 200, 200, 1500}, {1, 1, 1, 1}},
        {"exactly the target is slow", {41, 41, 41, 41}, {1, 1, 1, 1}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        FrameGovernor governor;
        std::uint32_t now = 0xFFFFFF00; // the clock may wrap
        governor.frameStarted(now);
        std::vector<int> steps;
        for (int passed : row.milliseconds) {
            now += static_cast<std::uint32_t>(passed);
            steps.push_back(governor.stepFor(now, 24));
            governor.frameStarted(now);
        }
        EXPECT_EQ(steps, row.steps);
    }
}

class FrameTest : public TgxTest {};

TEST_F(FrameTest, OrderOfDrawingInAFrame)
{
    bitmap("a.bmp", 10, 10);
    script("WINDOW 'DARKWND' 0 0 640 480 { BITMAP '' 0 0 1 1 'a.bmp' }", "common.tgx");
    start(R"(SCREEN 'S' 0 0 640 480 '' { TEXTWND 'T' 1 2 600 20 'screen' }
        TEXTWND 'EASY' 0 0 600 20 'easy' { EASYCLOSE 1 }; TEXTWND 'BOX' 0 40 600 20 'box'
        TEXTWND 'FRONT' 0 80 600 20 'front')");
    play("frame 2");
    const auto order = [&] {
        const std::map<DrawOp, const char*> shown = {{DrawOp::DrawBackdrop, "backdrop "},
                                                     {DrawOp::Blit, "dark "},
                                                     {DrawOp::RedrawScreen, "redraw "},
                                                     {DrawOp::DrawScreen, "shown "}};
        std::string names;
        for (const DrawCommand& command : win().getLastFrame().commands())
            if (command.op == DrawOp::TextOut)
                names += std::string(win().getLastFrame().text(command)) + " ";
            else if (const auto found = shown.find(command.op); found != shown.end())
                names += found->second;
        return names;
    };
    EXPECT_EQ(order(), "backdrop screen shown ");
    play("call main setPopupWnd EASY T 0", "frame");
    EXPECT_EQ(order(), "backdrop screen easy shown ") << "easy-close popups do not dim the screen";
    play("call main setPopupWnd BOX EASY 0", "call main setPopupWnd FRONT BOX 0", "frame");
    EXPECT_EQ(order(), "backdrop screen easy dark box front shown ")
        << "once, below the rearmost popup that dims";
    play("call main deletePopupWnd", "frame");
    EXPECT_EQ(order(), "backdrop screen easy dark box shown ");
    play("key f7", "frame");
    EXPECT_EQ(order(), "backdrop screen easy dark box redraw shown ");
    play("draw");
    EXPECT_EQ(order(), "backdrop screen easy dark box redraw shown ")
        << "in every frame after the key's tick";
    play("frame");
    EXPECT_EQ(order(), "backdrop screen easy dark box shown ");
}

TEST_F(FrameTest, TheExitWaitsForTheNextFrame)
{
    start("SCREEN 'S' 0 0 640 480 ''");
    play("frame 2");
    win().onCloseRequest(); // the base calls exitProgram
    EXPECT_NE(win().getScreenList(), nullptr);
    win().runTick();
    win().runFrame();
    EXPECT_EQ(win().getScreenList(), nullptr);
    EXPECT_EQ(win().running, 0);
    EXPECT_TRUE(displayhost::current().closeRequested);
    win().runTick(); // later ticks and frames do nothing
    win().runFrame();
    EXPECT_EQ(win().changeScreen("S", 0, 141, "script.tgx"), nullptr);
    EXPECT_EQ(win().readScriptFile("script.tgx", nullptr, 141, "S", 0), nullptr);
    EXPECT_TRUE(getPlayer().hasEnded());
    play("tree -");
    EXPECT_EQ(out.str(), R"({"activeScreen":null,"focus":null,"mouseDown":null,"popups":[],"capture":[],)"
                         R"("pointer":[320,240],"frameStep":1,"root":null})"
                         "\n");
}

TEST_F(FrameTest, AFrameWithoutAScreenIsNotAFailure)
{
    expectMessage("no screen in script.tgx");
    start("WINDOW 'W' 0 0 10 10");
    play("move 5 5", "press left", "frame 3", "key esc", "frame");
    EXPECT_EQ(win().getActiveScreen(), nullptr);
}

TEST_F(FrameTest, ANewScreenListForgetsTheOldOne)
{
    script("WINDOW 'DARKWND' 0 0 640 480", "common.tgx");
    start("SCREEN 'S' 0 0 640 480 '' { WINDOW 'W' 0 0 50 50 }; WINDOW 'BOX' 0 0 9 9");
    play("frame 2", "move 5 5", "frame", "call main setPopupWnd BOX W 0", "call main setMouseCaptureWnd W",
         "change S");
    win().recreateScreenList();
    EXPECT_EQ(win().getPopupWndCount(), 0);
    EXPECT_EQ(win().getMouseCaptureWndCount(), 0);
    EXPECT_EQ(win().getCurFocusWnd(), nullptr);
    EXPECT_EQ(win().getPendingScreen(), "");
    EXPECT_EQ(win().getWnd("DARKWND", 1), nullptr);
    win().startup();
    EXPECT_NE(win().getWnd("DARKWND", 1), nullptr);
    play("frame 8");
}

TEST_F(FrameTest, WaitingForFrames)
{
    start("SCREEN 'S' 0 0 640 480 '' { WINDOW 'W' 0 0 50 50 }");
    play("frame 2");
    EXPECT_EQ(win().nextDrawDone(), 0) << "nothing to wait for";
    win().waitForNextDraw();
    play("move 5 5", "press left", "tick", "release left", "tick");
    EXPECT_EQ(clicks(), "") << "no input while waiting";
    EXPECT_EQ(win().nextDrawDone() + win().nextDrawDone() + win().nextDrawDone(), 0);
    EXPECT_EQ(win().nextDrawDone(), 1);
    EXPECT_EQ(win().nextDrawDone(), 0);
    click();
    EXPECT_EQ(clicks(), "W");
}

} // namespace
