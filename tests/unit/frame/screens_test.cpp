#include "platform/host/headless/headless_host.h"
#include "tests/unit/support/tgx_test.h"

namespace {

/// Records the calls that the toolkit makes.
class RecordingScreen : public AScreen {
public:
    RecordingScreen(const CString& name, int x, int y, int w, int h, std::vector<std::string>& calls)
        : AScreen(name, x, y, w, h), recorded(calls)
    {}
    static inline std::function<void(const std::string&)> onCall;
    ~RecordingScreen() override { record("deleted"); }
    void startup() override { record("startup"), AScreen::startup(); }
    void initialise() override { record("initialise"), AScreen::initialise(); }
    void close() override { record("close"), AScreen::close(); }
    void returned() override { record("returned"), AScreen::returned(); }

private:
    void record(const char* what)
    {
        recorded.push_back(id.str() + " " + what);
        if (onCall)
            onCall(recorded.back());
    }
    std::vector<std::string>& recorded;
};

class ScreensTest : public TgxTest {
protected:
    void begin(int width = 640)
    {
        start("SCREEN 'FIRST' 0 0 640 480 ''", width);
        for (const char* name : {"A", "B", "C"})
            win().classes[name] = [](const CString& id, int x, int y, int w, int h) {
                return new RecordingScreen(id, x, y, w, h, calls);
            };
        script(R"(WINDOW 'OLDER' 0 0 10 10; SCREEN 'A' 0 0 640 480 'a.bmp' { WINDOW 'W' 0 0 100 100 }
            SCREEN 'B' 0 0 640 480 'b.bmp' {
              WINDOW 'TGX_BACK' 0 0 100 100; WINDOW 'TGX_CLOSE' 200 0 50 50
            }
            SCREEN 'C' 0 0 640 480 ''; WINDOW 'PLAIN' 0 0 10 10)");
        bitmap("a.bmp", 640, 480, 0x112233);
        bitmap("b.bmp", 640, 480, 0x445566);
        play("frame 2", "change A close", "frame 6");
        taken();
    }
    void TearDown() override
    {
        RecordingScreen::onCall = nullptr;
        calls.clear();
    }
    std::string taken() { return joined(std::exchange(calls, {}), ", "); }
    std::string active() { return win().getActiveScreen() ? win().getActiveScreen()->getID().str() : "none"; }
    void click(int x, int y)
    {
        play("move " + std::to_string(x) + " " + std::to_string(y), "press left", "frame", "release left",
             "frame");
    }

    static inline std::vector<std::string> calls; // outlives the windows that record in it
};

TEST_F(ScreensTest, FiveFramesAreShownBeforeTheChange)
{
    begin();
    play("change B", "frame 4");
    EXPECT_EQ(active(), "A");
    EXPECT_EQ(taken(), "");
    play("frame");
    EXPECT_EQ(active(), "B");
    EXPECT_EQ(taken(), "A close, B startup, B initialise");
    EXPECT_EQ(screen("B")->getCaller(), "A");
    EXPECT_TRUE(screen("A")->isOpen()) << "suspended";
}

TEST_F(ScreensTest, GoingBackReturnsToTheSuspendedScreenAndItsPointer)
{
    begin();
    play("move 321 123", "frame", "change B", "frame 5");
    taken();
    click(20, 20);
    EXPECT_EQ(active(), "B") << "the change waits for its frames";
    play("frame 4");
    EXPECT_EQ(active(), "A");
    EXPECT_EQ(taken(), "B close, A returned");
    EXPECT_EQ(pointer(), "321 123");
    play("frame");
    EXPECT_EQ(taken(), "B deleted") << "at the next dispatched tick";
    EXPECT_EQ(screen("A")->getCaller(), "") << "unchanged";
}

TEST_F(ScreensTest, AScreenReachedByClosingHasNoWayBack)
{
    begin();
    play("change B close", "frame 6");
    EXPECT_EQ(screen("B")->getCaller(), "");
    click(20, 20);
    play("frame 6");
    EXPECT_EQ(active(), "B");
}

TEST_F(ScreensTest, ADisabledCloseButtonForbidsLeavingForGood)
{
    begin();
    play("change B", "frame 6");
    wnd("TGX_CLOSE")->setEnabled(0);
    play("frame");
    wnd("TGX_CLOSE")->setEnabled(1);
    click(20, 20);
    play("frame 6");
    EXPECT_EQ(active(), "B");
}

TEST_F(ScreensTest, AScreenMarkedForDeletionIsReadAgain)
{
    begin();
    play("change B close", "draw 5"); // no tick: A is still marked for deletion
    AWnd* dying = win().getWnd("A", 1);
    ASSERT_NE(dying, nullptr);
    taken();
    win().changeScreen("A", 0, 141, "script.tgx");
    play("draw 5");
    EXPECT_EQ(active(), "A");
    EXPECT_NE(static_cast<AWnd*>(win().getActiveScreen()), dying);
    play("frame");
    EXPECT_EQ(taken(), "B close, A startup, A initialise, A deleted")
        << "the old screen is deleted, not the new one";
    EXPECT_EQ(active(), "A");
}

TEST_F(ScreensTest, WindowsOfTheWrongKindAreRefused)
{
    begin();
    win().classes["SHIP"] = [](const CString& id, int x, int y, int w, int h) {
        return new AWnd(AWnd::WND_SCREEN, id, x, y, w, h);
    };
    expectMessage("cannot make screen SHIP");
    script(
        "SCREEN \"SHIP\" 0 0 640 480 \"b.bmp\"\nBEGIN\nWINDOW \"NOTE\" 0 0 90 20\nBUTTON \"GO\" 0 30 90 20 "
        "\"\"\nLISTBOX \"LOG\" 0 60 90 90\nEND\n");
    play("change SHIP close", "frame 6");
    EXPECT_EQ(active(), "SHIP") << "a plain screen takes its place";
    EXPECT_EQ(screen("SHIP")->getBackdropName(), "b.bmp");
    const struct {
        const char* id;
        bool isButton, isList;
    } rows[] = {{"NOTE", false, false}, {"GO", true, false}, {"LOG", false, true}, {"NONE", false, false}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.id);
        EXPECT_EQ(screen("SHIP")->getButton(row.id, 1) != nullptr, row.isButton);
        EXPECT_EQ(screen("SHIP")->getListBox(row.id, 1) != nullptr, row.isList);
    }
}

