#include "tests/unit/support/tgx_test.h"
#include "tgx/controls/combobox.h"

namespace {

/// BOX is at 200, 200 by default and 120 x 20, with a button at each end, three items, and a screen that
/// counts the updates. Rows of a menu are 24 high.
class ComboBoxTest : public TgxTest {
protected:
    struct CountingScreen : AScreen {
        CountingScreen(const CString& name, int x, int y, int w, int h, int& count)
            : AScreen(name, x, y, w, h), updated(count)
        {}
        void update() override { ++updated; }
        int& updated;
    };

    static constexpr const char* buttons = "COMBOPREV 0 0 20 20 ''; COMBONEXT 100 0 20 20 ''\n";
    static constexpr const char* items = "ITEM 'one'; ITEM 'two'; ITEM 'three'\n";

    /// lines: statements for BOX. others: for the screen.
    void startBox(const std::string& lines, const std::string& position = "200 200",
                  const std::string& others = "")
    {
        bitmap("UIG/scroll1.bmp", 16, 160);
        start("SCREEN 'FIRST' 0 0 640 480 ''");
        win().classes["S"] = [this](const CString& id, int x, int y, int w, int h) {
            return new CountingScreen(id, x, y, w, h, updates);
        };
        script("SCREEN 'S' 0 0 640 480 '' { COMBOBOX 'BOX' " + position + " 120 20 'text' {" + lines + "}\n" +
               others + "\nTABLIST1 'BOX'; TABLIST2 'BOX' }\n" +
               "WINDOW 'OTHER' 0 0 50 50 { BUTTON 'TGX_OK' 10 10 20 20 '' }");
        play("change S close", "frame 7");
        measureFont(0);
        updates = 0;
    }
    AComboBox* box() { return static_cast<AComboBox*>(wnd("BOX")); }
    AListBox* menu() { return static_cast<AListBox*>(wnd("ComboMenu")); }
    bool isOpen() { return win().isInPopupList("ComboMenu"); }
    void clickBox() { click(box()->centreX(), box()->centreY()); }
    void clickRow(int row) { click(menu()->centreX(), menu()->top() + 24 * row + 12); }
    int updatesSince() { return std::exchange(updates, 0); }
    std::string shown() { return box()->getWindowText(); }
    std::string placeOfMenu()
    {
        std::ostringstream numbers;
        numbers << menu()->left() << ' ' << menu()->top() << ' ' << menu()->width() << ' '
                << menu()->height();
        return numbers.str();
    }
    /// The states of prev, box and next: n(ormal), p(ressed), h(ot), s(tarting), d(isabled); - if there is
    /// none.
    std::string states()
    {
        std::string letters;
        for (const char* id : {"ComboPrev", "BOX", "ComboNext"}) {
            AWnd* found = win().getWnd(id, 1);
            letters += found ? "nphsd"[static_cast<AButton*>(found)->getButtonState()] : '-';
        }
        return letters;
    }

