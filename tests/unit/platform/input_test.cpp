// Input reaches the window's fields in order, one transition per tick. Also tests the main loop.

#include "platform/display/ddwin.h"
#include "platform/display/message.h"
#include "platform/framework/exceptions.h"
#include "platform/host/headless/headless_host.h"
#include "platform/host/sdl/pacer.h"
#include "platform/host/sdl/screen_fit.h"
#include "platform/system/clock.h"
#include "tests/unit/support/input_words.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

/// Records each tick's input in words; "-" for a tick without input.
class Recorder : public ddwin {
public:
    std::vector<std::string> ticks;
    std::function<void()> inTick, inFrame, inStartup;
    int frames = 0;
    bool endsTicks = true;

    int startup() override
    {
        if (inStartup)
            inStartup();
        return 1;
    }
    void OnMouseAction() override
    {
        ticks.push_back(seen());
        if (inTick)
            inTick();
        if (endsTicks)
            ddwin::OnMouseAction();
    }
    void drawscreen() override
    {
        ++frames;
        if (inFrame)
            inFrame();
        ddwin::drawscreen();
    }
    std::string seen() const
    {
        std::string words;
        const auto add = [&](const std::string& word) { words += (words.empty() ? "" : " ") + word; };
        if (mouseX != recordedX || mouseY != recordedY)
            add("at " + std::to_string(mouseX) + "," + std::to_string(mouseY));
        recordedX = mouseX;
        recordedY = mouseY;
        const struct {
            int field;
            const char* word;
        } flags[] = {{lButtonUp, "up"},      {lButtonDblClk, "double"}, {rButtonDown, "right"},
                     {rButtonUp, "rightup"}, {mButtonDown, "middle"},   {mButtonUp, "middleup"},
                     {wheelUp, "wheelup"},   {wheelDown, "wheeldown"},  {keyDown[VK_SHIFT], "shift"}};
        if (lButtonDown)
            add("down" + std::to_string(mouseDownCount));
        for (const auto& flag : flags) {
            if (flag.field)
                add(flag.word);
        }
        if (keyCode)
            add(std::string("key") + (keyDown[keyCode] ? " " : " unheld ") + static_cast<char>(keyCode) +
                (keyChar ? std::string("=") + keyChar : "") + (keyCode2 ? "+second" : ""));
        return words.empty() ? "-" : words;
    }

private:
    mutable int recordedX = 0, recordedY = 0;
};

class Input : public testing::Test {
protected:
    Input()
    {
        setVirtualTime(1000);
        auto made = std::make_unique<HeadlessHost>();
        made->onMessage = [this](const CString& text) { messages.push_back(text.str()); };
        before = displayhost::use(std::move(made));
        wnd = std::make_unique<Recorder>();
        wnd->screenWidth = 320;
        wnd->screenHeight = 200;
    }
    ~Input() override
    {
        wnd.reset();
        displayhost::use(std::move(before));
        useRealTime();
    }
    InputQueue& queue() { return displayhost::current().input(); }
    /// Queues input in words.
    template<class... Actions>
    void queueUp(const Actions&... actions)
    {
        EXPECT_TRUE((queueInput(queue(), actions) && ...));
    }
    /// Runs ticks and returns what each saw, separated by commas.
    std::string run(int count)
    {
        wnd->ticks.clear();
        std::string all;
        for (int i = 0; i < count; ++i) {
            wnd->runTick();
            all += (i ? ", " : "") + wnd->ticks.back();
        }
        return all;
    }

    std::unique_ptr<displayhost> before;
    std::unique_ptr<Recorder> wnd;
    std::vector<std::string> messages;
};

TEST_F(Input, aClickBetweenTwoTicksTakesTwoTicks)
{
    queueUp("move 5 5", "move 10 20", "press left", "move 30 40", "release left", "move 50 60");
    EXPECT_EQ(run(1), "at 10,20 down1");
    EXPECT_EQ(wnd->prevMouseX, 5) << "the move before it";
    EXPECT_EQ(run(3), "at 30,40 up, at 50,60, -");
    EXPECT_EQ(wnd->prevMouseX, 30);
    EXPECT_EQ(wnd->prevMouseY, 40);
}

TEST_F(Input, aHeldButtonCountsItsTicks)
{
    queueUp("press left");
    EXPECT_EQ(run(3), "down1, down2, down3");
    queueUp("release left", "press left");
    EXPECT_EQ(run(2), "up, down1");
}

TEST_F(Input, flagsLastOneTickAndButtonsUntilReleased)
{
    queueUp("doubleclick left", "release left", "press right", "wheel up", "wheel down", "press middle",
            "release right", "release middle");
    EXPECT_EQ(run(10), "double, down1, up, right, right wheelup, right wheeldown, right middle, rightup "
                       "middle, middleup, -");
}

