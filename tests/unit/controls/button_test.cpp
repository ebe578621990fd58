#include "tests/unit/support/tgx_test.h"
#include "tgx/controls/radiobutton.h"
#include "tgx/controls/tabcontrol.h"

namespace {

const char* const form = R"(SCREEN 'S' 0 0 640 480 '' {
      BUTTON 'GO' 0 0 100 40 'Go' 0 0 'strip.bmp' 40 20 1 0 1 1 1 1; BUTTON 'STOP' 200 0 100 40 'Stop'
      CHECKBOX 'CHECK' 0 100 100 40 'Check'
      CHECKBOX 'TICKED' 200 100 100 40 'Ticked' { CHECKBOXSTATE 5 5 30 30 'strip.bmp' 40 20 1 0 1 1 1 }
      RADIOBUTTON 'R1' 0 200 50 20 'one'; RADIOBUTTON 'R2' 100 200 50 20 'two'
      RADIOBUTTON 'R3' 200 200 50 20 'three'; WINDOW 'BETWEEN' 300 200 20 20
      RADIOBUTTON 'ALONE' 400 200 50 20 'alone'
      TABCONTROL 'TABS' 0 300 640 180 {
        RADIOBUTTON 'TAB1' 0 0 100 20 'A'; RADIOBUTTON 'TAB2' 100 0 100 20 'B'
        WINDOW 'PAGE1' 0 20 640 160 { BUTTON 'INNER' 10 10 50 50 '' }
        WINDOW 'PAGE2' 0 20 640 160 { VISIBLE 0 }
      }
      TABORDER 'GO'; TABLIST2 'R1'
    })";

class ButtonTest : public TgxTest {
protected:
    void SetUp() override
    {
        strip("strip.bmp", 40, 20, 4);
        start(form);
        play("frame 6");
    }
    AButton* button(const std::string& id) { return static_cast<AButton*>(wnd(id)); }
    ARadioButton* radio(const std::string& id) { return static_cast<ARadioButton*>(wnd(id)); }
    using TgxTest::click;
    void click(const std::string& id)
    {
        moveOnto(id);
        click();
    }
    void moveOnto(const std::string& id)
    {
        play("move " + std::to_string(wnd(id)->centreX()) + " " + std::to_string(wnd(id)->centreY()), "tick");
    }
    std::string selectedRadio() { return radio("R1")->getSelectedButton()->getID().str(); }
};

TEST_F(ButtonTest, TheStateFollowsThePointerTickByTick)
{
    const struct {
        const char* event;
        AButton::E_BUTTON_STATE state;
        const char* clicked;
    } rows[] = {
        {"move 10 10", AButton::BS_HOT, ""},
        {"press left", AButton::BS_PRESSED, ""},
        {"", AButton::BS_PRESSED, ""},
        {"release left", AButton::BS_NORMAL, "GO"},
        {"", AButton::BS_HOT, ""},
        {"press left", AButton::BS_PRESSED, ""},
        {"move 210 10", AButton::BS_NORMAL, ""}, // the focus is lost; nothing is sent to the other button
        {"release left", AButton::BS_NORMAL, ""},
        {"", AButton::BS_NORMAL, ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.event);
        play(row.event, "tick");
        EXPECT_EQ(button("GO")->getButtonState(), row.state);
        EXPECT_EQ(clicks(), row.clicked);
    }
    EXPECT_EQ(button("STOP")->getButtonState(), AButton::BS_HOT)
        << "the press is over: the button follows the pointer again";
    play("key return", "tick");
    EXPECT_EQ(clicks(), "STOP") << "Return is a click where the pointer is";
}

