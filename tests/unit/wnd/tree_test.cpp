#include "tests/unit/support/invariants.h"
#include "tests/unit/support/tgx_test.h"
#include "tgx/wnd/tabstops.h"

namespace {

const char* const twoScreens = R"(ADDFONT 'none.ttf' '' 12 0
    SCREEN 'A' 0 0 640 480 '' {
      WINDOW 'OkButton' 0 0 50 50
      WINDOW 'static' 0 0 50 50 { WINDOW 'DEEP' 0 0 10 10; WINDOW 'TWICE' 0 0 10 10 }
      WINDOW 'twice' 100 0 50 50; WINDOW 'P' 0 100 20 20; WINDOW 'Q' 50 100 20 20
      WINDOW 'R' 100 100 20 20; TABORDER 'P' 'Q' 'R'
    }
    SCREEN 'B' 0 0 640 480 '' { POINTER 'DEEP' 'script.tgx'; WINDOW 'TGX_BACK' 0 0 50 50 })";

class TreeTest : public TgxTest {
protected:
    void SetUp() override
    {
        expectMessage("cannot load none.ttf");
        start(twoScreens);
    }
    /// Deletes the window directly, as a game may do.
    void destroy(const std::string& id)
    {
        delete wnd(id);
        EXPECT_EQ(checkInvariants(win()), "");
    }
};

TEST_F(TreeTest, LookUpById)
{
    AWnd* a = wnd("A");
    EXPECT_EQ(a->getWnd("OKBUTTON", 0), wnd("OkButton")) << "ignoring case";
    EXPECT_EQ(a->getWnd("DEEP", 0), nullptr) << "direct children only";
    EXPECT_NE(a->getWnd("twice", 1), a->getWnd("twice", 0))
        << "depth first: a deeper window in an earlier child comes first";
    EXPECT_EQ(a->getWnd("", 1)->getID(), "") << "an empty id finds the first nameless window";
    EXPECT_FALSE(a->hasChildCalled("OKBUTTON"));
    EXPECT_TRUE(a->hasChildCalled("TWICE"));
    EXPECT_FALSE(a->hasChildCalled("static"));
    EXPECT_TRUE(wnd("TWICE")->hasParentCalled("ScreenList")) << "up to and including the root";
    EXPECT_FALSE(wnd("TWICE")->hasParentCalled("TWICE"));
    EXPECT_EQ(a->getWndFromIndex(2, "")->getID(), "twice");
    EXPECT_EQ(a->getWndFromIndex(6, ""), nullptr);
    EXPECT_EQ(a->getWndFromIndex(0, "nowhere"), nullptr);
    EXPECT_THROW(a->getWndFromIndex(-1, ""), CInvalidArgException);
}

TEST_F(TreeTest, LookUpByType)
{
    AWnd holder(AWnd::WND_PLAIN, "H", 0, 0, 1, 1);
    for (AWnd::E_WNDTYPE type : {AWnd::WND_PLAIN, AWnd::WND_BUTTON, AWnd::WND_PLAIN, AWnd::WND_PLAIN})
        holder.addChildWindow(new AWnd(type, "", 0, 0, 1, 1));
    EXPECT_EQ(holder.getWndOfType(AWnd::WND_BUTTON, 3, 1), holder.getWndFromIndex(1, ""));
    EXPECT_EQ(holder.getWndOfType(AWnd::WND_BUTTON, 3, 0), nullptr);
    EXPECT_EQ(holder.getWndOfType(AWnd::WND_GRAPH, 0, 1), nullptr);
    holder.showAllControls(-3);
    EXPECT_FALSE(holder.getWndFromIndex(2, "")->isVisible(0));
}

TEST_F(TreeTest, AChildTakesTheFontItsParentHasWhenItIsAdded)
{
    bmpfont* own = win().getFont(1);
    AWnd* holder = wnd("A")->addChildWindow(new AWnd(AWnd::WND_PLAIN, "H", 0, 0, 1, 1));
    EXPECT_EQ(holder->getFont(), win().getFont(0));
    AWnd* before = holder->addChildWindow(new AWnd(AWnd::WND_PLAIN, "X", 0, 0, 1, 1));
    holder->setFont(own);
    EXPECT_EQ(before->getFont(), win().getFont(0)) << "a later change does not reach the children";
    EXPECT_EQ(holder->addChildWindow(new AWnd(AWnd::WND_PLAIN, "Y", 0, 0, 1, 1))->getFont(), own);
}

