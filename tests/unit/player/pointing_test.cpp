#include "tests/unit/support/tgx_test.h"
#include "tgx/controls/listbox/listbox.h"

namespace {

class PointingTest : public TgxTest {
protected:
    void SetUp() override
    {
        bitmap("UIG/scroll1.bmp", 16, 64);
        start(R"(SCREEN 'MENU' 0 0 640 480 '' {
              WINDOW 'PANEL' 10 10 200 200 {
                BUTTON 'OK' 10 10 101 50 ''; BUTTON 'OVER' 10 100 100 50 ''
                BUTTON 'OUT' 150 100 300 50 ''
              }
              WINDOW 'BOX' 300 10 100 50; EDITBOX 'NAME' 300 100 100 20 '' 0 0; WINDOW 'FAR' 600 10 100 50
              LISTBOX 'LIST' 300 200 200 120 { COLUMNS 50 LEFT 80 LEFT; TITLES 'a' 'b' }
            }
            SCREEN 'OPTIONS' 0 0 640 480 '' {
              BUTTON 'BACK' 10 10 100 50 ''; BUTTON 'OK' 200 10 100 50 ''
            }
            WINDOW 'QUERY' 100 300 200 100 { BUTTON 'YES' 10 10 100 50 ''; BUTTON 'OVER' 10 60 100 30 '' })");
        auto* list = static_cast<AListBox*>(wnd("LIST"));
        for (int i = 0; i < 9; ++i)
            list->setItemData(list->addItem(), 0, i);
        list->setRowHeight(20);
        play("frame");
        clicks();
    }
};

TEST_F(PointingTest, AClickHitsTheMiddleAndIsHandledBeforeTheNextLine)
{
    int frames = 0;
    win().duringFrame = [&] { ++frames; };
    play("click OK");
    EXPECT_EQ(pointer(), "70 45") << "half of an odd width is rounded down";
    EXPECT_EQ(clicks(), "OK");
    EXPECT_EQ(frames, 3) << "one frame each for the move, the press and the release";
    play("hover over");
    EXPECT_EQ(pointer(), "70 135");
    EXPECT_EQ(clicks(), "");
    EXPECT_EQ(frames, 4);
    play("press right", "release right", "hover OK");
    EXPECT_EQ(frames, 7) << "input that was already queued is taken first";
}

TEST_F(PointingTest, ADoubleClickIsAClickFollowedByTheFlagAndARelease)
{
    std::string seen;
    win().duringFrame = [&] {
        seen += win().lButtonDown ? 'd' : win().lButtonUp ? 'u' : win().lButtonDblClk ? '2' : '.';
    };
    play("doubleclick OK");
    EXPECT_EQ(seen, ".du2du");
    play("doubleclick left", "tick");
    EXPECT_EQ(win().lButtonDblClk, 1) << "with a button's name only the flag is set";
}

TEST_F(PointingTest, ARowIsClickedOnItsCell)
{
    const struct {
        const char* line;
        int item, column;
        const char* pointer;
    } rows[] = {
        {"row LIST 0", 0, 0, "335 230"}, // right of the column gap and below the titles
        {"row LIST 2 1", 2, 1, "410 270"},
        {"row LIST 4 0", 4, 0, "335 310"},
    };
    auto* list = static_cast<AListBox*>(wnd("LIST"));
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        play(row.line);
        EXPECT_EQ(pointer(), row.pointer);
        EXPECT_EQ(list->getSelectedItem(), row.item);
        EXPECT_EQ(list->getSelectedColumn(), row.column);
    }
    list->setFirstVisibleItem(3);
    ASSERT_GT(list->getFirstVisibleItem(), 0);
    play("row LIST 4");
    EXPECT_EQ(pointer(), "335 " + std::to_string(230 + (4 - list->getFirstVisibleItem()) * 20));
    EXPECT_EQ(list->getSelectedItem(), 4);
}