TEST_F(ButtonTest, RunsOfFramesFollowOneAnotherInTheStrip)
{
    button("GO")->setButtonAnimFrames(4, 1, 2, 1, 0);
    const struct {
        const char* name;
        AButton::E_BUTTON_STATE state;
        int first, count;
    } rows[] = {
        {"opening", AButton::BS_STARTUP, 0, 4},
        {"normal", AButton::BS_NORMAL, 4, 1},
        {"hot", AButton::BS_HOT, 5, 2},
        {"pressed", AButton::BS_PRESSED, 7, 1},
        {"disabled has no run: the picture does not change", AButton::BS_DISABLED, 7, 1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        button("GO")->setButtonState(row.state);
        EXPECT_EQ(button("GO")->getFirstFrame(), row.first);
        EXPECT_EQ(button("GO")->getFrameCount(), row.count);
    }
    EXPECT_FALSE(button("GO")->isEnabled());
    button("GO")->setButtonState(AButton::BS_HOT);
    EXPECT_TRUE(button("GO")->isEnabled());
}

TEST_F(ButtonTest, APressMovesTheTextAndTheOpeningRunHidesIt)
{
    play("move 210 10", "tick");
    const auto textAt = [&] { return drawn("STOP").operations("textout"); };
    const auto label = [&](int x, int y) { return text("Stop").at(x, y); };
    const int y = (40 - win().getFont(0)->charHeight) / 2;
    EXPECT_EQ(textAt(), (Trace{label(200, y)}));
    play("press left", "tick");
    EXPECT_EQ(textAt(), (Trace{label(201, y + 1)}));
    button("STOP")->setTextShift(0);
    play("release left", "tick", "press left", "tick");
    EXPECT_EQ(textAt(), (Trace{label(200, y)}));

    button("GO")->setButtonAnimFrames(3, 1, 1, 1, 1);
    button("GO")->setButtonState(AButton::BS_STARTUP);
    EXPECT_EQ(drawn("GO").operations("textout"), Trace{}) << "no text during the opening run";
    play("draw 4");
    EXPECT_EQ(button("GO")->getButtonState(), AButton::BS_NORMAL);
    EXPECT_STREQ(button("GO")->getWindowText(), "Go");
}

TEST_F(ButtonTest, CheckBoxesFlipThemselvesOrTheirStateWindow)
{
    for (const char* id : {"CHECK", "TICKED"}) {
        SCOPED_TRACE(id);
        click(id);
        EXPECT_TRUE(button(id)->isSelected());
        play("tick");
        click(id);
        EXPECT_FALSE(button(id)->isSelected());
    }
    click("TICKED");
    AButton* tick = button("CheckboxState");
    EXPECT_FALSE(button("TICKED")->getSelected()) << "the state window stores the selection";
    EXPECT_TRUE(tick->getSelected());
    EXPECT_EQ(tick->getButtonState(), AButton::BS_PRESSED);
    EXPECT_FALSE(tick->getEnabled()) << "and never receives the pointer";

    button("CHECK")->setButtonState(AButton::BS_DISABLED);
    button("CHECK")->setSelected(1);
    EXPECT_FALSE(button("CHECK")->isSelected());
    play("move 50 120", "press left", "tick", "release left", "tick");
    EXPECT_FALSE(button("CHECK")->isSelected());
}

TEST_F(ButtonTest, AStateWindowNeverTakesThePointerFromItsCheckBox)
{
    // The opening run of the box is longer than that of its state window.
    wnd("TICKED")->setBmp(CString("strip.bmp"));
    button("TICKED")->setButtonAnimFrames(9, 1, 1, 1, 1);
    button("TICKED")->setButtonState(AButton::BS_STARTUP);
    const int x = button("CheckboxState")->centreX();
    const int y = button("CheckboxState")->centreY();
    for (int frame = 0; frame < 12; ++frame) {
        EXPECT_EQ(button("TICKED")->getButtonState(), frame < 9 ? AButton::BS_STARTUP : AButton::BS_NORMAL);
        play("draw");
        EXPECT_STREQ(idAt(x, y), "TICKED") << frame;
    }
}

TEST_F(ButtonTest, WithoutANormalFrameAButtonIsOnlyDrawnWhenHotOrPressed)
{
    button("GO")->setButtonAnimFrames(0, 0, 2, 1, 0);
    play("move 300 300", "tick");
    moveOnto("GO");
    EXPECT_EQ(drawn("GO").operations("blit"),
              (Trace{blit("strip.bmp").from(0, 0, 40, 20).to(0, 0, 100, 40)}));
    play("move 300 300", "tick");
    for (int frame = 0; frame < 5; ++frame) {
        play("draw");
        EXPECT_EQ(button("GO")->getCurrentFrame(), -1) << frame;
    }
    play("move 10 10", "tick", "draw");
    EXPECT_EQ(button("GO")->getCurrentFrame(), 1) << "hot again: the run continues";
}

TEST_F(ButtonTest, ARestingPointerDoesNotChangeTheLayout)
{
    button("TICKED")->setSelected(1);
    moveOnto("TICKED");
    const auto version = LayoutVersion::get();
    play("tick 3");
    EXPECT_EQ(LayoutVersion::get(), version) << "otherwise each tick would compute all positions again";
}

TEST_F(ButtonTest, AdjacentRadioButtonsFormAGroup)
{
    for (const char* id : {"R1", "R2", "R3"})
        EXPECT_EQ(radio(id)->getLinkedButtonsCount(0), 3) << id;
    EXPECT_EQ(radio("ALONE")->getLinkedButtonsCount(0), 1);
    EXPECT_EQ(radio("R3")->getLinkedButton(0), radio("R3")) << "itself first, then the nearest";
    EXPECT_EQ(radio("R3")->getLinkedButton(1), radio("R2"));
    EXPECT_THROW(radio("R3")->getLinkedButton(3), CInvalidArgException);
    EXPECT_EQ(selectedRadio(), "R1") << "the first one to start";

    click("R2");
    EXPECT_EQ(selectedRadio(), "R2");
    click("R2");
    EXPECT_EQ(selectedRadio(), "R2") << "a click never deselects";
    radio("R1")->setSelectedButton(radio("ALONE"));
    EXPECT_EQ(selectedRadio(), "R2") << "not a member of the group";
}

TEST_F(ButtonTest, KeysStepThroughARadioGroup)
{
    const char* const rows[][4] = {
        {"End: the next", "key end", "",
         "R3"}, // the first lists itself, then R2 and R3 in the order of their creation
        {"wrapping", "key end", "", "R1"},
        {"Home: the one before", "key home", "", "R3"},
        {"the release of the right button is End", "release right", "", "R1"},
        {"past a disabled one", "key end", "R2", "R3"},
    };
    radio("R1")->setSelectedButton(radio("R2"));
    for (const auto& [name, event, disabled, selected] : rows) {
        SCOPED_TRACE(name);
        if (*disabled)
            wnd(disabled)->setEnabled(0);
        play(event, "tick", "tick");
        EXPECT_EQ(selectedRadio(), selected);
    }
    radio("R1")->setAllNonSelected();
    radio("R1")->selectNextButton(0);
    EXPECT_EQ(radio("R1")->getSelectedButton(), nullptr) << "none selected: nothing to step from";
    radio("R1")->setSelectedButton(radio("R2"));
    wnd("R2")->setVisible(0);
    wnd("R1")->setEnabled(0);
    radio("R1")->selectNextButton(0);
    EXPECT_EQ(selectedRadio(), "R1") << "from a hidden one to the first visible one, usable or not";
    wnd("R1")->setEnabled(1);
    delete wnd("R2");
    EXPECT_EQ(radio("R1")->getLinkedButtonsCount(0), 2);
    EXPECT_EQ(radio("R1")->addLinkedButton(nullptr), -1);
    EXPECT_EQ(radio("R1")->addLinkedButton(radio("R3")), 2) << "a member may be listed twice";
    delete wnd("R3");
    EXPECT_EQ(radio("R1")->getLinkedButtonsCount(0), 1);
}

TEST_F(ButtonTest, TabsShowTheirPageAndThePointerLeavesAHiddenOne)
{
    auto* tabs = static_cast<ATabControl*>(wnd("TABS"));
    EXPECT_EQ(tabs->getTabCount(), 2);
    click("TAB2");
    EXPECT_EQ(win().getCurFocusWnd(), wnd("TAB2")) << "the pointer stays on the tab";
    click("TAB1");
    moveOnto("INNER");
    tabs->setActiveWnd(button("TAB2"), 1);
    play("tick");
    EXPECT_EQ(win().getCurFocusWnd(), wnd("GO")) << "the first tab stop";
    button("TAB1")->setButtonState(AButton::BS_DISABLED);
    play("move 50 310", "press left", "tick", "release left", "tick");
    EXPECT_EQ(tabs->getActiveWnd(), wnd("PAGE2"));
}

} // namespace