// A game's factory makes plain windows with the types of the toolkit's own classes.
TEST_F(ScreensTest, TheWindowTypeAloneDoesNotDecideTheClass)
{
    begin();
    const std::pair<const char*, AWnd::E_WNDTYPE> types[] = {
        {"list", AWnd::WND_LISTBOX},    {"button", AWnd::WND_BUTTON}, {"radio", AWnd::WND_RADIOBUTTON},
        {"tabs", AWnd::WND_TABCONTROL}, {"edit", AWnd::WND_EDITBOX},  {"combo", AWnd::WND_COMBOBOX}};
    std::string text = "SCREEN \"MISTYPED\" 0 0 640 480 \"\"\nBEGIN\n";
    for (const auto& [name, type] : types) {
        win().classes[name] = [type = type](const CString& id, int x, int y, int w, int h) {
            return new AWnd(type, id, x, y, w, h);
        };
        text += std::string("USERDEF '") + name + "' 0 0 90 90 '" + name + "'\n";
    }
    text +=
        "USERDEF \"H\" 100 0 90 90 \"list\"\nBEGIN\n  ITEM \"a\"\n  COLUMNS 9\n  VSCROLLBAR \"V\" 0 0 20 90 "
        "\"\" 20 20\nEND\n"
        "USERDEF \"T\" 200 0 90 90 \"tabs\"\nBEGIN\n  RADIOBUTTON \"R\" 0 0 20 20 \"\"\nEND\n"
        "TABCONTROL \"U\" 300 0 90 90\nBEGIN\n  USERDEF \"S\" 0 0 40 40 \"radio\"\n  USERDEF \"W\" 40 0 40 "
        "40 "
        "\"button\"\n  RADIOBUTTON \"X\" 0 40 20 20 \"\"\nEND\n"
        "TABORDER \"list\" \"button\" \"edit\" \"combo\" \"V\" \"R\"\nEND\n";
    script(text);
    for (int line : {11, 12})
        expectMessage("Encountered an error on line " + std::to_string(line) +
                      " in script.tgx\nThe line is :\n\t");
    play("change MISTYPED close", "frame 6");
    EXPECT_EQ(active(), "MISTYPED");
    for (int x : {45, 110, 210, 320, 345, 310}) {
        play("move " + std::to_string(x) + " 45", "press left", "frame 2", "release left", "frame");
        play("doubleclick left", "frame 2", "release left", "frame", "wheel up", "frame");
    }
    for (const char* key : {"tab", "down", "end", "delete", "left", "return", "esc", "x"})
        for (int i = 0; i < 7; ++i)
            play(std::string("key ") + key, "frame");
    EXPECT_EQ(active(), "MISTYPED") << "nothing has crashed";
}

