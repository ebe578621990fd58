#include "tests/unit/devtools/recorder_fixture.h"

#include <span>

namespace {

struct Row {
    const char* name;
    const char* actions;
    const char* lines;
};

/// Checks that a recording is what a person would write, and that it has the same effect when played.
class RecordedLinesTest : public RecorderTest {
protected:
    void compare(std::span<const Row> rows)
    {
        for (const Row& row : rows) {
            SCOPED_TRACE(row.name);
            begin();
            play("frame 60");
            record();
            doAsUser(row.actions);
            EXPECT_EQ(lines(), row.lines);
            const Outcome recorded = outcome();
            EXPECT_EQ(playBack(), recorded);
        }
    }
};

TEST_F(RecordedLinesTest, ClicksAreWrittenById)
{
    const Row rows[] = {
        {"a click by id, without the frames that the line runs itself",
         "move 30 40;10;press left;6;release left;30", "frame 9\nclick OK\nframe 29\n"},
        {"an id that needs quotes", "move 60 160;10;press left;6;release left;30",
         "frame 9\nclick \"TWO WORDS\"\nframe 29\n"},
        {"no id", "move 230 60;10;press left;6;release left;3",
         "move 230 60\nframe 10\npress left\nframe 6\nrelease left\nframe 3\n"},
        {"the first of two that share an id", "move 230 95;10;press left;6;release left;3",
         "frame 9\nclick TWIN\nframe 2\n"},
        {"the second of them", "move 230 135;10;press left;6;release left;3",
         "move 230 135\nframe 10\npress left\nframe 6\nrelease left\nframe 3\n"},
        {"its middle is covered", "move 300 450;4;press left;2;release left;9",
         "move to HALF 0 10\nframe 4\npress left\nframe 2\nrelease left\nframe 9\n"},
        {"the background", "move 600 400;4;press left;2;release left;9",
         "move 600 400\nframe 4\npress left\nframe 2\nrelease left\nframe 9\n"},
        {"a long press", "move 230 15;10;press left;40;release left;1;99",
         "hover GO\nframe 9\npress left\nframe 40\nrelease left\nwait until active CHART\nframe 94\n"},
        {"a release elsewhere", "move 30 40;10;press left;6;move 30 100;3;release left;30",
         "hover OK\nframe 9\npress left\nframe 6\nmove to OPEN 10 20\nframe 3\nrelease left\nframe 30\n"},
        {"a press that leaves the button and returns",
         "move 30 40;9;press left;2;move 30 100;2;move 30 41;2;release left;5",
         "hover OK\nframe 8\npress left\nframe 2\nmove to OPEN 10 20\nframe 2\nmove to OK 10 21\nframe 2\n"
         "release left\nframe 5\n"},
        {"a double click", "move 30 40;10;press left;5;release left;5;doubleclick left;5;release left;20",
         "frame 9\ndoubleclick OK\nframe 19\n"},
        {"a press without a release", "move 30 40;10;press left;5",
         "hover OK\nframe 9\npress left\nframe 5\n"},
        {"the pointer's position at the end", "move 30 40;10;press left;5;release left;5;move 230 20;20",
         "frame 9\nclick OK\nframe 4\nhover GO\nframe 19\n"},
        {"other buttons", "move 350 270;10;press right;5;release right;4;press middle;2;release middle;4",
         "move to LIST 50 70\nframe 10\npress right\nframe 5\nrelease right\nframe 4\npress middle\nframe 2\n"
         "release middle\nframe 4\n"},
    };
    compare(rows);
}

TEST_F(RecordedLinesTest, RowsAndLeversAreWrittenAsPositions)
{
    const Row rows[] = {
        {"a row", "move 330 260;10;press left;5;release left;20", "frame 9\nrow LIST 2\nframe 19\n"},
        {"a cell, with small movements inside it",
         "move 400 270;10;press left;5;move 405 265;2;release left;20", "frame 9\nrow LIST 2 1\nframe 19\n"},
        {"a double click on a row",
         "move 400 270;10;press left;5;release left;5;move 402 270;doubleclick left;5;release left;20",
         "frame 9\nrow LIST 2 1\nframe 4\ndoubleclick left\nframe 5\nrelease left\nframe 20\n"},
        {"from one row to another", "move 400 270;10;press left;5;move 405 290;2;release left;20",
         "move to LIST 100 70\nframe 10\npress left\nframe 5\nmove to LIST 105 90\nframe 2\nrelease left\n"
         "frame 20\n"},
        {"the title of a column", "move 330 210;3;press left;5;release left;2",
         "move to LIST 30 10\nframe 3\npress left\nframe 5\nrelease left\nframe 2\n"},
        {"wheel notches", "move 400 270;10;wheel down;2;wheel down;2;wheel down;40;wheel up;10",
         "move to LIST 100 70\nframe 10\nwheel down\nwheel down\nwheel down\nframe 44\nwheel up\nframe 10\n"},
        {"keys in a list, which start from the row under the pointer",
         "move 350 270;10;down 40;5;down 40;5;up 40;5;down 13 13;3;up 13;9",
         "move to LIST 51 70\nframe\nmove to LIST 50 70\nframe 9\nkey down\nframe 5\nkey down\nframe 10\nkey "
         "return\nframe 12\n"},

        {"a list that remembers the row that the pointer left it from",
         "move 330 260;5;press left;5;release left;5;move 30 40;5;press left;4;release left;9;move 331 300;1;"
         "move 330 300;5;wheel up;5;down 13 13;3;up 13;9",
         "frame 4\nrow LIST 2\nframe 8\nclick OK\nframe 9\nmove to LIST 30 100\nframe 5\nwheel up\n"
         "move to LIST 31 100\nframe 2\nmove to LIST 30 100\nframe 3\nkey return\nframe 12\n"},

        {"a lever: only the positions where it rested",
         "move 490 230;10;press left;3;move 490 240;1;move 490 250;1;move 490 280;30;move 489 290;4;"
         "release left;9",
         "move to ScrollBar 6 6\nframe 10\npress left\nframe 3\nmove to ScrollBar 6 16\nframe\n"
         "move to ScrollBar 6 26\nframe\nmove to ScrollBar 6 56\nframe 30\nmove to ScrollBar 5 66\nframe 4\n"
         "release left\nframe 9\n"},
        {"a scroll bar's end", "move 525 399;3;press left;3;release left;2",
         "move to BAR 5 199\nframe 3\npress left\nframe 3\nrelease left\nframe 2\n"},
    };
    compare(rows);
}

TEST_F(RecordedLinesTest, KeysAreWrittenAsTextWhereTheyType)
{
    const Row rows[] = {
        {"typing",
         "move 310 110;10;press left;5;release left;20;down 16;3;down 74 74;3;up 16;2;up 74;down 69 101;3;"
         "up 69;4;down 186 59;4;up 186;5;down 222 34;2;down 220 92;9;down 8 8;3;up 8;70;down 77 109;2;"
         "down 78 110;80;down 77 109;1;down 13 13;3;up 13;2;up 77;9",
         "frame 9\nclick NAME\nframe 22\ntype \"Je;\\\"\\\\\"\nframe 32\nkey backspace\nframe 73\ntype "
         "\"mn\"\nframe 82\ntype \"m\"\nframe\nkey return\nframe 14\n"},
        {"a click elsewhere ends the typing",
         "move 310 110;10;press left;5;release left;5;down 65 97;3;up 65;5;move 30 40;5;press left;4;release "
         "left;9",
         "frame 9\nclick NAME\nframe 4\ntype \"a\"\nframe 12\nclick OK\nframe 8\n"},
        {"moving with Tab and pressing Return",
         "move 30 40;10;down 9 9;3;up 9;10;down 9 9;4;up 9;5;down 16;8;down 9 9;3;up 9;2;up 16;10;"
         "down 13 13;5;up 13;10",
         "hover OK\nframe 9\nkey tab\nframe 13\nkey tab\nframe 9\nhold shift\nframe 8\nkey tab\nframe 5\n"
         "lift shift\nframe 10\nkey return\nframe 15\n"},
        {"keys outside an edit box",
         "move 30 40;10;down 65 97;3;up 65;9;down 16;2;down 65 65;3;up 65;2;up 16;9;key 231 233;9;"
         "down 49 33;2;up 49;9;down 33;2;up 33;3",
         "hover OK\nframe 9\nkey a\nframe 12\nhold shift\nframe 2\nkey a\nframe 5\nlift shift\nframe 9\n"
         "type \"\\xE9\"\nframe 9\n# this key typed the character \"!\", which cannot be played back\nkey 1\n"
         "frame 11\nkey 33\nframe 5\n"},
        {"a key that is held", "move 30 40;9;down 37;40;up 37;8",
         "hover OK\nframe 8\nhold left\nkey left\nframe 40\nlift left\nframe 8\n"},
        {"a click with a key held", "move 30 40;9;down 17;5;press left;4;release left;3;up 17;9",
         "frame 9\nhold 17\nframe 4\nclick OK\nframe 2\nlift 17\nframe 9\n"},
        {"a controller", "move 30 40;10;pad 40;5;pad 35;10",
         "hover OK\nframe 9\n# controller keys: their second code cannot be played back, keyCode2 stays "
         "0\nkey down\nframe 5\nkey end\nframe 10\n"},
    };
    compare(rows);
}

TEST_F(RecordedLinesTest, WaitsForPopupsAndScreensAreWritten)
{
    const Row rows[] = {
        {"a combo box's menu",
         "move 310 30;10;press left;5;release left;20;move 320 80;5;press left;5;release left;20",
         "frame 9\nclick PORT\nwait until popup ComboMenu\nframe 23\nrow ComboMenu 2\nwait until popup none\n"
         "frame 19\n"},
        {"a popup", "move 30 90;10;press left;5;release left;20;move 260 220;5;press left;5;release left;20",
         "frame 9\nclick OPEN\nwait until popup QUERY\nframe 23\nclick TGX_YES\nwait until popup none\n"
         "frame 19\n"},
        {"a click that makes a window appear over the middle: the pointer stays beside it",
         "move 581 21;10;press left;5;release left;20;down 13 13;2;up 13;9",
         "frame 9\nclick COVERED\nmove to COVERED 1 1\nframe 19\nkey return\nframe 11\n"},
        {"another screen, and a click that is lost during the change",
         "move 230 20;10;press left;5;release left;2;press left;1;release left;60;move 410 410;9;press left;"
         "5;release left;30",
         "frame 9\nclick GO\n# lost at 230, 20: press left, release left; the change to the screen "
         "\"CHART\" is under way\nwait until active CHART\nframe 65\nclick OK\nframe 29\n"},
        {"a double click, half of which is lost during the change",
         "move 230 20;10;press left;5;release left;2;doubleclick left;1;release left;60",
         "frame 9\nclick GO\n# lost at 230, 20: doubleclick left; the change to the screen \"CHART\" is "
         "under "
         "way\n# lost at 230, 20: release left; the change to the screen \"CHART\" is under way\n"
         "wait until active CHART\nframe 57\n"},
        {"a press during the change counts if its release comes after it",
         "move 230 20;10;press left;5;release left;2;press left;20;release left;30",
         "frame 9\nclick GO\nframe\npress left\nwait until active CHART\nframe 16\nrelease left\nframe 30\n"},
    };
    compare(rows);
}

/// A user who does random things. The same seed gives the same actions.
class RandomUser {
public:
    explicit RandomUser(unsigned seed) : state(seed) {}
    std::string actions()
    {
        std::string all;
        for (int i = 0; i < 14; ++i)
            all += isPressing ? continuePress() : doSomething();
        return all + "60";
    }

private:
    int pick(int count)
    {
        state = state * 1664525u + 1013904223u;
        return static_cast<int>((state >> 8) % static_cast<unsigned>(count));
    }
    std::string pass() { return std::to_string(pick(3) == 0 ? 1 + pick(45) : 1 + pick(8)) + ';'; }
    /// Moves the pointer a little, as a real hand always does more than one move.
    std::string jitter() const
    {
        return "move " + std::to_string(x + 1) + ' ' + std::to_string(y + 1) + ";1;move " +
               std::to_string(x) + ' ' + std::to_string(y) + ";1;";
    }
    std::string go()
    {
        constexpr int points[][2] = {{30, 40},   {60, 90},   {60, 160},  {230, 20},  {230, 60},  {230, 95},
                                     {230, 135}, {310, 110}, {330, 260}, {400, 290}, {490, 230}, {490, 300},
                                     {525, 226}, {525, 399}, {310, 30},  {320, 60},  {320, 80},  {581, 21},
                                     {600, 25},  {300, 450}, {350, 450}, {600, 400}, {260, 220}, {410, 410}};
        const auto& point = points[pick(std::size(points))];
        x = point[0];
        y = point[1];
        return jitter() + pass();
    }
    std::string continuePress()
    {
        if (pick(3) == 0)
            return go();
        isPressing = false;
        std::string release = "release left;" + pass() + jitter();
        return pick(4) == 0 ? release + "doubleclick left;" + pass() + "release left;" + pass() : release;
    }
    std::string doSomething()
    {
        constexpr const char* keys[] = {"9 9", "13 13", "27 27", "37",     "38",    "39",
                                        "40",  "36",    "35",    "65 97",  "66 66", "49 33",
                                        "46 ", "8 8",   "32 32", "186 59", "33"};
        switch (pick(6)) {
        case 0:
            return go();
        case 1:
            return (pick(2) ? "wheel up;" : "wheel down;") + pass();
        case 2:
        case 3: {
            const std::string key = keys[pick(std::size(keys))];
            const std::string strike =
                "down " + key + ';' + pass() + "up " + key.substr(0, key.find(' ')) + ';' + pass();
            return pick(4) == 0 ? "down 16;" + pass() + strike + "up 16;" + pass() : strike;
        }
        default:
            isPressing = true;
            return go() + "press left;" + pass();
        }
    }