TEST_F(Input, keysKeepTheirOrderAndAreHeldForTheirTick)
{
    queueUp("hold 16", "key A A", "up 16", "key B b B");
    EXPECT_EQ(run(3), "shift key A=A, key B=b+second, -") << "Shift was released before the first tick";
    EXPECT_EQ(wnd->keyDown[int('A')], 0);

    queue().hold(*wnd, 'A', true);
    queueUp("key A a");
    run(2);
    EXPECT_EQ(wnd->keyDown[int('A')], 1) << "it is still held after its event";
    queue().hold(*wnd, 'A', false);
    EXPECT_EQ(wnd->keyDown[int('A')], 0);
}

TEST_F(Input, aTickThatWasNotEndedIsRepeatedWithoutNewInput)
{
    wnd->endsTicks = false;
    queueUp("key A a", "key B b");
    EXPECT_EQ(run(2), "key A=a, key A=a");
    wnd->endsTicks = true;
    EXPECT_EQ(run(3), "key A=a, key B=b, -");
}

TEST_F(Input, staleEventsAreDroppedAndTheOthersKeepTheirOrder)
{
    queueUp("move 1 1", "move 2 2", "wheel up", "move 3 3", "press left", "key A a");
    queue().key('A', 'a', 0, true);
    queueUp("move 4 4", "release left", "doubleclick right");
    advanceVirtualTime(251);
    queueUp("wheel down");
    queue().dropStale(timeGetTime(), 250);
    EXPECT_EQ(run(6), "at 3,3 down1, down2 key A=a, at 4,4 up, -, right wheeldown, right")
        << "the Recorder has no word for a double click of the right button";
}

TEST_F(Input, movesBeforeTheFirstTransitionCanBeDropped)
{
    queueUp("move 1 1", "hold 16", "move 2 2", "key A a", "move 3 3", "press left");
    queue().dropMovesAtHead();
    EXPECT_EQ(run(2), "shift key A=a, at 3,3 down1 shift") << "the move before a later press is kept";
    queue().dropMovesAtHead();
    queueUp("move 5 5");
    queue().dropMovesAtHead();
    EXPECT_EQ(run(1), "down2 shift");
}

TEST_F(Input, positionsAreClampedToTheFields)
{
    queueUp("move 100000 -100000");
    EXPECT_EQ(run(1), "at 32767,-32768");
}

TEST_F(Input, theLoopEndsAtOnceWhenRunningIsCleared)
{
    int startups = 0;
    wnd->inStartup = [&] { ++startups; };
    wnd->inTick = [&] {
        if (wnd->ticks.size() == 3) {
            wnd->running = 0;
            PostMessageA(wnd->m_hWnd, WM_CLOSE, 0, 0);
        }
    };
    EXPECT_EQ(runMainLoop(*wnd), 0);
    EXPECT_EQ(startups, 1);
    EXPECT_EQ(wnd->ticks.size(), 3u);
    EXPECT_EQ(wnd->frames, 2) << "no frame after the tick that ended the program";
    EXPECT_TRUE(displayhost::current().closeRequested);
    EXPECT_EQ(wnd->m_hWnd, nullptr);

    wnd->running = 1;
    wnd->ticks.clear();
    wnd->inTick = nullptr;
    wnd->inFrame = [&] { PostMessageA(wnd->m_hWnd, WM_CLOSE, 0, 0); };
    EXPECT_EQ(runMainLoop(*wnd), 0);
    EXPECT_EQ(wnd->ticks.size(), 1u) << "the close request of the previous run is cleared";
}

TEST_F(Input, aCloseRequestCallsTheHandlerOrClosesTheWindow)
{
    wnd->inTick = [] { displayhost::current().userWantsToClose = true; };
    int asked = 0;
    EXPECT_EQ(runMainLoop(*wnd, [&] { wnd->running = ++asked < 3; }), 0);
    EXPECT_EQ(asked, 3) << "the window stayed open after two requests";
    wnd->running = 1;
    wnd->ticks.clear();
    EXPECT_EQ(runMainLoop(*wnd), 0);
    EXPECT_EQ(wnd->ticks.size(), 1u);
}

TEST_F(Input, aPressHasItsOwnPosition)
{
    queue().press(MouseButton::Left, InputQueue::Place{50, 60});
    queueUp("release left");
    wnd->mouseX = 9;
    EXPECT_EQ(run(2), "at 50,60 down1, up");
    queue().wheel(true, InputQueue::Place{70, 60});
    EXPECT_EQ(run(1), "at 70,60 wheelup");
}

TEST_F(Input, aCancelledPressIsNotAClick)
{
    queueUp("press left", "cancel left", "press left");
    EXPECT_EQ(run(3), "down1, down1, down2") << "released and pressed again within a tick";
    queueUp("cancel left");
    EXPECT_EQ(run(2), "-, -");
    queueUp("doubleclick left", "cancel left");
    EXPECT_EQ(run(2), "double, -");
}