TEST_F(ScreensTest, AChangeToTheActiveScreenItself)
{
    begin();
    play("change A", "frame 5");
    EXPECT_EQ(taken(), "A close, A returned");
    EXPECT_EQ(screen("A")->getCaller(), "A");
    play("change A close", "frame 6");
    EXPECT_EQ(taken(), "A close, A startup, A initialise, A deleted") << "a new one replaces it";
    EXPECT_TRUE(screen("A")->isOpen());
}

TEST_F(ScreensTest, ASecondRequestCarriesOutTheFirstOneAtOnce)
{
    begin();
    play("change B", "frame 2", "change C");
    EXPECT_EQ(active(), "B");
    EXPECT_EQ(taken(), "A close, B startup, B initialise");
    play("move 20 20", "frame");
    EXPECT_EQ(win().getCurFocusWnd(), wnd("TGX_BACK")) << "input is dispatched again";
    EXPECT_EQ(win().getPendingScreen(), "");
}

TEST_F(ScreensTest, AMissingScreenChangesNothing)
{
    begin();
    play("call main setPopupWnd W A 0", "frame");
    const char* const names[] = {"NOWHERE", "PLAIN", "W"};
    for (const char* name : names) {
        SCOPED_TRACE(name);
        expectMessage("cannot find screen " + std::string(name));
        play("change " + std::string(name) + " close", "frame 6");
        EXPECT_EQ(active(), "A");
        EXPECT_EQ(taken(), "");
        EXPECT_EQ(win().getPopupWndCount(), 1);
        EXPECT_EQ(static_cast<HeadlessHost&>(displayhost::current()).cursor, CursorShape::Normal);
    }
    write("UIG/script.tgx", "");
    expectMessage("cannot find screen A");
    play("change A close", "frame 6");
    EXPECT_EQ(active(), "A") << "it would be closed for good by the change to itself";
    EXPECT_TRUE(screen("A")->isOpen());
}

TEST_F(ScreensTest, ClosingAllButTheCurrent)
{
    begin();
    play("change B", "frame 6", "change C", "frame 6");
    taken();
    win().closeAllScreensExceptCurrent();
    EXPECT_EQ(taken(), "A close, B close");
    EXPECT_FALSE(screen("B")->isOpen());
    play("change B", "frame 6");
    EXPECT_EQ(taken(), "C close, B startup, B initialise");
}

TEST_F(ScreensTest, ClosingAllButTheCurrentMissesNoneIfAHandlerDeletesAnOlderWindow)
{
    begin();
    win().readScriptFile("script.tgx", nullptr, mainScriptResource, "OLDER", 0);
    play("change B", "frame 6", "change C", "frame 6", "change A", "frame 6");
    taken();
    RecordingScreen::onCall = [this](const std::string& call) {
        if (call == "B close")
            delete wnd("OLDER");
    };
    win().closeAllScreensExceptCurrent();
    EXPECT_EQ(taken(), "B close, C close");
}