TEST_F(TreeTest, AWindowInTwoPlacesOutlivesTheScreenThatShowsIt)
{
    AWnd* deep = wnd("DEEP");
    EXPECT_EQ(deep->getParent(), wnd("B"));
    EXPECT_TRUE(deep->isPointer());
    destroy("B");
    EXPECT_EQ(win().getWnd("DEEP", 1), deep) << "its first parent still lists it";
    EXPECT_EQ(deep->getParent(), nullptr);
    destroy("DEEP");
    EXPECT_EQ(win().getWnd("DEEP", 1), nullptr);
    play("frame 3");
}

TEST_F(TreeTest, AWindowInTwoPlacesOutlivesItsFirstParentToo)
{
    destroy("A");
    EXPECT_NE(win().getWnd("DEEP", 1), nullptr) << "B still shows it, and the root owns it";
}

TEST_F(TreeTest, TabStops)
{
    AWnd* a = wnd("A");
    const struct {
        const char *name, *from;
        int backwards;
        const char *disabled, *hidden, *next;
    } rows[] = {
        {"forwards", "P", 0, "", "", "Q"},
        {"wrapping", "R", 0, "", "", "P"},
        {"backwards, wrapping", "P", 1, "", "", "R"},
        {"past a disabled stop", "P", 0, "Q", "", "R"},
        {"past a hidden stop, back to itself", "P", 0, "Q", "R", "P"},
        {"from null the first usable one, whatever the direction", "", 1, "P", "", "Q"},
        {"from a window that is not a stop", "OkButton", 0, "", "", "P"},
        {"none below a hidden parent", "P", 0, "", "A", nullptr},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        AWnd* from = *row.from ? wnd(row.from) : nullptr;
        if (*row.disabled)
            wnd(row.disabled)->setEnabled(0);
        if (*row.hidden)
            wnd(row.hidden)->setVisible(0);
        AWnd* next = a->getNextTabStop(from, row.backwards, nullptr);
        EXPECT_STREQ(next ? static_cast<const char*>(next->getID()) : nullptr, row.next);
        if (*row.disabled)
            wnd(row.disabled)->setEnabled(1);
        if (*row.hidden)
            wnd(row.hidden)->setVisible(1);
    }
    EXPECT_EQ(wnd("B")->getNextTabStop(nullptr, 0, nullptr), nullptr);
    EXPECT_EQ(wnd("B")->getTabStopInfo(0), nullptr) << "a query creates no record";
    destroy("Q");
    EXPECT_EQ(a->getNextTabStop(wnd("P"), 0, nullptr), wnd("R")) << "a deleted stop has been removed";
}

TEST_F(TreeTest, AReleasedChildBelongsToTheCaller)
{
    EXPECT_EQ(wnd("B")->releaseChildWindow(wnd("P")), nullptr) << "not a child of B";
    std::unique_ptr<AWnd> released(wnd("A")->releaseChildWindow(wnd("P")));
    ASSERT_NE(released, nullptr);
    EXPECT_EQ(released->getParent(), nullptr);
    EXPECT_EQ(win().getWnd("P", 1), nullptr);
    EXPECT_EQ(wnd("Q")->getWindowIndex(), 3) << "those after it move up";
    play("frame 3");
    wnd("B")->addChildWindow(released.release());
    EXPECT_EQ(wnd("P")->getParent(), wnd("B"));

    AWnd* deep = wnd("B")->releaseChildWindow(wnd("DEEP"));
    EXPECT_EQ(win().getWnd("DEEP", 1), deep) << "its first parent lists it still";
    destroy("DEEP");
    play("frame 3");
}

TEST_F(TreeTest, NoWindowCanBePutInsideItself)
{
    const char* const rows[][3] = {
        {"itself", "P", "P"},
        {"its parent", "TWICE", "A"},
        {"the other parent of a window shown in two places", "DEEP", "A"},
    };
    for (const auto& [name, holder, added] : rows) {
        SCOPED_TRACE(name);
        AWnd* before = wnd(added)->getParent();
        EXPECT_EQ(wnd(holder)->addChildWindow(wnd(added)), nullptr);
        EXPECT_EQ(wnd(added)->getParent(), before);
        EXPECT_EQ(wnd(holder)->getWindowCount(), 0);
    }
    wnd("A")->setParentAndIndex(wnd("P"), 7);
    EXPECT_EQ(wnd("A")->getParent(), win().getScreenList());
    wnd("DEEP")->setParentAndIndex(wnd("DEEP"), 5);
    EXPECT_EQ(wnd("DEEP")->getParent(), nullptr) << "a window that is its own parent has no parent";
    EXPECT_EQ(wnd("DEEP")->getWindowIndex(), 5);
    EXPECT_EQ(wnd("P")->addChildWindow(nullptr), nullptr);
    EXPECT_EQ(checkInvariants(win()), "");
    play("frame 6");
    EXPECT_EQ(wnd("Q")->addChildWindow(wnd("R")), wnd("R")) << "a sibling may move below another";
}