TEST_F(Input, droppingEventsLeavesNoHalfClicks)
{
    queueUp("press left");
    EXPECT_EQ(run(1), "down1");
    queueUp("key A a");
    const std::size_t kept = queue().getEvents().size();
    queueUp("release left", "move 5 5", "press right", "release right", "doubleclick middle", "key B b",
            "wheel up");
    queue().dropFrom(kept);
    queue().release(MouseButton::Middle); // of the dropped press
    EXPECT_EQ(run(3), "down2 key A=a, at 5,5, -") << "the left button is released without a click";
    queueUp("press middle", "release middle");
    EXPECT_EQ(run(2), "middle, middleup");

    queueUp("press left", "release left");
    EXPECT_EQ(run(1), "down1");
    queue().dropAll(*wnd);
    EXPECT_EQ(run(1), "-") << "even if the press was taken before";
    queueUp("doubleclick left");
    EXPECT_EQ(run(1), "double");
    queue().dropAll(*wnd);
    queueUp("release left");
    EXPECT_EQ(run(1), "-");
}

TEST_F(Input, anInvalidArgumentIsReportedOnceAndTheLoopContinues)
{
    wnd->inStartup = [] { AfxThrowInvalidArgException(); };
    wnd->inTick = [] { AfxThrowInvalidArgException(); };
    wnd->inFrame = [&] {
        if (wnd->frames == 4)
            wnd->running = 0;
        AfxThrowInvalidArgException();
    };
    queueUp("key A a", "key B b");
    EXPECT_EQ(runMainLoop(*wnd), 0);
    EXPECT_EQ(wnd->ticks, (std::vector<std::string>{"key A=a", "key B=b", "-", "-"}))
        << "the input of a failed tick is not taken again";
    EXPECT_EQ(messages, std::vector<std::string>{"invalid argument in a frame"});
}

TEST(Pacer, catchesUpOnlyAFewTicks)
{
    constexpr std::int64_t period = Pacer::tickMicros;
    Pacer pacer;
    pacer.start(0, 144);
    EXPECT_EQ(pacer.takeTicks(0), 1);
    EXPECT_EQ(pacer.takeTicks(0), 0);
    EXPECT_EQ(pacer.takeTicks(2 * period), 2);
    EXPECT_EQ(pacer.takeTicks(1000 * period), Pacer::ticksAtOnce);
    EXPECT_EQ(pacer.takeTicks(1000 * period), 0) << "the rest of the stall is skipped";
    EXPECT_EQ(pacer.takeTicks(1001 * period), 1);

    int frames = 0;
    for (std::int64_t now = 0; now < 1'000'000; now += 500)
        frames += pacer.takeFrame(now);
    EXPECT_NEAR(frames, 60, 1) << "at most 60, even on a faster display";
    pacer.start(0, 30);
    frames = 0;
    for (std::int64_t now = 0; now < 1'000'000; now += 500)
        frames += pacer.takeFrame(now);
    EXPECT_NEAR(frames, 30, 1);
    frames = 0;
    for (std::int64_t now = 1'000'000; now < 2'000'000; now += 500)
        frames += pacer.takeFrame(now, true);
    EXPECT_NEAR(frames, 10, 1) << "while the window cannot be seen";
}

TEST(ScreenFit, keepsTheAspectRatioAndMapsThePointer)
{
    const struct {
        const char* name;
        int windowWidth, windowHeight, x, y, w, h;
        bool whole;
    } rows[] = {
        {"as large as the screen", 640, 480, 0, 0, 640, 480, true},
        {"twice the size", 1280, 960, 0, 0, 1280, 960, true},
        {"wide", 1000, 480, 180, 0, 640, 480, true},
        {"tall", 320, 480, 0, 120, 320, 240, false},
        {"one pixel", 1, 1, 0, 0, 1, 1, false},
        {"no size", 0, 0, 0, 0, 1, 1, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const ScreenFit fit = ScreenFit::of(640, 480, row.windowWidth, row.windowHeight);
        EXPECT_EQ(fit.x, row.x);
        EXPECT_EQ(fit.y, row.y);
        EXPECT_EQ(fit.w, row.w);
        EXPECT_EQ(fit.h, row.h);
        EXPECT_EQ(fit.isWholeScale(), row.whole);
        EXPECT_EQ(fit.toScreen(-500, -500).x, 0);
        const ScreenFit::Point far = fit.toScreen(5000, 5000);
        EXPECT_GE(far.x, row.w > 1 ? 638 : 0);
        EXPECT_LT(far.x, 640);
        EXPECT_LT(far.y, 480);
    }
    const ScreenFit large = ScreenFit::of(640, 480, 1919, 1080);
    for (int x = 0; x < 640; x += 7) {
        const ScreenFit::Point place = large.toWindow(x, 100);
        EXPECT_EQ(large.toScreen(place.x, place.y).x, x) << "the position maps back to the same pixel";
    }
}

} // namespace
