// What the inspector shows about the visible windows, and where it paints it.

#include "devtools/inspected.h"
#include "devtools/inspector.h"
#include "devtools/origins.h"
#include "devtools/sources.h"
#include "tests/unit/support/tgx_test.h"

namespace {

using Texts = std::vector<std::string>;

Texts textsOf(const std::vector<PanelLine>& lines)
{
    Texts texts;
    for (const PanelLine& line : lines)
        texts.push_back(line.text);
    return texts;
}

/// A panel with a button and a strip, a second panel over its lower half, and a popup that is not open yet.
class InspectorTest : public TgxTest {
protected:
    void SetUp() override
    {
        strip("strip.bmp", 20, 10, 3);
        bitmap("ground.bmp", 640, 480, 0x305070);
        start(R"(SCREEN 'MENU' 0 0 640 480 '' {
              BMPFILE 'ground.bmp'
              WINDOW 'PANEL' 20 30 200 200 {
                BUTTON 'GO' 10 10 80 40 'On'
                WINDOW '' 10 100 60 60 {
                  WINDOW 'PICTURE' 5 5 20 10 { BMPFILE 'strip.bmp'; BMPINFO 20 10 1 3 }
                }
                WINDOW 'LABEL' 150 60 100 20
              }
              WINDOW 'COVER' 20 130 200 100; TABORDER 'LABEL' 'GO'
            }
            WINDOW 'BOX' 300 300 100 100 { BUTTON 'OK' 10 10 20 20 '' })");
        play("frame 2");
    }
    void openBox() { win().setPopupWnd(wnd("BOX"), screen("MENU"), 0); }
    std::string shownAt(int x, int y)
    {
        const AWnd* shown = shownWindowAt(win(), x, y);
        return shown ? titleOf(*shown) : "none";
    }
    Texts describe(const std::string& id, const std::string& place = "menu.tgs:7")
    {
        AWnd* described = wnd(id);
        const int x = described->left() + 3;
        const int y = described->top() + 3;
        return textsOf(describeWindow(win(), *described, x, y, place));
    }
};

