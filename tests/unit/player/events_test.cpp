#include "tests/unit/support/tgx_test.h"

#include "platform/framework/exceptions.h"

namespace {

const char* const menu =
    R"(SCREEN 'MENU' 0 0 640 480 '' { WINDOW 'OK' 10 10 100 50; WINDOW 'CANCEL' 200 10 100 50 }
    SCREEN 'OPTIONS' 0 0 640 480 '' { WINDOW 'TGX_BACK' 10 10 100 50 })";

class EventsTest : public TgxTest {
protected:
    /// Returns the input fields that are not 0: "ldown 1 count 2".
    std::string input()
    {
        std::ostringstream text;
        const std::pair<const char*, int> fields[] = {
            {"ldown", win().lButtonDown}, {"lup", win().lButtonUp},       {"ldbl", win().lButtonDblClk},
            {"rdown", win().rButtonDown}, {"rup", win().rButtonUp},       {"rdbl", win().rButtonDblClk},
            {"mdown", win().mButtonDown}, {"mup", win().mButtonUp},       {"mdbl", win().mButtonDblClk},
            {"wheelUp", win().wheelUp},   {"wheelDown", win().wheelDown}, {"count", win().mouseDownCount},
            {"code", win().keyCode},      {"code2", win().keyCode2},      {"char", win().keyChar},
        };
        for (const auto& [name, value] : fields) {
            if (value != 0)
                text << (text.str().empty() ? "" : " ") << name << ' ' << value;
        }
        return text.str();
    }
};

TEST_F(EventsTest, AWrongLineIsRefusedWithTheReason)
{
    start(menu);
    const char* const rows[][2] = {
        {"moved 1 2", "no event \"moved\"; did you mean move?"},
        {"jump",
         "no event \"jump\"; events are frame, tick, draw, move, press, release, doubleclick, wheel, key, "
         "type, hold, lift, change, exit, click, hover, row, wait, expect, include, test, call, shot, tree, "
         "trace and fonts"},
        {"frame 1 2", "expected frame [N], found 2 words after frame"},
        {"frame \"3\"", "expected a number from 0 to 2147483647, found \"3\""},
        {"frame -1", "expected a number from 0 to 2147483647, found \"-1\""},
        {"frame --1", "expected a number from 0 to 2147483647, found \"--1\""},
        {"move 5", "expected move X Y or move to ID [X Y], found 1 word after move"},
        {"move 5 6 7", "expected move X Y or move to ID [X Y]"},
        {"move 5 32768", "expected a number from -32768 to 32767, found \"32768\""},
        {"press both", "no button \"both\"; buttons are left, right and middle"},
        {"wheel left", "expected up or down, found \"left\""},
        {"key 256", "a key code runs from 01 to 255, found 256"},
        {"key 00", "a key code runs from 01 to 255, found 00"},
        {"hold ctrl",
         "no key \"ctrl\"; keys are letters, digits, codes of two digits or more, tab, return, esc, left, "
         "right, up, down, home, end, insert, delete, backspace, space, shift, f1, f2, f3, f4, f5, f6, "
         "f7, f8, f9, f10, f11 and f12"},
        {"type \"a", "the string \"a has no closing quote"},
        {"type \"é\x01", "the string \"é\\x01 has no closing quote"},
        {"tree ../é.json", "cannot write \"../é.json\": not a file name below the output directory"},
        {"type \"ж\"", "the character ж has no byte in code page 1252"},
        {"type \"\xE9\"", "the byte 0xE9 is not UTF-8; save the file as UTF-8, or write \\xE9"},
        {"type a\"b\"", "a blank is missing between \"a\" and the string that follows"},
        {"type \"a\"b", "a blank is missing after the string \"a\""},
        {"change OPTIONS open", "expected close or nothing, found \"open\""},
        {"tree ../out.json", "cannot write \"../out.json\": not a file name below the output directory"},
        {"tree a/../../out.json",
         "cannot write \"a/../../out.json\": not a file name below the output directory"},
        {"tree \"a\\x00.json\"", "cannot write \"a\\x00.json\": not a file name below the output directory"},
        {"shot /tmp/a.png", "cannot write \"/tmp/a.png\": not a file name below the output directory"},
    };
    for (const auto& [line, reason] : rows)
        EXPECT_EQ(playWrong(line), reason) << line;
    play("", "  \t", "# frame x", "  # indented", "frame 0x2 \r");
}

TEST_F(EventsTest, EachTickTakesTheMovesAtTheHeadAndOneTransition)
{
    start(menu);
    const char* const rows[][3] = {
        // name, lines, input fields after each tick
        {"press and release take two ticks, the count rises from 1 and returns to 0",
         "press left;release left", "ldown 1 count 1;lup 1;-"},
        {"a held button counts each tick", "press left", "ldown 1 count 1;ldown 1 count 2;ldown 1 count 3"},
        {"the button is released", "release left", "lup 1;-"},
        {"a double click sets its flag alone, then counts as pressed",
         "doubleclick left;release left;doubleclick right;release right",
         "ldbl 1;ldown 1 count 1;lup 1;rdbl 1;rdown 1;rup 1;-"},
        {"down flags stay set during other transitions",
         "press middle;press right;wheel up;release middle;release right",
         "mdown 1;rdown 1 mdown 1;rdown 1 mdown 1 wheelUp 1;rdown 1 mup 1;rup 1;-"},
        {"a letter types itself in lower case", "key a;key A;key 65",
         "code 65 char 97;code 65 char 97;code 65 char 97"},
        {"codes, digits and names", "key 7;key 07;key 0x2E;key f7;key esc;key space;key insert",
         "code 55 char 55;code 7;code 46;code 118;code 27 char 27;code 32 char 32;code 45"},
        {"typed text queues one key for each character, 0xE7 for a character that no key types",
         "type \"aZ9 \\x09\\x0D\\xE9,\";type é",
         "code 65 char 97;code 90 char 90;code 57 char 57;code 32 char 32;code 9 char 9;code 13 char 13;code "
         "231 char -23;code 231 char 44;code 231 char -23;-"},
        {"shift applies when the line is read, not when the key arrives",
         "key b;hold shift;key b;lift shift;key b", "code 66 char 98;code 66 char 66;code 66 char 98;-"},
    };
    for (const auto& [name, lines, ticks] : rows) {
        SCOPED_TRACE(name);
        for (const std::string& line : parts(lines, ';'))
            play(line);
        for (const std::string& fields : parts(ticks, ';')) {
            play("tick");
            EXPECT_EQ(input(), fields == "-" ? "" : fields);
        }
    }
}