// B's handlers delete a window of the walk that calls them; the walk must still reach all the others.
TEST_F(TreeTest, AWalkVisitsEveryChildWhateverIsDeleted)
{
    struct Visited : AWnd {
        Visited(const char* name, std::string& visits) : AWnd(WND_PLAIN, name, 0, 0, 9, 9), log(visits) {}
        int visit()
        {
            const CString name = getID();
            std::string& visits = log;
            visits += name;
            if (victim)
                delete victim.get();
            return 0;
        }
        void initialise() override { visit(); }
        void startup() override { visit(); }
        void close() override { visit(); }
        void returned() override { visit(); }
        void finishAnims() override { visit(); }
        void draw(int) override { visit(); }
        int handleKeyInput(char) override { return visit(); }
        int handleMouseAction(const CString&, AWnd*, int, int, E_MOUSEACTION) override { return visit(); }

        std::string& log;
        WndRef victim;
    };
    const struct {
        const char* name;
        void (*walk)(AWnd&);
    } walks[] = {
        {"initialise", [](AWnd& holder) { holder.initialise(); }},
        {"startup", [](AWnd& holder) { holder.startup(); }},
        {"close", [](AWnd& holder) { holder.close(); }},
        {"returned", [](AWnd& holder) { holder.returned(); }},
        {"finishAnims", [](AWnd& holder) { holder.finishAnims(); }},
        {"draw", [](AWnd& holder) { holder.draw(1); }},
        {"typed key", [](AWnd& holder) { holder.AWnd::handleKeyInput('x'); }},
        {"key", [](AWnd& holder) { holder.handleMouseAction("", nullptr, -1, -1, AWnd::MA_KEY); }},
    };
    const char* const rows[][2] = {{"A1", "A1B1C1D1"}, {"B1", "A1B1C1D1"}, {"C1", "A1B1D1"}, {"H", "A1B1"}};
    for (const auto& walk : walks) {
        for (const auto& [victim, expected] : rows) {
            SCOPED_TRACE(std::string(walk.name) + " deletes " + victim);
            std::string visits;
            const WndRef holder = wnd("A")->addChildWindow(new AWnd(AWnd::WND_PLAIN, "H", 0, 0, 9, 9));
            for (const char* id : {"A1", "B1", "C1", "D1"})
                holder->addChildWindow(new Visited(id, visits));
            static_cast<Visited*>(wnd("B1"))->victim = wnd(victim);
            walk.walk(*holder);
            // A typed key is passed to the window's own action, and from there to the children again.
            EXPECT_EQ(visits.substr(0, std::string(expected).size()), expected);
            delete holder.get();
        }
    }
}

// Deletes every window of both screens at each step of a sequence with focus, press, capture, popup, pending
// deletions and a change of screen.
TEST_F(TreeTest, AnyWindowMayBeDeletedAtAnyTime)
{
    const std::vector<std::string> sequence =
        parts("frame 6,move 5 5,press left,frame,call main setPopupWnd \"B\" \"P\" 1,release left,"
              "frame,move 300 300,frame,call main setMouseCaptureWnd R,frame,"
              "call main setMouseCaptureWnd null,change B,frame 3,frame 3,key esc,frame,key return,"
              "frame 8",
              ',');
    for (const std::string& victim : parts("OkButton DEEP TWICE P Q R TGX_BACK A B")) {
        for (std::size_t at = 0; at < sequence.size(); ++at) {
            SCOPED_TRACE(victim + " is deleted before " + sequence[at]);
            expectMessage("cannot load none.ttf");
            start();
            for (std::size_t i = 0; i < sequence.size(); ++i) {
                if (i == at)
                    if (AWnd* wnd = win().getWnd(CString(victim), 1))
                        delete wnd;
                ASSERT_EQ(checkInvariants(win()), "");
                // A call that names a deleted window is refused; everything else must still work.
                if (sequence[i].starts_with("call"))
                    playWrong(sequence[i]);
                else
                    play(sequence[i]);
            }
        }
    }
}

} // namespace