TEST_F(InspectorTest, TheShownWindowIsTheLastOneDrawnAtAPoint)
{
    struct Row {
        const char* name;
        int x, y;
        std::function<void()> given;
        const char* shown;
    };
    const auto nothing = [] {};
    const Row rows[] = {
        {"the deepest window", 40, 50, nothing, "GO  AButton"},
        {"the screen where there is no other window", 600, 20, nothing, "MENU  ScreenSpy"},
        {"beyond the screen", 700, 500, nothing, "none"},
        {"a window that extends beyond its parent", 260, 95, nothing, "LABEL  AWnd"},
        {"a later window over the children of an earlier one", 40, 140, nothing, "COVER  AWnd"},
        {"a window without an id", 80, 180, [&] { wnd("COVER")->setVisible(0); }, "(no id)  AWnd"},
        {"a disabled window", 40, 50, [&] { wnd("GO")->setEnabled(0); }, "GO  AButton"},
        {"not a hidden window", 40, 50, [&] { wnd("GO")->setVisible(0); }, "PANEL  AWnd"},
        {"not the children of a hidden window", 260, 95, [&] { wnd("PANEL")->setVisible(0); },
         "MENU  ScreenSpy"},
        {"nothing of a popup that is not open", 315, 315, nothing, "MENU  ScreenSpy"},
        {"a popup over the screen", 315, 315, [&] { openBox(); }, "OK  AButton"},
        {"the screen beside a popup", 600, 20, nothing, "MENU  ScreenSpy"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        row.given();
        EXPECT_EQ(shownAt(row.x, row.y), row.shown);
    }
}

TEST_F(InspectorTest, DescribesAWindow)
{
    wnd("COVER")->setVisible(0);
    wnd("GO")->setWindowText("One\nand a b\xFC"
                             "cher\x01");
    play("move 40 50", "frame 1");
    EXPECT_EQ(describe("GO"),
              (Texts{"MENU  ScreenSpy", "  PANEL  AWnd", "    GO  AButton", "on screen\t30, 40   80 x 40",
                     "in parent\t10, 10   80 x 40",
                     "text\t\"One\\nand a b\xFC"
                     "cher\\x01\"",
                     "font\t0", "button\thot", "tab stop\t2 of 2 in \"MENU\"", "made by\tmenu.tgs:7"}));

    wnd("PICTURE")->setCurrentFrame(2);
    EXPECT_EQ(describe("PICTURE", ""),
              (Texts{"MENU  ScreenSpy", "  PANEL  AWnd", "    (no id)  AWnd", "      PICTURE  AWnd",
                     "on screen\t35, 135   20 x 10", "in parent\t5, 5   20 x 10", "font\t0",
                     "bitmap\tstrip.bmp, frame 2", "made by\tno script"}));
}

TEST_F(InspectorTest, ShowsWhyAWindowGetsNoInput)
{
    struct Row {
        const char *name, *id;
        std::function<void()> given;
        Texts lines; // after the line "made by"
    };
    const Row rows[] = {
        {"it is outside its parent there",
         "LABEL",
         [&] { wnd("PANEL")->setWndPos(20, 30, 100, 200); },
         {"input\tgoes to \"MENU\""}},
        {"it is covered", "PICTURE", [] {}, {"input\tgoes to \"COVER\""}},
        {"a popup gets it", "GO", [&] { openBox(); }, {"input\tgoes to \"BOX\""}},
        {"a change of screens is under way",
         "OK",
         [&] { win().changeScreen("MENU", 0, 0, "script.tgx"); },
         {"input\tgoes nowhere: the change to the screen \"MENU\" is under way"}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        row.given();
        Texts lines = describe(row.id);
        lines.erase(lines.begin(), std::find(lines.begin(), lines.end(), "made by\tmenu.tgs:7") + 1);
        EXPECT_EQ(lines, row.lines);
    }
}

TEST_F(InspectorTest, ShowsStatesThatAnAuthorLooksFor)
{
    const auto has = [&](const std::string& id, const std::string& line) {
        const Texts lines = describe(id);
        return std::find(lines.begin(), lines.end(), line) != lines.end();
    };
    wnd("PANEL")->setEnabled(0);
    wnd("PICTURE")->deleteBmp();
    wnd("COVER")->setShrinkAnimation(ZnFixed::fromInt(1));
    EXPECT_TRUE(has("GO", "state\tis disabled because \"PANEL\" is disabled"));
    EXPECT_TRUE(has("PANEL", "state\tis disabled"));
    EXPECT_TRUE(has("PICTURE", "bitmap\tstrip.bmp, not loaded"));
    EXPECT_TRUE(has("COVER", "state\tis moving"));
}

TEST_F(InspectorTest, ShortensLongPathsAndTexts)
{
    AWnd* deepest = wnd("PANEL");
    for (int i = 0; i < 20; ++i)
        deepest = deepest->addChildWindow(
            new AWnd(AWnd::WND_PLAIN, CString("D" + std::to_string(i)), 0, 0, 10, 10));
    deepest->setWindowText(CString(std::string(300, 'x')));
    const Texts lines = describe("D19", std::string(90, '/') + "menu.tgs:1234");

    EXPECT_EQ(lines[0], "MENU  ScreenSpy");
    EXPECT_EQ(lines[1], "  ... 14 more");
    EXPECT_EQ(lines[2], "    D13  AWnd");
    EXPECT_EQ(lines[8], "                D19  AWnd");
    EXPECT_EQ(lines[11], "text\t\"" + std::string(80, 'x') + "\"...");
    EXPECT_EQ(lines[13], "made by\t..." + std::string(27, '/') + "menu.tgs:1234")
        << "the line number is visible";
}

TEST_F(InspectorTest, CountsWindowsAndDuplicateIds)
{
    start(R"(SCREEN 'MENU' 0 0 640 480 '' {
          BUTTON 'GO' 0 0 10 10 '' { CHECKBOXSTATE 0 0 5 5 '' 5 5 1 0 0 0 1 }
          BUTTON 'KEEP' 0 20 10 10 '' { CHECKBOXSTATE 0 0 5 5 '' 5 5 1 0 0 0 1 }
          WINDOW 'PANEL' 20 0 100 100 {
            WINDOW 'go' 0 0 10 10; WINDOW '' 0 0 10 10; WINDOW '' 0 0 10 10; WINDOW 'menu' 0 0 10 10
          }
          LISTBOX 'LIST' 200 0 100 100; EDITBOX 'NAME' 200 200 100 20 ''
        }
        SCREEN 'OTHER' 0 0 640 480 '' { BUTTON 'KEEP' 0 0 10 10 '' }
        WINDOW 'BOX' 300 300 100 100 { BUTTON 'GO' 10 10 20 20 '' })");
    play("frame 2");
    const Texts screenOnly{"screens, popups\t1",
                           "plain\t5",
                           "buttons\t4",
                           "edit boxes\t1",
                           "lists, combos\t1",
                           "hidden\t0",
                           "id GO\t2 times: in MENU, in PANEL",
                           "id MENU\t2 times: in ScreenList, in PANEL"};
    EXPECT_EQ(textsOf(describeCensus(takeCensus(win()))), screenOnly);

    // A box has its own ids; hidden windows can still be found by their id.
    openBox();
    wnd("PANEL")->setVisible(0);
    EXPECT_EQ(textsOf(describeCensus(takeCensus(win()))),
              (Texts{"screens, popups\t2", "buttons\t5", "edit boxes\t1", "lists, combos\t1", "hidden\t5",
                     "id GO\t2 times: in MENU, in PANEL", "id MENU\t2 times: in ScreenList, in PANEL"}));

    // Two siblings with the same id are duplicates, even with the id of a control's part.
    wnd("KEEP")->addChildWindow(new AWnd(AWnd::WND_PLAIN, "checkboxstate", 0, 0, 5, 5));
    EXPECT_EQ(textsOf(describeCensus(takeCensus(win()))).at(6),
              "id CheckboxState\t2 times: in KEEP, in KEEP");
}

TEST_F(InspectorTest, AWindowThatIsShownInTwoPlacesIsCountedOnce)
{
    start(R"(WINDOW 'SHARED' 0 0 50 50 { BUTTON 'PART' 0 0 10 10 '' }
        SCREEN 'MENU' 0 0 640 480 '' {
          WINDOW 'A' 0 0 100 100 { POINTER 'SHARED' }; WINDOW 'B' 200 0 100 100 { POINTER 'SHARED' }
        })");
    play("frame 2");
    ASSERT_EQ(wnd("B")->getWnd("PART", 1), wnd("A")->getWnd("PART", 1));
    EXPECT_EQ(textsOf(describeCensus(takeCensus(win()))),
              (Texts{"screens, popups\t1", "plain\t3", "buttons\t1", "hidden\t0"}));
    // The same for one that is on the screen and is open as a popup.
    win().setPopupWnd(wnd("A"), screen("MENU"), 0);
    EXPECT_EQ(textsOf(describeCensus(takeCensus(win()))),
              (Texts{"screens, popups\t2", "plain\t2", "buttons\t1", "hidden\t0"}));
}

/// Paints the picture that the host would show.
class PaintingTest : public InspectorTest {
protected:
    const Image& paint(int settings)
    {
        Inspector inspector(win(), origins);
        for (int i = 0; i < settings; ++i)
            inspector.next();
        overlay.begin(win().getScreenImage());
        inspector.paint(overlay, {});
        return overlay.getPicture();
    }
    std::uint32_t painted(int settings, int x, int y) { return paint(settings).row(y)[x] & 0xFFFFFF; }
    std::uint32_t shown(int x, int y) { return win().getScreenImage().row(y)[x] & 0xFFFFFF; }

    Sources sources{{}, "script.tgx"};
    Origins origins{sources};
    Overlay overlay;
};

TEST_F(PaintingTest, OutlinesAreAtTheEdgesOfTheWindows)
{
    play("move 40 140", "frame 1"); // COVER
    const struct {
        const char* name;
        int settings, x, y;
        std::uint32_t colour;
    } rows[] = {
        {"top left corner of the window under the pointer", 1, 20, 130, hoveredColour},
        {"its bottom right corner", 1, 219, 229, hoveredColour},
        {"inside", 1, 100, 200, 0x305070},
        {"another window is not outlined", 1, 109, 60, 0x305070},
        {"with all windows: a button", 2, 109, 60, outlineColour(WindowKind::Button)},
        {"a plain window that extends beyond its parent", 2, 269, 95, outlineColour(WindowKind::Plain)},
        {"not a popup that is not open", 2, 300, 300, 0x305070},
        {"the third setting is off", 3, 20, 130, 0x305070},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(painted(row.settings, row.x, row.y), row.colour);
    }
    wnd("LABEL")->setID("go");
    EXPECT_EQ(painted(2, 269, 95), duplicateColour);
    EXPECT_EQ(painted(2, 109, 60), duplicateColour);
}

TEST_F(PaintingTest, DoesNotChangeTheGame)
{
    play("move 40 50", "frame 3");
    const Trace drawn = frameDrawn();
    const ImageRef before = copyImage(win().getScreenImage());
    paint(2);
    EXPECT_EQ(win().getScreenImage().pixels, before->pixels);
    EXPECT_EQ(frameDrawn(), drawn);
    EXPECT_NE(overlay.getPicture().pixels, before->pixels);
    EXPECT_EQ(paint(3).pixels.size(), before->pixels.size()) << "off, it is the screen itself";
    EXPECT_EQ(shown(600, 300), painted(3, 600, 300));
}

TEST_F(PaintingTest, ThePanelIsInTheHalfWithoutThePointer)
{
    // Points inside the bottom panel, which has the same height on both sides.
    play("move 40 400", "frame 1");
    EXPECT_NE(painted(1, 630, 470), 0x305070u);
    EXPECT_EQ(painted(1, 9, 470), 0x305070u);
    play("move 600 400", "frame 1");
    EXPECT_EQ(painted(1, 630, 470), 0x305070u);
    EXPECT_NE(painted(1, 9, 470), 0x305070u);
}

TEST_F(PaintingTest, CopesWithWindowsBeyondTheScreenAndAnEmptyTree)
{
    wnd("PANEL")->setWndPos(-32000, 32000, 32767, 32767);
    wnd("COVER")->setWndPos(600, 440, 0, 32767);
    wnd("MENU")->setWndPos(-5, -5, 2000, 2000);
    play("move 639 479", "frame 1");
    EXPECT_EQ(shown(300, 200), painted(2, 300, 200));
    win().recreateScreenList();
    EXPECT_EQ(shown(300, 200), painted(2, 300, 200));
}

TEST(InspectorTexts, CostAndKeys)
{
    EXPECT_EQ(textsOf(describeCost({1234, 20560, 1093, 45678}, 640L * 480)),
              (Texts{"frame\t1.23 ms, 20.56 on average", "drawn\t1,093 commands",
                     "changed\t45,678 pixels, 14.9 %"}));
    EXPECT_EQ(textsOf(describeCost({}, 0)).back(), "changed\t0 pixels, 0.0 %");
    EXPECT_EQ(describeKeys({}),
              "F12 inspector \xB7 F11 full screen \xB7 F10 picture \xB7 F9 record \xB7 F8 screens");
    DevToolsOptions keys;
    keys.inspectorKey = 'I';
    keys.fullScreenKey = 0;
    keys.recorderKey = VK_INSERT;
    EXPECT_EQ(describeKeys(keys), "I inspector \xB7 F10 picture \xB7 key 45 record \xB7 F8 screens");
}

} // namespace
