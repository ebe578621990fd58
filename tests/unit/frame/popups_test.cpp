#include "tests/unit/support/tgx_test.h"

namespace {

/// Sequences of input through the dispatch. The screen S has a button ASK at its top left, 50 x 50, and a
/// panel P at its right. The popups B1, B2 and B3 are read when they are opened, and centred: their corner is
/// 270, 190. Each has a button TGX_OK, its first tab stop, at a different place.
class PopupsTest : public TgxTest {
protected:
    /// Records the calls that the toolkit makes.
    struct RecordingWnd : AWnd {
        RecordingWnd(const CString& name, int x, int y, int w, int h) : AWnd(WND_PLAIN, name, x, y, w, h) {}
        ~RecordingWnd() override { calls.push_back(id.str() + " deleted"); }
        void startup() override { calls.push_back(id.str() + " startup"), AWnd::startup(); }
        void close() override { calls.push_back(id.str() + " close"), AWnd::close(); }
        void initialise() override { calls.push_back(id.str() + " initialise"); }
    };
    /// Calls ask on a click on ASK, and records the answers with the id buttons of the box.
    struct AskingScreen : AScreen {
        using AScreen::AScreen;
        void close() override { calls.push_back(id.str() + " close"), AScreen::close(); }
        int handleMouseAction(const CString& about, AWnd* wnd, int x, int y, E_MOUSEACTION action) override
        {
            if (action == MA_LBUTTONUP)
                calls.push_back("click " + about.str());
            if (action == MA_LBUTTONUP && about == "ASK" && ask)
                ask();
            return AScreen::handleMouseAction(about, wnd, x, y, action);
        }
        int handlePopupAction(const CString& about, AWnd* wnd, int x, int y, E_MOUSEACTION action) override
        {
            if (action == MA_LBUTTONUP)
                calls.push_back(wnd->getParent()->getID().str() + " " + about.str());
            return AScreen::handlePopupAction(about, wnd, x, y, action);
        }
        std::function<void()> ask;
    };

    void SetUp() override
    {
        script("WINDOW \"MESSAGEBOX\" 0 0 200 100\nBEGIN\nTEXTWND \"MESSAGEBOXTITLE\" 0 0 200 20 \"\"\n"
               "TEXTWND \"MESSAGEBOXTEXT\" 0 20 200 20 \"\"\nBUTTON \"TGX_OK\" 10 60 40 20 \"\"\n"
               "TABORDER \"TGX_OK\"\nEND\n"
               "WINDOW \"QUERYBOX\" 0 0 200 100\nBEGIN\nBUTTON \"TGX_YES\" 10 60 40 20 \"\"\n"
               "BUTTON \"TGX_NO\" 150 60 40 20 \"\"\nTABORDER \"TGX_NO\" \"TGX_YES\"\nEND\n",
               "common.tgx");
        start("SCREEN 'FIRST' 0 0 640 480 ''");
        win().makes<AskingScreen>("S");
        win().makes<RecordingWnd>("RECORDING");
        const auto popup = [](const std::string& id, const std::string& okPlace) {
            return "USERDEF \"" + id + "\" 0 0 100 100 \"RECORDING\"\nBEGIN\nTEXTWND \"IN" + id +
                   "\" 0 90 100 10 \"" + id + "\"\nBUTTON \"TGX_OK\" " + okPlace +
                   " 20 20 \"\"\nTABORDER \"TGX_OK\"\nEND\n";
        };
        script("SCREEN \"S\" 0 0 640 480 \"\"\nBEGIN\nBUTTON \"ASK\" 0 0 50 50 \"S\"\nWINDOW \"P\" 500 0 100 "
               "480\nEND\nSCREEN \"NEXT\" 0 0 640 480 \"\"\n" +
               popup("B1", "10 10") + popup("B2", "50 10") + popup("B3", "70 40"));
        play("change S close", "frame 7", "move 25 26", "frame");
        taken();
    }
    void TearDown() override { calls.clear(); }

    std::string taken() { return joined(std::exchange(calls, {}), ", "); }
    AWnd* open(const std::string& id, const std::string& parent)
    {
        AWnd* opener = parent == "-" ? nullptr : wnd(parent);
        return win().setPopupWnd(CString(id), opener, 141, "script.tgx");
    }
    void closeAll()
    {
        while (win().getPopupWndCount() > 0)
            win().deletePopupWnd();
        play("frame");
    }
    /// Clicks on ASK and calls ask in that tick.
    void clickToAsk(std::function<void()> ask)
    {
        static_cast<AskingScreen*>(screen("S"))->ask = std::move(ask);
        click();
        static_cast<AskingScreen*>(screen("S"))->ask = nullptr;
    }
    /// The ids of the popups, front first; "-" marks a hidden one.
    std::string popups()
    {
        std::string ids;
        for (int i = 0; i < win().getPopupWndCount(); ++i) {
            AWnd* popup = win().getPopupWnd(i);
            ids += (i ? " " : "") + popup->getID().str() + (popup->isVisible(1) ? "" : "-");
        }
        return ids;
    }
    std::string textIn(const std::string& box, const char* id)
    {
        return wnd(box)->getWnd(CString(id), 1)->getWindowText();
    }