    int updates = 0;
};

TEST_F(ComboBoxTest, SteppingThroughTheItems)
{
    const struct {
        const char* name;
        int wraps, from;
        const char* events; // the pointer is on the box unless they move it
        const char* text;
        int updates;
        const char* states;
    } rows[] = {
        {"down", 1, 0, "key down", "two", 1, "nnp"},
        {"up", 1, 2, "key up", "two", 1, "pnn"},
        {"down after the last one", 1, 2, "key down", "one", 1, "nnp"},
        {"up before the first one", 1, 0, "key up", "three", 1, "pnn"},
        {"no wrap at the end, but still an update", 0, 2, "key down", "three", 1, "nnp"},
        {"no wrap at the start", 0, 0, "key up", "one", 1, "pnn"},
        {"no wrap inside", 0, 1, "key down", "three", 1, "nnp"},
        {"home steps back", 1, 2, "key home", "two", 1, "pnn"},
        {"insert steps back", 1, 2, "key insert", "two", 1, "pnn"},
        {"end steps forward", 1, 0, "key end", "two", 1, "nnp"},
        {"delete steps forward", 1, 0, "key delete", "two", 1, "nnp"},
        {"the screen's list sends the key there from elsewhere", 1, 0, "move 9 9,key end", "two", 1, "nnp"},
        {"also for insert and delete", 1, 2, "move 9 9,key insert", "two", 1, "pnn"},
        {"an arrow key is not sent there from elsewhere", 1, 0, "move 9 9,key down", "one", 0, "nnn"},
        {"back takes precedence over forward", 1, 1, "hold home,key down", "one", 1, "phn"},
        {"another key", 1, 1, "key a", "two", 0, "nnn"},
        {"the right button names End but holds no key", 1, 0, "press right,release right", "one", 0, "npn"},
        {"the button prev", 1, 1, "move 205 210,press left,release left", "one", 1, "pnn"},
        {"the button next", 1, 1, "move 315 210,press left,release left", "three", 1, "nnp"},
        {"a button while it is held", 1, 1, "move 315 210,press left", "two", 0, "nnp"},
        {"Return on a button", 1, 1, "move 315 210,key return", "three", 1, "nnp"},
        {"a held key turns next into prev", 1, 1, "move 315 210,hold home,key return", "one", 1, "pnn"},
        {"the next tick leaves no button pressed", 1, 0, "key down, ", "two", 1, "nhn"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        startBox(std::string(buttons) + items + "COMBOWRAP " + std::to_string(row.wraps) + "\n");
        box()->setSelectedItem(row.from);
        play("move 260 210", "tick");
        box()->setButtonState(AButton::BS_NORMAL);
        playEach(row.events, "tick");
        EXPECT_EQ(shown(), row.text);
        EXPECT_EQ(updatesSince(), row.updates);
        EXPECT_EQ(states(), row.states);
        EXPECT_FALSE(isOpen());
        play("lift home");
    }
}

TEST_F(ComboBoxTest, WithOneItemThereIsNothingToStepTo)
{
    startBox(buttons);
    EXPECT_EQ(shown(), "text") << "no item yet";
    EXPECT_EQ(box()->getSelectedItem(), 0);
    EXPECT_EQ(call("BOX getSelectedItemText"), "{\"error\": \"invalid argument\"}");
    EXPECT_EQ(box()->addItem("one"), 0);
    EXPECT_EQ(states(), "dnd");
    EXPECT_EQ(shown(), "one");
    play("move 260 210", "key down", "tick");
    clickBox();
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(updatesSince(), 0);

    box()->setButtonState(AButton::BS_DISABLED);
    EXPECT_EQ(box()->addItem("two"), 1);
    EXPECT_EQ(states(), "nnn");
    EXPECT_TRUE(box()->isEnabled() && wnd("ComboPrev")->isEnabled() && wnd("ComboNext")->isEnabled());
    EXPECT_EQ(shown(), "one");

    box()->setSelectedItem(-1);
    EXPECT_EQ(shown(), "");
    EXPECT_THROW(box()->setSelectedItem(2), CInvalidArgException);
    box()->reset();
    EXPECT_EQ(box()->getItemCount(), 0);
    EXPECT_EQ(box()->getSelectedItem(), 0);
    EXPECT_EQ(shown(), "") << "unchanged";
}

TEST_F(ComboBoxTest, TheMenuStaysOnTheScreen)
{
    const struct {
        const char *name, *lines, *position;
        const char* places; // at each opening
    } rows[] = {
        {"above", "", "200 200", "200 127 120 73,200 127 120 73"},
        {"below", "COMBOBELOW 1\n", "200 200", "200 220 120 73,200 220 120 73"},
        {"to the very top", "", "200 73", "200 0 120 73"},
        {"off the top: ten pixels inside", "", "200 72", "200 10 120 73,200 10 120 73"},
        {"to the very bottom", "COMBOBELOW 1\n", "200 407", "200 427 120 73"},
        {"off the bottom, each time from its last position", "COMBOBELOW 1\n", "200 440",
         "200 460 120 50,200 460 120 30,200 460 120 30"},
        {"a menu from the script", "COMBOMENU 5 3 80 50 '' { LISTLOOK 16; BORDER 'edge.bmp' 4 4 }", "200 200",
         "205 143 80 57,205 143 80 57"},
        {"a menu from the script, below", "COMBOBELOW 1; COMBOMENU 5 3 80 50 '' { BORDER 'edge.bmp' 4 4 }",
         "200 440", "205 460 80 55,205 460 80 38"},
    };
    strip("edge.bmp", 4, 4, 8);
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        startBox(std::string(row.lines) + items, row.position);
        AWnd* made = win().getWnd("ComboMenu", 1);
        EXPECT_TRUE(!made || !made->isVisible(0)) << "hidden at first";
        std::istringstream places(row.places);
        for (std::string expected; std::getline(places, expected, ',');) {
            clickBox();
            EXPECT_EQ(placeOfMenu(), expected);
            EXPECT_TRUE(isOpen() && menu()->isVisible(1) && menu()->isEasyClose());
            EXPECT_EQ(menu()->getColumnCount(), 1);
            EXPECT_EQ(menu()->getColumnWidth(0), menu()->width());
            EXPECT_EQ(menu()->getItemCount(), 3);
            EXPECT_TRUE(!made || made == menu()) << "the same menu is opened each time";
            made = menu();
            click(630, 5);
            EXPECT_FALSE(isOpen() || menu()->isVisible(0));
        }
    }
}

TEST_F(ComboBoxTest, ChoosingInTheMenu)
{
    const struct {
        const char* name;
        const char* events; // the rows begin at 127, the pointer is on the first
        bool open;
        int selected, updates; // in the menu while it is open, otherwise in the box
    } rows[] = {
        {"it opens on the item shown", "", true, 1, 0},
        {"the selection follows the pointer", "move 260 190", true, 2, 0},
        {"and is lost with it", "move 260 190,move 9 9", true, -1, 0},
        {"and follows the keys", "key down", true, 2, 0},
        {"a press keeps it open", "move 260 190,press left", true, 2, 0},
        {"a click", "move 260 190,press left,release left", false, 2, 1},
        {"the item already selected: still an update", "move 260 165,press left,release left", false, 1, 1},
        {"keys and Return", "key up,key return", false, 0, 1},
        {"below the rows", "move 260 200,press left,release left", false, 1, 0},
        {"far away", "move 600 400,press left,release left", false, 1, 0},
        {"a drag from row to row", "move 260 130,press left,move 260 190,release left", false, 2, 1},
        {"the right button", "move 260 190,press right,release right", true, 2, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        startBox(std::string(buttons) + items);
        box()->setSelectedItem(1);
        click(240, 210);
        ASSERT_TRUE(isOpen());
        EXPECT_EQ(pointer(), "260 139") << "on the first row";
        play("frame");
        EXPECT_EQ(menu()->getHotItem(), 1) << "and the pointer has no effect until it moves";
        playEach(row.events, "frame");
        EXPECT_EQ(isOpen(), row.open);
        EXPECT_EQ(updatesSince(), row.updates);
        EXPECT_EQ(row.open ? menu()->getSelectedItem() : box()->getSelectedItem(), row.selected);
        if (row.open)
            continue;
        EXPECT_EQ(shown(), box()->getItemText(row.selected).str());
        EXPECT_FALSE(menu()->isVisible(0));
        EXPECT_EQ(pointer(), "240 210") << "the pointer is back where it was";
        EXPECT_EQ(states(), "nnn");
        play("frame");
        EXPECT_EQ(menu()->getParent(), box()) << "it is not deleted";
        EXPECT_EQ(states(), "nhn");
    }
}

TEST_F(ComboBoxTest, WithoutAMenuAClickOnlyResetsTheButtons)
{
    startBox(std::string(buttons) + items + "COMBODROPS 0\n");
    play("move 260 210", "key down", "tick");
    EXPECT_EQ(states(), "nnp");
    play("press left", "tick");
    EXPECT_EQ(states(), "npn");
    play("release left", "tick");
    EXPECT_EQ(states(), "nnn");
    EXPECT_EQ(win().getWnd("ComboMenu", 1), nullptr);
    EXPECT_EQ(updatesSince(), 1) << "only for the step";

    play("move 315 210", "tick");
    box()->setButtonState(AButton::BS_PRESSED);
    play("tick");
    EXPECT_EQ(states(), "nnh") << "the box is not drawn pressed while the pointer is on a button";
}

TEST_F(ComboBoxTest, ACoveredMenuIsHidden)
{
    startBox(std::string(items));
    clickBox();
    win().setPopupWnd(CString("OTHER"), wnd("S"), 141, "script.tgx");
    EXPECT_TRUE(menu()->isVisible(1)) << "until the next frame";
    play("frame");
    EXPECT_FALSE(menu()->isVisible(0));
    EXPECT_EQ(call("main getPopupWnd 1"), "\"ComboMenu\"");
    click(wnd("TGX_OK")->centreX(), wnd("TGX_OK")->centreY());
    play("frame");
    EXPECT_EQ(win().getWnd("OTHER", 1), nullptr);
    EXPECT_TRUE(menu()->isVisible(1)) << "in front again";
    clickRow(2);
    EXPECT_EQ(shown(), "three");

    clickBox();
    delete box();
    EXPECT_EQ(win().getPopupWndCount(), 0);
    play("frame 2");
}

TEST_F(ComboBoxTest, Drawing)
{
    startBox(std::string(items) + "TEXTOFFSET 4 2\nBUTTONFRAMES 9 1 1 1\nJUSTIFY RIGHT\n");
    box()->setTextCentreV(0);
    const auto label = [](int x, int y) { return text("one").at(x, y); };
    box()->setButtonState(AButton::BS_STARTUP);
    EXPECT_EQ(drawn("BOX"), Trace{label(290, 202)}) << "the opening run hides the button's own text";
    box()->setButtonState(AButton::BS_PRESSED);
    EXPECT_EQ(drawn("BOX"), (Trace{label(285, 203), label(290, 202)}))
        << "the button's text, moved by the press, and the box's own, which begins at the offset";

    clickBox();
    play("frame 2");
    menu()->setHotItem(1);
    menu()->setSelectedItem(0);
    const int x = 200, y = 127, right = 320, bottom = 200;
    const Trace drawing = drawn("ComboMenu");
    EXPECT_EQ(drawing.operations("fillrect"),
              (Trace{fill(x, y, right, bottom, "#808080"), fill(x, y, right, y + 1, "#808080"),
                     fill(x, y, x + 1, bottom, "#808080"), fill(x, bottom - 1, right, bottom, "#202020"),
                     fill(right - 1, y, right, bottom, "#202020"), fill(x, y, right, y + 24, "#000080")}));
    EXPECT_EQ(drawing.operations("rectangle"), Trace{outline(x, y + 24, right, y + 48, "#808080")});
    const auto item = [&](const char* of, int itemX, int row) {
        return text(of).at(itemX, y + 24 * row + (24 - 12) / 2);
    };
    EXPECT_EQ(drawing.operations("textout"),
              (Trace{item("one", 300, 0), item("two", 300, 1), item("three", 280, 2)}));
    menu()->setVisible(0);
    EXPECT_EQ(drawn("ComboMenu"), Trace{});
}

TEST_F(ComboBoxTest, StatementsAndTree)
{
    startBox("COMBOWRAP 2; COMBODROPS 2; COMBOBELOW 3; ITEM; ITEM 'ICON3' 'b'");
    EXPECT_EQ(box()->getWrapItems(), 0) << "the lowest bit";
    EXPECT_EQ(box()->getMenuAllowed(), 0);
    EXPECT_EQ(box()->getMenuBelow(), 1);
    EXPECT_EQ(box()->getItemCount(), 2);
    EXPECT_STREQ(box()->getItemText(0), "");
    EXPECT_STREQ(box()->getItemText(1), "ICON3") << "no icon, and one text per line";
    EXPECT_EQ(shown(), "") << "the text of the first item";

    for (const char* line : {"12", "14"}) // COMBOBELOW and COMBODROPS
        expectMessage("Encountered an error on line " + std::string(line) +
                      " in script.tgx\nThe line is :\n\t");
    startBox(items, "200 200",
             "BUTTON 'B' 0 0 9 9 '' { COMBOWRAP 0; COMBOBELOW 1; COMBONEXT 0 0 1 1 ''; COMBODROPS 0 }");
    EXPECT_EQ(wnd("B")->getWindowCount(), 0) << "a step button in another kind of window is ignored";
    box()->setSelectedItem(1);
    play("tree t.json");
    EXPECT_NE(readOutput("t.json").find(R"("selectedItem":1,"items":["one","two","three"])"),
              std::string::npos);
}

TEST_F(ComboBoxTest, WindowsWithThePartsNamesButOfOtherClasses)
{
    startBox("WINDOW 'ComboPrev' 0 0 20 20; WINDOW 'ComboNext' 100 0 20 20; WINDOW 'ComboMenu' 0 0 9 9\n" +
             std::string(items));
    play("move 260 210", "key down", "tick");
    EXPECT_EQ(shown(), "two");
    clickBox();
    EXPECT_EQ(win().getPopupWndCount(), 0);
    play("frame");

    startBox("LISTBOX 'ComboMenu' 0 0 90 90\n" + std::string(items));
    clickBox();
    clickRow(1);
    EXPECT_EQ(shown(), "two") << "any list can be the menu";
}

} // namespace
