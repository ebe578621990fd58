#include "platform/display/host.h"
#include "tests/unit/support/tgx_test.h"
#include "tgx/controls/button.h"

namespace {

class Listener : public AWnd {
public:
    using AWnd::AWnd;
    int handleMouseAction(const CString&, AWnd*, int, int, E_MOUSEACTION action) override
    {
        heard.push_back(action);
        return 0;
    }
    std::vector<int> heard;
};

class InputTest : public TgxTest {
protected:
    void SetUp() override
    {
        start(R"(SCREEN 'S' 0 0 640 480 '' {
              BUTTON 'A' 0 0 100 40 ''; BUTTON 'B' 100 0 100 40 ''; BUTTON 'C' 200 0 100 40 ''
              BUTTON 'D' 300 0 100 40 ''; WINDOW 'WMatchScreen' 0 0 1 1; TABORDER 'A' 'B' 'C' 'D'
            })");
        play("frame 6", "move 50 20", "tick");
    }
};

// A host cancels the press when the game loses the focus.
TEST_F(InputTest, ACancelledPressClicksNothing)
{
    const auto cancel = [] { displayhost::current().input().cancel(MouseButton::Left); };
    play("press left", "tick 3");
    EXPECT_EQ(win().getMouseDownWnd(), wnd("A"));
    cancel();
    play("tick");
    EXPECT_EQ(win().getMouseDownWnd(), nullptr);
    EXPECT_EQ(screen("S")->getButton("A", 0)->getButtonState(), AButton::BS_HOT);
    play("press left", "move 150 20", "tick 2");
    cancel();
    play("tick 2");
    EXPECT_EQ(screen("S")->getButton("A", 0)->getButtonState(), AButton::BS_NORMAL);
    EXPECT_EQ(clicks(), "");
    click();
    EXPECT_EQ(clicks(), "B") << "the next press works as usual";
}

TEST_F(InputTest, OneActionIsDispatchedPerTick)
{
    const struct {
        const char* name;
        void (*set)(ddwin& window);
        int action;
    } rows[] = {
        {"nothing", [](ddwin&) {}, AWnd::MA_MOVE},
        {"a held button takes precedence over a key", [](ddwin& w) { w.lButtonDown = w.keyCode = VK_TAB; },
         AWnd::MA_LBUTTONDOWN},
        {"right before middle", [](ddwin& w) { w.rButtonDown = w.mButtonDown = 1; }, AWnd::MA_RBUTTONDOWN},
        {"a held middle button", [](ddwin& w) { w.mButtonDown = w.lButtonUp = 1; }, AWnd::MA_MBUTTONDOWN},
        {"a click", [](ddwin& w) { w.lButtonUp = w.rButtonUp = 1; }, AWnd::MA_LBUTTONUP},
        {"Return", [](ddwin& w) { w.keyCode = VK_RETURN; }, AWnd::MA_LBUTTONUP},
        {"a right release is a key", [](ddwin& w) { w.rButtonUp = w.mButtonUp = 1; }, AWnd::MA_KEY},
        {"a middle release", [](ddwin& w) { w.mButtonUp = w.lButtonDblClk = 1; }, AWnd::MA_MBUTTONUP},
        {"a left double click", [](ddwin& w) { w.lButtonDblClk = w.rButtonDblClk = 1; },
         AWnd::MA_LBUTTONDBLCLK},
        {"a right double click", [](ddwin& w) { w.rButtonDblClk = w.mButtonDblClk = 1; },
         AWnd::MA_RBUTTONDBLCLK},
        {"a middle double click", [](ddwin& w) { w.mButtonDblClk = w.wheelDown = 1; },
         AWnd::MA_MBUTTONDBLCLK},
        {"the wheel both ways", [](ddwin& w) { w.wheelDown = w.wheelUp = 1; }, AWnd::MA_WHEELDOWN},
        {"the wheel takes precedence over a key", [](ddwin& w) { w.wheelUp = w.keyCode = VK_TAB; },
         AWnd::MA_WHEELUP},
        {"a second code alone is a key", [](ddwin& w) { w.keyCode2 = VK_END; }, AWnd::MA_KEY},
        {"a key that does not navigate", [](ddwin& w) { w.keyCode = VK_UP; }, AWnd::MA_KEY},
        {"a key that has moved the pointer", [](ddwin& w) { w.keyCode = VK_TAB; }, AWnd::MA_MOVE},
    };
    auto* ear = new Listener(AWnd::WND_PLAIN, "EAR", 0, 0, 640, 480);
    screen("S")->addChildWindow(ear);
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        win().lButtonDown = win().rButtonDown = win().mButtonDown = 0;
        win().runTick();
        win().setMousePos(600, 400, 0);
        ear->heard.clear();
        row.set(win());
        win().OnMouseAction();
        EXPECT_EQ(ear->heard, std::vector<int>{row.action});
        EXPECT_EQ(win().mouseX, row.action == AWnd::MA_MOVE && win().keyCode == VK_TAB ? 50 : 600);
        EXPECT_TRUE(!win().rButtonUp || !win().keyCode) << "the simulated key is reset";
    }

    // A disabled match window keeps the release of the right button from becoming a key.
    wnd("WMatchScreen")->setEnabled(0);
    ear->heard.clear();
    play("press right", "tick", "release right", "tick");
    EXPECT_EQ(ear->heard, (std::vector<int>{AWnd::MA_RBUTTONDOWN, AWnd::MA_MBUTTONDOWN}));
}

TEST_F(InputTest, AHeldButtonRepeatsAfterADelay)
{
    const struct {
        int interval;
        std::vector<int> ticks;
    } rows[] = {
        {-1, {1, 30, 40, 50, 60}},
        {7, {1, 21, 28, 35, 42, 49, 56}},
        {20, {1, 60}},
        {100, {1}},
    };
    std::map<int, std::vector<int>> due;
    play("press left");
    for (int tick = 1; tick <= 60; ++tick) {
        play("tick");
        for (const auto& row : rows)
            if (win().isMouseDownInterval(row.interval))
                due[row.interval].push_back(tick);
    }
    for (const auto& row : rows)
        EXPECT_EQ(due[row.interval], row.ticks) << row.interval;
}

TEST_F(InputTest, TabFollowsTheUsableStops)
{
    const char* const steps = "key tab=B,key right=C,key left=B,hold shift=,key tab=A,lift shift=,"
                              "call B setEnabled 0=,key tab=C,key right=D,call C setVisible 0=,key tab=A,"
                              "key left=D,key right=A";
    for (const std::string& step : parts(steps, ',')) {
        play(step.substr(0, step.find('=')));
        if (step.ends_with('='))
            continue;
        play("tick", "tick");
        EXPECT_EQ(win().getCurFocusWnd()->getID(), step.substr(step.find('=') + 1).c_str()) << step;
    }
    wnd("D")->setEnabled(0);
    play("move 90 30", "key tab", "tick");
    EXPECT_EQ(win().getCurFocusWnd(), wnd("A")) << "the only usable stop follows itself";
    EXPECT_EQ(win().mouseX, 50);
}

} // namespace