TEST_F(EventsTest, FlagsKeepTheirValuesInTheFramesAfterTheirTick)
{
    start(menu);
    std::vector<std::string> seen;
    win().duringFrame = [&] { seen.push_back(input()); };
    play("press left", "release left", "key a", "frame 3", "draw", "frame");
    EXPECT_EQ(seen, (std::vector<std::string>{"ldown 1 count 1", "lup 1", "code 65 char 97",
                                              "code 65 char 97", ""}));
}

TEST_F(EventsTest, AKeyIsHeldUntilItsTickHasEndedAndHeldKeysUntilTheyAreLifted)
{
    struct KeyWatch : AWnd {
        using AWnd::AWnd;
        int handleMouseAction(const CString&, AWnd*, int, int, E_MOUSEACTION action) override
        {
            if (action == MA_KEY)
                heldInTick = getMainWin()->keyDown[VK_INSERT];
            return 0;
        }
        int heldInTick = 0;
    };
    start(menu);
    auto* watch = new KeyWatch(AWnd::WND_PLAIN, "WATCH", 0, 0, 10, 10);
    wnd("MENU")->addChildWindow(watch);
    play("key insert");
    EXPECT_EQ(win().keyDown[VK_INSERT], 0) << "still in the queue";
    play("tick");
    EXPECT_NE(watch->heldInTick, 0);
    EXPECT_EQ(win().keyDown[VK_INSERT], 0);
    play("hold insert");
    EXPECT_NE(win().keyDown[VK_INSERT], 0) << "held immediately";
    play("key insert", "tick");
    EXPECT_NE(win().keyDown[VK_INSERT], 0) << "the end of the key's tick does not lift a held key";
    play("lift insert");
    EXPECT_EQ(win().keyDown[VK_INSERT], 0);
}

TEST_F(EventsTest, ATickWithoutTheBaseOperationIsRepeatedWithTheSameInput)
{
    start(menu);
    play("move 20 20", "tick");
    play("press left", "tick", "move 30 30", "release left");
    // The target is about to be deleted, so the tick returns before the base operation.
    win().getScreenList()->addWndToDelete(win().getActiveScreen());
    play("tick 3");
    EXPECT_EQ(input(), "lup 1");
    EXPECT_EQ(win().mouseX, 30);
    play("press right", "tick");
    EXPECT_EQ(input(), "lup 1") << "no new input after a tick that has not ended";
}

TEST_F(EventsTest, TheClockMovesBeforeFramesOnly)
{
    options.frameMs = 50;
    start(menu);
    std::vector<int> rates;
    win().duringFrame = [&] { rates.push_back(win().getCurrentFPS()); };
    play("tick 7", "draw", "frame 2");
    EXPECT_EQ(rates, (std::vector<int>{20, 20, 20}));
}

TEST_F(EventsTest, ASecondChangeCarriesOutTheFirstAndOpensItsScreen)
{
    start(menu);
    play("change OPTIONS", "change MENU");
    EXPECT_STREQ(win().getActiveScreen()->getID(), "OPTIONS");
    EXPECT_EQ(screen("OPTIONS")->isOpen(), 1) << "the event is the caller, so it must call initialise";
    play("move 20 20", "press left", "release left", "tick 2");
    EXPECT_EQ(clicks(), "TGX_BACK");
}

TEST_F(EventsTest, AnInvalidArgumentEndsItsFrameAndIsReportedOnce)
{
    struct Faulty : AWnd {
        using AWnd::AWnd;
        void draw(int) override { getWndFromIndex(-1, ""); }
        int handleMouseAction(const CString&, AWnd*, int, int, E_MOUSEACTION action) override
        {
            if (action == MA_LBUTTONDOWN)
                getWndFromIndex(-1, "");
            return 0;
        }
    };
    start(menu);
    wnd("MENU")->addChildWindow(new Faulty(AWnd::WND_PLAIN, "FAULTY", 0, 200, 10, 10));
    expectMessage("invalid argument in a frame");
    play("frame 3");
    EXPECT_EQ(frameDrawn().operations("drawbackdrop"), Trace{only("drawbackdrop")})
        << "each frame has a list of its own";
    play("move 5 205", "press left");
    EXPECT_EQ(playWrong("tick"), "invalid argument in a tick");
    EXPECT_EQ(call("MENU getWndFromIndex -1 \"\""), R"({"error": "invalid argument"})");
}

TEST_F(EventsTest, AnInvalidArgumentInAChangeIsReported)
{
    struct Faulty : AWnd {
        using AWnd::AWnd;
        void startup() override { getWndFromIndex(-1, ""); }
    };
    start(menu);
    wnd("OPTIONS")->addChildWindow(new Faulty(AWnd::WND_PLAIN, "FAULTY", 0, 200, 10, 10));
    play("change OPTIONS");
    EXPECT_EQ(playWrong("change MENU"), "invalid argument in the screen change")
        << "the second change carries out the first";
}

} // namespace