    unsigned state;
    int x = 0;
    int y = 0;
    bool isPressing = false;
};

TEST_F(RecorderTest, RecordingsOfRandomInputHaveTheSameEffect)
{
    for (unsigned seed = 1; seed <= 100 && !HasFailure(); ++seed) {
        const std::string actions = RandomUser(seed).actions();
        SCOPED_TRACE(actions);
        begin();
        play("frame 60");
        record();
        doAsUser(actions);
        SCOPED_TRACE(events());
        const std::string recorded = values();
        playBack();
        EXPECT_EQ(values(), recorded);
    }
}

TEST_F(RecorderTest, ARecordingOfASlowerProgramWaitsForTheSameScreens)
{
    play("frame 60");
    record();
    ticksPerFrame = 3;
    doAsUser("move 230 20;10;press left;5;release left;40;move 410 410;9;press left;5;release left;30");
    EXPECT_EQ(lines(), "frame 9\nclick GO\nwait until active CHART\nframe 31\nclick OK\nframe 29\n");
    const Outcome recorded = outcome();
    EXPECT_EQ(recorded.clicks, (std::vector<std::string>{"GO", "OK"}));
    EXPECT_EQ(playBack(), recorded);
}

TEST_F(RecorderTest, TheRecordingBeginsAtThePresentScreen)
{
    play("frame 60", "change CHART", "frame 60");
    record();
    doAsUser("move 410 410;10;press left;5;release left;5");
    EXPECT_EQ(events(), "# recorded\nchange CHART\nwait until active CHART\nframe 60\n"
                        "frame 9\nclick OK\nframe 4\n");
    EXPECT_EQ(playBack().clicks, std::vector<std::string>{"OK"});

    begin();
    play("frame 60", "call main setPopupWnd QUERY MENU 0");
    record();
    EXPECT_EQ(events(), "# recorded\nframe 60\n"
                        "# The popup QUERY was open when the recording began: open it here.\n");
}

TEST_F(RecorderTest, AReloadIsNotRecordedAsChangesOfScreens)
{
    play("frame 60");
    record();
    pass(5);
    listening->recorder->readAnew();
    win().changeScreen("CHART", 0, 0, ""); // as when the state is restored
    doAsUser("20;move 410 410;10;press left;5;release left;5");
    EXPECT_EQ(lines(), "# the interface was reloaded here\nframe 34\nclick OK\nframe 4\n");
}

TEST_F(RecorderTest, InputThatATickDoesNotTakeIsRecordedOnce)
{
    play("frame 60");
    record();
    doAsUser("move 30 40;5;press left");
    listening->recorder->tickBegins(listening->input(), false);
    listening->recorder->tickBegins(listening->input(), false);
    doAsUser("3;release left;5");
    EXPECT_EQ(lines(), "frame 6\nclick OK\nframe 4\n");
}

TEST(WriteEvents, LongWaitsAreWrittenWithALimit)
{
    using Kind = RecordedStep::Kind;
    const RecordedStep steps[] = {{.kind = Kind::Shown, .tick = 150, .line = "active A"},
                                  {.kind = Kind::Shown, .tick = 900, .line = "active B"},
                                  {.kind = Kind::Shown, .tick = 900, .line = "popup none"}};
    EXPECT_EQ(writeEvents(steps, 905),
              (std::vector<std::string>{"wait until active A", "wait until active B 990",
                                        "wait until popup none", "frame 5"}));
}

TEST(WriteEvents, LinesThatActImmediatelyWaitForEarlierKeys)
{
    using Kind = RecordedStep::Kind;
    const auto typed = [](long tick, char character) {
        return RecordedStep{
            .kind = Kind::Key, .tick = tick, .code = 65, .character = character, .isTyped = true};
    };
    const RecordedStep steps[] = {
        typed(1, 'a'),
        typed(2, 'b'),
        typed(3, 'c'),
        {.kind = Kind::Hold, .tick = 3, .code = 16, .held = true},
        {.kind = Kind::Click, .tick = 4, .line = "click left", .releaseTick = 6},
        {.kind = Kind::Transition, .tick = 8, .line = "doubleclick left", .clickLine = "click left"},
        {.kind = Kind::Transition, .tick = 9, .line = "release left"}};
    EXPECT_EQ(writeEvents(steps, 9),
              (std::vector<std::string>{"frame", "type \"abc\"", "frame 3", "hold shift", "click left",
                                        "frame", "doubleclick left", "frame", "release left", "frame"}))
        << "doubleclick cannot name a window called left";
}

} // namespace