TEST_F(ScreensTest, InputMadeDuringAChangeDoesNotReachTheNewScreen)
{
    const struct {
        const char* name;
        bool dropsInput, whileLoading;
        const char* active;
    } rows[] = {
        {"a host that keeps all input", false, false, "A"},
        {"pressed before the change, released after it", true, false, "B"},
        {"pressed during the load", true, true, "B"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        begin();
        HeadlessHost& host = getPlayer().getHost();
        host.dropsInput = row.dropsInput;
        play("move 10 10", "frame", "change B", "frame 2"); // where TGX_BACK of B will be
        if (row.whileLoading)
            RecordingScreen::onCall = [&host](const std::string& call) {
                if (call == "B startup")
                    host.input().press(MouseButton::Left, InputQueue::Place{10, 10});
            };
        else
            play("press left");
        play("frame 4");
        EXPECT_EQ(active(), "B");
        play("move 10 10", "release left", "frame 8");
        EXPECT_EQ(active(), row.active);
        RecordingScreen::onCall = nullptr;
    }
}

/// Lists the swaps and dirty widths of each frame of a wipe.
class WipeTest : public ScreensTest {
protected:
    std::string wipe(int frames)
    {
        std::string steps;
        for (int i = 0; i < frames; ++i) {
            win().runFrame();
            std::string step;
            for (const DrawCommand& command : win().getLastFrame().commands()) {
                if (command.op == DrawOp::SetBackdropName)
                    step += "swap ";
                if (command.op == DrawOp::AddDirtyRect)
                    step += std::to_string(command.w) + " ";
                EXPECT_NE(command.op, DrawOp::DrawScreen) << "a wipe frame is shown without drawscreen";
            }
            steps += step + "| ";
        }
        return steps;
    }
    std::uint32_t pixel(int x) { return win().getScreenImage().row(0)[x] & 0xFFFFFF; }
};

TEST_F(WipeTest, TheNewBackdropIsUncoveredFromTheLeft)
{
    begin();
    win().setWipeEnabled(1);
    play("change B", "frame 5");
    EXPECT_EQ(taken(), "A close, B startup, B initialise") << "a new screen is started at once";
    EXPECT_EQ(wipe(4), "0 | 40 | swap | 120 | ");
    EXPECT_EQ(pixel(119), 0x445566u);
    EXPECT_EQ(pixel(120), 0x112233u);
    EXPECT_EQ(wipe(12), "160 | 200 | 240 | 280 | 320 | 360 | 400 | 440 | 480 | 520 | 640 | 640 | ");
    play("frame");
    EXPECT_EQ(win().getLastFrame().commands().back().op, DrawOp::DrawScreen);

    wnd("W")->setBmpInfo(100, 100, 0, 0);
    wnd("W")->createBkgnd(win().getBackdrop(), 1);
    play("change A", "frame 5");
    taken();
    wipe(15);
    EXPECT_EQ(taken(), "");
    wipe(1);
    EXPECT_EQ(taken(), "A returned") << "a suspended screen returns at the last frame";
    play("frame");
    EXPECT_EQ(pixel(0), 0u) << "with the background that it kept";
    EXPECT_EQ(pixel(1), 0x445566u) << "of the backdrop at that time";
}

TEST_F(WipeTest, AClickShortensTheWipeAndTheBackdropStillChanges)
{
    begin();
    win().setWipeEnabled(1);
    play("change B", "frame 5");
    EXPECT_EQ(wipe(1), "0 | ");
    play("press left", "tick", "release left", "tick");
    EXPECT_EQ(wipe(2), "swap 640 | 640 | ");
    EXPECT_EQ(pixel(639), 0x445566u);
}

TEST_F(WipeTest, NarrowScreensDoNotWipe)
{
    const struct {
        int width, frames;
        const char* steps;
    } rows[] = {{160, 4, "0 | 40 | swap | 160 | "}, {120, 3, "0 | 120 | swap 120 | "}, {40, 1, "swap 40 | "}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.width);
        begin(row.width);
        win().setWipeEnabled(1);
        play("change B", "frame 5");
        EXPECT_EQ(wipe(row.frames), row.steps);
        play("frame");
        EXPECT_EQ(win().getLastFrame().commands().back().op, DrawOp::DrawScreen);
    }
    begin(39);
    win().setWipeEnabled(1);
    play("change B", "frame 6");
    EXPECT_EQ(win().getLastFrame().commands().back().op, DrawOp::DrawScreen) << "no wipe at all";
}

TEST_F(ScreensTest, TenThousandVisitsUseNoMorePixelsThanOne)
{
    for (const char* name : {"pic.bmp", "other.bmp", "edge.bmp", "icon.bmp", "row.bmp"})
        bitmap(name, 48, 24);
    bitmap("back.bmp", 64, 48);
    strip("UIG/scroll1.bmp", 16, 26, 6);
    const std::string contents = R"({
          BITMAP 'PIC' 0 0 48 24 'pic.bmp' 48 24 0 1
          BITMAP 'OTHER' 0 24 48 24 'other.bmp' 48 24 0 1 { BORDER 'edge.bmp' 4 8 'edge.bmp' }
          LISTBOX 'LIST' 0 0 40 40 {
            COLUMNS 30; LISTICONS 'icon.bmp'; LISTHIGHLIGHT 'row.bmp' 'row.bmp'; ITEM 'ICON0'
          }
        })";
    start("SCREEN 'A' 0 0 64 48 'back.bmp'" + contents + "SCREEN 'B' 0 0 64 48 ''" + contents +
              "SCREEN 'EMPTY' 0 0 64 48 '' { WINDOW 'NONE' 0 0 1 1 }",
          64, 48);
    play("frame 6");
    const auto visit = [&](const char* name) {
        play(std::string("change ") + name + " close", "frame 8");
        for (const char* id : {"PIC", "OTHER", "LIST"})
            wnd(id)->createBkgnd(win().getBackdrop(), 0);
        play("frame 2");
        return livePixelCount();
    };
    const auto leave = [&] {
        play("change EMPTY close", "frame 10");
        return livePixelCount();
    };
    const long long shown[] = {visit("A"), visit("B")};
    const long long left = leave();
    EXPECT_LT(left, shown[1]);
    for (int i = 0; i < 5000; i++)
        ASSERT_TRUE(visit("A") == shown[0] && visit("B") == shown[1]) << i;
    EXPECT_EQ(leave(), left);
}

} // namespace