TEST_F(PointingTest, AWindowThatCannotBeReachedIsRefusedWithTheReason)
{
    const struct {
        const char* name;
        const char* given; // lines, separated by commas
        const char *line, *reason;
    } rows[] = {
        {"no such window", "", "click OKAY",
         "no window \"OKAY\"; the screen \"MENU\" has PANEL, OK, OVER, OUT, BOX, NAME, FAR, LIST and 1 more"},
        {"hidden", "call OK setVisible 0", "click OK", "\"OK\" is hidden"},
        {"in a hidden window", "call PANEL setVisible 0", "hover OK",
         "\"OK\" is hidden because \"PANEL\" is hidden"},
        {"disabled", "call OK setEnabled 0", "doubleclick OK", "\"OK\" is disabled"},
        {"off the screen", "", "hover FAR", "\"FAR\" is off the screen at 650, 35"},
        {"outside its parent", "", "click OUT", "\"OUT\" is outside \"PANEL\" at 310, 135"},
        {"covered", "call BOX setWndPos 20 20 60 60", "click OK", "\"OK\" is covered by \"BOX\" at 70, 45"},
        {"only its middle counts", "call BOX setWndPos 20 20 49 60", "click OK", ""},
        {"a disabled window covers nothing", "call BOX setWndPos 20 20 60 60,call BOX setEnabled 0",
         "click OK", ""},
        {"covered by a window inside it", "", "click PANEL", "\"PANEL\" is covered by \"OVER\" at 110, 110"},
        {"still moving into place", "call OK setMoveAnimation 200 0 0 0 1.0 1.0 0", "click OK",
         "\"OK\" is outside \"PANEL\" at 270, 45; \"OK\" is still moving"},
        {"on another screen", "", "click BACK", "\"BACK\" is on the screen \"OPTIONS\", which is not active"},
        {"in a popup that is not open", "", "click YES", "\"YES\" is in \"QUERY\", which is not open"},
        {"behind a popup", "call main setPopupWnd QUERY MENU 0", "click OK",
         "\"OK\" is behind the popup \"QUERY\""},
        {"in the popup", "call main setPopupWnd QUERY MENU 0", "click YES", ""},
        {"captured", "call main setMouseCaptureWnd BOX", "hover OK",
         "\"OK\" gets no input: \"BOX\" has captured the pointer"},
        {"an edit box keeps the pointer while the user types", "click NAME", "hover OK",
         "\"OK\" gets no input: \"NAME\" has captured the pointer"},
        {"but a click elsewhere ends the typing", "click NAME", "click OK", ""},
        {"the press began elsewhere", "move to BOX,press left,frame", "hover OK",
         "\"OK\" gets no input: the press began on \"BOX\""},
        {"after a press whose release reached no window",
         "move to BOX,press left,frame,call main waitForNextDraw,"
         "release left,tick,call main nextDrawDone,call main nextDrawDone,call main nextDrawDone,call "
         "main nextDrawDone",
         "click OK", ""},
        {"a click needs the button to be up", "move to BOX,press left,frame", "click BOX",
         "the left button is already held down"},
        {"during a screen change", "change OPTIONS,frame", "click OK",
         "\"OK\" gets no input: the change to the screen \"OPTIONS\" is under way"},
        {"not a list box", "", "row OK 0", "\"OK\" is not a list box"},
        {"no such row", "", "row LIST 9", "\"LIST\" has 9 rows, counted from 0; found 9"},
        {"a row that is not on the page", "", "row LIST 5",
         "row 5 of \"LIST\" is not on its page, which begins with 0 and has 5"},
        {"move to with one coordinate", "", "move to OK 1", "expected move to ID [X Y]"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        SetUp();
        playEach(row.given);
        EXPECT_EQ(playWrong(row.line), row.reason);
    }
}

TEST_F(PointingTest, AnIdMeansTheWindowThatIsInFront)
{
    play("change OPTIONS", "frame 8", "click OK");
    EXPECT_EQ(pointer(), "250 35") << "not the window on the first screen, which getWnd finds";
    play("move to BACK", "frame");
    EXPECT_EQ(pointer(), "60 35");
    play("move to BACK 0 -3", "frame");
    EXPECT_EQ(pointer(), "10 7");
}

TEST_F(PointingTest, AWindowThatVanishesUnderThePointerIsReported)
{
    struct Shy : AWnd {
        using AWnd::AWnd;
        int handleMouseAction(const CString&, AWnd*, int, int, E_MOUSEACTION) override
        {
            if (dies)
                getMainWin()->getScreenList()->addWndToDelete(this);
            else
                setVisible(0);
            return 0;
        }
        bool dies = false;
    };
    auto* shy = new Shy(AWnd::WND_PLAIN, "SHY", 500, 400, 50, 50);
    wnd("MENU")->addChildWindow(shy);
    EXPECT_EQ(playWrong("click SHY"), "\"SHY\" is hidden");
    shy->setVisible(1);
    win().duringFrame = [&] { delete std::exchange(shy, nullptr); };
    EXPECT_EQ(playWrong("click SHY"), "\"SHY\" was deleted while the pointer moved to it");
}

TEST_F(PointingTest, InputWaitsForATickThatTakesItUpToALimit)
{
    struct Slow : TestMainWin {
        using TestMainWin::TestMainWin;
        void OnMouseAction() override
        {
            if (ends)
                TestMainWin::OnMouseAction();
        }
        bool ends = false;
    };
    Slow* slow = nullptr;
    options.logInput = true;
    const auto makeWindow = [&](int w, int h, int depth) {
        auto made = std::make_unique<Slow>(w, h, depth);
        slow = made.get();
        return made;
    };
    Player own(options, makeWindow, out, err);
    own.start();
    for (const char* line : {"move 60 140", "tick", "press right", "wheel up", "tick 3"})
        ASSERT_EQ(own.runLine(line), std::nullopt) << line;
    EXPECT_EQ(err.str(), "");
    slow->ends = true;
    ASSERT_EQ(own.runLine("tick 3"), std::nullopt); // the first of them completes the pending tick
    EXPECT_EQ(err.str(), "press right at 60, 140 reached \"OVER\"\nwheel up at 60, 140 reached \"OVER\"\n");
    slow->ends = false;
    EXPECT_EQ(own.runLine("tick"), std::nullopt);
    EXPECT_EQ(own.runLine("click OK"), "the input was not taken within 240 frames");
}

TEST_F(PointingTest, TheInputLogShowsWhatEachTransitionReached)
{
    write("run.events", R"(call BOX setWndPos 20 20 60 60
call OK setEnabled 0
call OVER setVisible 0
move 60 40
press left
move 330 30
release left
frame 2
move 60 140
wheel up
tick
click NAME
type "a"
frame
press right
tick
call main setPopupWnd QUERY MENU 0
release right
tick
change OPTIONS
draw
key esc
press middle
frame 2
)");
    options.eventsFile = (data / "run.events").string();
    options.logInput = true;
    EXPECT_EQ(Player(options, nullptr, out, err).run(), PlayStatus::Done);
    EXPECT_EQ(
        without(err.str(), options.eventsFile + ':'),
        "5: press left at 60, 40 reached \"BOX\"; \"PANEL\" is covered by \"BOX\"; \"OK\" is disabled\n"
        "7: release left at 330, 30 reached nothing: the press began on \"BOX\"\n"
        "10: wheel up at 60, 140 reached \"PANEL\"; \"OVER\" is hidden\n"
        "12: press left at 350, 110 reached \"NAME\"\n"
        "12: release left at 350, 110 reached \"NAME\"\n"
        "13: key 65 went to \"NAME\", the pointer at 350, 110 on \"NAME\"\n"
        "15: press right at 350, 110 reached \"NAME\"\n"
        "18: release right at 200, 350 reached \"NAME\"; \"QUERY\" gets no input: \"NAME\" has captured the "
        "pointer; \"YES\" gets no input: \"NAME\" has captured the pointer\n"
        "22: key 27 reached nothing: the change to the screen \"OPTIONS\" is under way\n"
        "23: press middle at 200, 350 reached nothing: the change to the screen \"OPTIONS\" is under way\n");
}

} // namespace
