// Handlers of the game delete windows while an action is passed through them. The address sanitizer finds
// wrong accesses; the tests check which windows are left.

#include "tests/unit/support/tgx_test.h"
#include "tgx/controls/editbox.h"
#include "tgx/controls/radiobutton.h"

namespace {

/// Deletes the window of that id, once.
void strike(CString& victim)
{
    delete getMainWin()->getWnd(victim, 1);
    victim = "no window";
}

CString struckByUpdate, struckByReport, struckByKiller;

class Fatal : public AScreen {
public:
    using AScreen::AScreen;
    void update() override { strike(struckByUpdate); }
    int handleMouseAction(const CString& about, AWnd* wnd, int x, int y, E_MOUSEACTION action) override
    {
        AScreen::handleMouseAction(about, wnd, x, y, action);
        if (action == MA_LBUTTONUP)
            strike(struckByReport);
        return 0;
    }
    int handlePopupAction(const CString& about, AWnd* wnd, int x, int y, E_MOUSEACTION action) override
    {
        if (action == MA_LBUTTONUP)
            strike(struckByReport);
        return AScreen::handlePopupAction(about, wnd, x, y, action);
    }
};

/// Strikes on any key, and when it is clicked.
class Killer : public AButton {
public:
    using AButton::AButton;
    int handleMouseAction(const CString& about, AWnd* wnd, int x, int y, E_MOUSEACTION action) override
    {
        AButton::handleMouseAction(about, wnd, x, y, action);
        if (action == MA_KEY || (action == MA_LBUTTONUP && wnd == this))
            strike(struckByKiller);
        return 0;
    }
};

class DeletionTest : public TgxTest {
protected:
    void open()
    {
        start("SCREEN 'S' 0 0 640 480 ''");
        win().makes<Fatal>("FATAL");
        win().makes<Killer>("KILLER");
        script(R"(SCREEN 'FATAL' 0 0 640 480 '' {
              WINDOW 'BOX' 400 0 200 200 {
                USERDEF 'KILLER' 10 10 50 50; RADIOBUTTON 'R1' 0 100 50 20 'one'
                RADIOBUTTON 'R2' 60 100 50 20 'two'; RADIOBUTTON 'R3' 120 100 50 20 'three'
              }
              TABCONTROL 'TABS' 0 200 600 180 {
                RADIOBUTTON 'TAB1' 0 0 100 20 'A'; RADIOBUTTON 'TAB2' 100 0 100 20 'B'
                WINDOW 'PAGE1' 0 20 600 160; WINDOW 'PAGE2' 0 20 600 160
              }
              EDITBOX 'EDIT' 0 0 100 20 ''; BUTTON 'TGX_OK' 0 50 100 20 ''; TABLIST1 'TAB1'; TABLIST2 'R1'
            }
            WINDOW 'POPUP' 0 0 100 100 { BUTTON 'TGX_YES' 0 0 100 100 '' })");
        play("change FATAL close", "frame 8");
    }
    bool isThere(const std::string& id) { return win().getWnd(CString(id), 1) != nullptr; }
};

TEST_F(DeletionTest, TheWindowOfAnActionMayBeDeleted)
{
    const struct {
        const char* name;
        CString& by;
        const char *victim, *events, *left, *gone;
    } rows[] = {
        {"a clicked tab", struckByUpdate, "TAB2", "move 150 210,press left,tick,release left", "TAB1 PAGE2",
         "TAB2"},
        {"its tab control", struckByUpdate, "TABS", "move 150 210,press left,tick,release left", "FATAL",
         "TABS TAB2"},
        {"a clicked button, by its screen", struckByReport, "TGX_OK",
         "move 50 60,press left,tick,release left", "EDIT", "TGX_OK"},
        {"a radio button that receives a key", struckByUpdate, "R1", "key end", "R2 R3", "R1"},
        {"the radio button that the key selects", struckByUpdate, "R2", "key end", "R1 R3", "R2"},
        {"all of the group", struckByUpdate, "BOX", "release right", "FATAL", "BOX R1"},
        {"a tab that receives a key", struckByUpdate, "TAB1", "key delete", "TAB2", "TAB1"},
        {"its tab control, by a key", struckByUpdate, "TABS", "key insert", "FATAL", "TABS"},
        {"a neighbour earlier in the walk", struckByKiller, "R1", "key end", "R2 R3", "R1"},
        {"that neighbour and its parent", struckByKiller, "BOX", "key end", "TABS", "BOX"},
        {"the focus window, while Esc searches for its button", struckByKiller, "EDIT",
         "move 10 10,tick,key esc", "TGX_OK", "EDIT"},
        {"an edit box, by the button pressed at the end of typing", struckByKiller, "EDIT",
         "move 10 10,press left,tick,release left,tick,key return", "KILLER", "EDIT"},
        {"the window that opened the popup, when it is notified of a click", struckByReport, "R3",
         "call main setPopupWnd \"POPUP\" R3 141 \"script.tgx\",move 320 240,press left,tick,release left",
         "R1", "R3"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        struckByUpdate = struckByReport = struckByKiller = "no window";
        open();
        static_cast<AEditBox*>(wnd("EDIT"))->setOnEnterWnd(wnd("KILLER"));
        row.by = row.victim;
        playEach(row.events);
        play("tick", "frame 2");
        for (const std::string& id : parts(row.left))
            EXPECT_TRUE(isThere(id)) << id;
        for (const std::string& id : parts(row.gone))
            EXPECT_FALSE(isThere(id)) << id;
        if (std::string(row.events).ends_with("key esc")) {
            EXPECT_EQ(win().mouseY, wnd("TGX_OK")->centreY()) << "the search continues";
        }
    }
}

TEST_F(DeletionTest, TheNextWindowOfAnEditBoxMayBeDeleted)
{
    open();
    auto* box = static_cast<AEditBox*>(wnd("EDIT"));
    box->setOnEnterWnd(wnd("R1"));
    box->setFullWnd(wnd("R2"));
    box->setMaxLength(1);
    delete wnd("R1");
    delete wnd("R2");
    EXPECT_EQ(box->getOnEnterWnd(), nullptr);
    EXPECT_EQ(box->getFullWnd(), nullptr);
    click(10, 10);
    play("type \"ab\"", "tick 2", "key return", "tick");
    EXPECT_STREQ(box->getWindowText(), "a");
    EXPECT_EQ(win().getMouseCaptureWndCount(), 0);
    EXPECT_EQ(win().mouseX, 10) << "the pointer does not move";
}

} // namespace