    static constexpr const char* ofAsk = "25 26";
    static constexpr const char* ofB1 = "290 210";
    static constexpr const char* ofB2 = "330 210";
    static constexpr const char* ofB3 = "350 240";
    static inline std::vector<std::string> calls; // outlives the windows that record in it
};

TEST_F(PopupsTest, MessagesOfOneHandlerAppearOneAfterTheOther)
{
    clickToAsk([this] {
        EXPECT_EQ(screen("S")->messageBox("title 1", "text 1", "", "messageBox"), 1);
        EXPECT_EQ(screen("S")->messageBox("title 2", "text 2", "", "messageBox"), 1);
    });
    EXPECT_EQ(popups(), "messageBox1 messageBox12-");
    EXPECT_EQ(textIn("messageBox1", "MESSAGEBOXTITLE"), "title 1");
    EXPECT_EQ(textIn("messageBox12", "MESSAGEBOXTEXT"), "text 2");
    EXPECT_EQ(win().getWnd("MESSAGEBOX", 1), nullptr);
    EXPECT_EQ(pointer(), "250 260") << "on the first one's button";
    screen("S")->messageBox("", "", "", "messageBox");
    screen("S")->messageBox("", "", "", "OWN");
    EXPECT_EQ(popups(), "messageBox1 messageBox12- messageBox123- OWN-");
    EXPECT_EQ(call("main isInPopupList OWN"), "1");
    EXPECT_EQ(call("main isInPopupList own"), "0");

    taken();
    for (const char* left : {"messageBox12 messageBox123- OWN-", "messageBox123 OWN-", "OWN"}) {
        click();
        EXPECT_EQ(popups(), left);
        EXPECT_EQ(pointer(), "250 260") << "each box has its button there";
        play("frame");
    }
    play("key return", "tick");
    EXPECT_EQ(taken(), "messageBox1 TGX_OK, messageBox12 TGX_OK, messageBox123 TGX_OK, OWN TGX_OK");
    EXPECT_EQ(popups(), "");
    EXPECT_EQ(pointer(), ofAsk);
    EXPECT_EQ(win().getWnd("messageBox1", 1), nullptr);
    screen("S")->messageBox("", "", "", "messageBox");
    EXPECT_EQ(popups(), "messageBox1") << "the name is free again";
}

TEST_F(PopupsTest, EachPopupPassesThePointerToTheNext)
{
    for (const char* id : {"B1", "B2", "B3"}) {
        open(id, "S");
        EXPECT_EQ(pointer(), ofB1) << id;
    }
    const char* const rows[][2] = {{"B2 B3-", ofB2}, {"B3", ofB3}, {"", ofAsk}};
    for (const auto& [remaining, place] : rows) {
        play("key return", "frame");
        EXPECT_EQ(popups(), remaining);
        EXPECT_EQ(pointer(), place);
    }
    EXPECT_EQ(taken(), "B1 startup, B2 startup, B3 startup, B1 TGX_OK, B1 close, B1 deleted, B2 TGX_OK, B2 "
                       "close, B2 deleted, B3 TGX_OK, B3 close, B3 deleted");
}

TEST_F(PopupsTest, OpeningByParent)
{
    const struct {
        const char* name;
        const char* opened; // popup and parent alternate; - for no parent
        const char *popups, *pointer;
    } rows[] = {
        {"the same parent: after it, hidden", "B1 S B2 S", "B1 B2-", ofB1},
        {"another parent: in front", "B1 S B2 P", "B2 B1", ofB2},
        {"the parent of the front popup decides", "B1 S B2 P B3 S", "B3 B2 B1", ofB3},
        {"at the end, after the covered ones", "B1 S B2 P B3 P", "B2 B1 B3-", ofB2},
        {"two without a parent count as having the same", "B1 - B2 -", "B1 B2-", ofB1},
        {"no parent counts as a different one", "B1 S B2 -", "B2 B1", ofB2},
        {"a popup may open a popup", "B1 S B2 B1 B3 INB1", "B3 B2 B1", ofB3},
        {"opened by itself: no parent", "B1 B1 B2 -", "B1 B2-", ofB1},
        {"inside itself: no parent", "B1 S B1 INB1 B2 -", "B1 B2-", ofB1},
        {"in a cycle: no parent", "B1 S B2 B1 B1 B2", "B2 B1", ofB1},
        {"the front one again", "B1 S B1 S", "B1", ofB1},
        {"the last one again", "B1 S B2 S B2 S", "B1 B2-", ofB1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        play("move 25 26", "frame");
        std::istringstream opened(row.opened);
        for (std::string id, parent; opened >> id >> parent;) {
            if (id == parent)
                win().readScriptFile("script.tgx", nullptr, 141, CString(id), 0);
            open(id, parent);
        }
        EXPECT_EQ(popups(), row.popups);
        EXPECT_EQ(pointer(), row.pointer);
        play("frame");
        closeAll();
    }
}

TEST_F(PopupsTest, APopupThatIsOpenedAgain)
{
    AWnd* popup = open("B1", "S");
    popup->setMoveAnimation(0, 0, 50, 0, ZnFixed::fromInt(10), ZnFixed(), 0);
    play("move 5 6", "frame 2");
    EXPECT_EQ(popup->posX(0), 290);
    EXPECT_EQ(open("B1", "S"), popup);
    EXPECT_EQ(popup->posX(0), 270) << "started again, at rest";
    EXPECT_EQ(pointer(), ofB1);
    popup->setMoveAnimation(0, 0, 50, 0, ZnFixed::fromInt(10), ZnFixed(), 0);
    play("frame 2");
    EXPECT_EQ(win().setPopupWnd(nullptr, nullptr, 0), nullptr);
    EXPECT_EQ(popups(), "");
    EXPECT_EQ(pointer(), "5 6") << "the pointer returns to where it was at the last opening";
    EXPECT_EQ(popup->posX(0), 270);
    play("frame 2");
    EXPECT_EQ(taken(), "B1 startup, B1 startup, B1 close") << "closed, but not deleted";
    EXPECT_EQ(win().setPopupWnd(nullptr, nullptr, 0), nullptr) << "nothing to close";
    win().deletePopupWnd();
    EXPECT_EQ(open("B1", "P"), popup);
    win().deletePopupWnd();
    EXPECT_NE(open("B1", "P"), popup) << "a popup marked for deletion is read again";
    play("frame");
    EXPECT_EQ(win().getPopupWnd(0), wnd("B1"));
    EXPECT_EQ(win().setPopupWnd(CString("NONE"), screen("S"), 141, "script.tgx"), nullptr);
    EXPECT_EQ(popups(), "") << "opening a popup that does not exist closes the front one";
}

TEST_F(PopupsTest, AScreenChangeClosesAllPopupsFrontFirst)
{
    open("B1", "S");
    open("B2", "P");
    open("B3", "P");
    EXPECT_EQ(popups(), "B2 B1 B3-");
    taken();
    play("change NEXT close", "frame 5");
    EXPECT_EQ(taken(), "B2 close, B1 close, B3 close, S close");
    EXPECT_EQ(popups(), "");
    play("frame");
    EXPECT_EQ(taken(), "B3 deleted, B1 deleted, B2 deleted");
    EXPECT_EQ(win().getWnd("S", 1), nullptr);
}

TEST_F(PopupsTest, APopupThatSlides)
{
    const struct {
        const char *name, *sliding;
        int deleteWhenDone;
        const char* after;
    } rows[] = {
        {"away: the opener closes it", "B1", 0, "B2"},
        {"with the record deleted at the end: it stays", "B1", 1, "B1 B2-"},
        {"hidden ones do not move", "B2", 0, "B1 B2-"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        open("B1", "P");
        open("B2", "P");
        wnd(row.sliding)->setMoveAnimation(0, 0, 20, 0, ZnFixed::fromInt(10), ZnFixed(), row.deleteWhenDone);
        play("frame 2");
        EXPECT_EQ(popups(), "B1 B2-") << "the opener is drawn before the popup moves";
        play("frame 2");
        EXPECT_EQ(popups(), row.after);
        EXPECT_EQ(win().getPopupWnd(0)->posX(0), 270);
        closeAll();
    }
}

TEST_F(PopupsTest, AnswersToAQuery)
{
    const struct {
        const char* name;
        const char* events; // followed by a frame each
        const char* answer;
        bool open;
    } rows[] = {
        {"Return, on the first stop", "key return", "Q TGX_NO", false},
        {"Tab and Return", ",key tab,key return", "Q TGX_YES", false},
        {"the mouse", "move 240 260,press left,release left", "Q TGX_YES", false},
        {"Esc does not click", "key esc", "", true},
        {"Esc moves to the button it may use", "key esc,key return", "Q TGX_YES", false},
        {"inside, beside the buttons", "move 320 200,press left,release left", "S Q", true},
        {"outside: no window below is clicked", "move 25 26,press left,release left", "S Q", true},
        {"a release elsewhere", "press left,move 25 26,release left", "", true},
        {"the right button", "press right,release right", "", true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        taken();
        clickToAsk([this] { win().queryBox("title", "text", "", "Q", screen("S"), 1); });
        EXPECT_EQ(taken(), "click ASK");
        EXPECT_EQ(pointer(), "390 260");
        EXPECT_EQ(call("TGX_YES getText"), "\"Yes\"");
        EXPECT_EQ(call("TGX_NO getText"), "\"No\"");
        playEach(row.events, "frame");
        EXPECT_EQ(taken(), row.answer);
        EXPECT_EQ(popups(), row.open ? "Q" : "");
        closeAll();
        play("move 25 26", "frame");
    }

    play("move 25 26", "press left", "tick");
    taken();
    screen("S")->queryBox("title", "text", "", "Q");
    play("tick 2", "release left", "tick");
    EXPECT_EQ(taken(), "Q TGX_NO") << "the press is over: its release is a click where the pointer is now";
}

TEST_F(PopupsTest, BoxesMissingInTheScript)
{
    const struct {
        const char* name;
        const char* buttons; // of the box
        int yesNo;
        const char* labels; // in the order of the buttons
    } rows[] = {
        {"yes and no", "TGX_YES TGX_NO", 1, "Yes No "},
        {"other buttons", "TGX_OK TGX_CANCEL", 0, "OK Cancel "},
        {"the first of each", "TGX_CANCEL TGX_NO TGX_OK TGX_YES", 1, "- No - Yes "},
        {"only a second one", "TGX_CANCEL", 1, "No "},
        {"none", "OTHER", 1, "- "},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        std::string lines;
        for (const std::string& id : parts(row.buttons))
            lines += "BUTTON \"" + id + "\" 0 0 9 9 \"-\"\n";
        script("WINDOW \"QUERYBOX\" 0 0 200 100\nBEGIN\n" + lines + "END\n", "common.tgx");
        EXPECT_EQ(win().queryBox("title", "text", "", "Q", screen("S"), row.yesNo), 1);
        std::string labels;
        for (int i = 0; AWnd* button = wnd("Q")->getWndFromIndex(i, ""); ++i)
            labels += button->getText().str() + " ";
        EXPECT_EQ(labels, row.labels);
        win().deletePopupWnd();
        play("frame");
    }

    open("B1", "S");
    for (const char* box : {"MESSAGEBOX", "QUERYBOX"}) {
        script("", "common.tgx");
        expectMessage("cannot load " + std::string(box));
        const bool isQuery = box == std::string("QUERYBOX");
        EXPECT_EQ(isQuery ? win().queryBox("", "", "", "Q", screen("S"), 1)
                          : win().messageBox("", "", "", "messageBox", screen("S")),
                  0);
        EXPECT_EQ(popups(), "B1");
        EXPECT_EQ(pointer(), ofB1);
    }
    script("WINDOW 'MESSAGEBOX' 0 0 9 9", "common.tgx");
    EXPECT_EQ(win().messageBox("title", "text", "", "M", screen("S")), 1) << "without its texts";
    EXPECT_EQ(popups(), "B1 M-");
}

TEST_F(PopupsTest, ADeletedParentOrPopupLeavesTheOthersInOrder)
{
    open("B1", "P");
    taken();
    delete wnd("P");
    EXPECT_EQ(wnd("B1")->getParent(), nullptr);
    click();
    EXPECT_EQ(taken(), "");
    EXPECT_EQ(popups(), "B1") << "nothing receives the answer";
    open("B2", "-");
    EXPECT_EQ(popups(), "B1 B2-") << "as a popup without a parent";
    open("B3", "S");
    EXPECT_EQ(popups(), "B3 B1 B2-");
    delete wnd("B1");
    EXPECT_EQ(popups(), "B3 B2-");
    taken();
    play("key return", "frame");
    EXPECT_EQ(taken(), "B3 TGX_OK, B3 close, B3 deleted");
    EXPECT_EQ(popups(), "B2") << "it is still shown";
    delete wnd("B2");
    taken();
    play("move 25 26", "frame");
    click();
    EXPECT_EQ(taken(), "click ASK");
}

} // namespace
