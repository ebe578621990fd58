#include "tests/unit/support/tgx_test.h"
#include "tgx/controls/radiobutton.h"
#include "tgx/controls/tabcontrol.h"

namespace {

class TabControlTest : public TgxTest {
protected:
    /// children: "1" to "3" tabs, "P" and "p" pages that show and do not, "B" a plain button; named by their
    /// places, from T0 on.
    void open(const std::string& children)
    {
        std::string lines = "SCREEN \"S\" 0 0 640 480 \"\"\nBEGIN\nTABCONTROL \"TABS\" 0 0 640 480\nBEGIN\n";
        for (std::size_t i = 0; i < children.size(); ++i) {
            const std::string name = " \"T" + std::to_string(i) + "\" ";
            const std::string place = std::to_string(i * 50) + " 0 40 20";
            if (children[i] == 'P' || children[i] == 'p')
                lines += "WINDOW" + name + "0 30 640 400\n";
            else
                lines += (children[i] == 'B' ? "BUTTON" : "RADIOBUTTON") + name + place + " \"\"\n";
            if (children[i] == 'p')
                lines += "BEGIN\nVISIBLE 0\nEND\n";
        }
        start(lines + "END\nEND\n");
        play("frame 6");
    }
    void click(int place)
    {
        play("move " + std::to_string(place * 50 + 10) + " 10", "press left", "tick", "release left", "tick");
    }
    std::string page()
    {
        const AWnd* shown = static_cast<ATabControl*>(wnd("TABS"))->getActiveWnd();
        return shown ? shown->getID().str() : "";
    }
    std::string selected(const char* member)
    {
        const AWnd* tab = static_cast<ARadioButton*>(wnd(member))->getSelectedButton();
        return tab ? tab->getID().str() : "";
    }
};

TEST_F(TabControlTest, WhichTabAndPageBelongTogether)
{
    const struct {
        const char* name;
        const char* children;
        const char* radio; // asked for the selected one of the group
        const char *tabAtFirst, *pageAtFirst;
        int clicked; // place
        const char *tab, *page;
    } rows[] = {
        {"tabs in front of the pages", "12PP", "T0", "T0", "T2", 1, "T1", "T3"},
        {"tabs behind the pages", "PP12", "T2", "T2", "T0", 3, "T3", "T1"},
        {"the second page alone shows at first", "12pP", "T0", "T1", "T3", 0, "T0", "T2"},
        {"all pages hidden", "12pp", "T0", "T0", "", 1, "T1", "T3"},
        {"the page that shows has no tab", "12ppP", "T0", "T0", "T4", 1, "T1", "T3"},
        {"a plain button shows a page and is of no group", "12pPB", "T0", "T1", "T3", 4, "T1", "T2"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        open(row.children);
        EXPECT_EQ(selected(row.radio), row.tabAtFirst);
        EXPECT_EQ(page(), row.pageAtFirst);
        click(row.clicked);
        EXPECT_EQ(selected(row.radio), row.tab);
        EXPECT_EQ(page(), row.page);
    }
}

TEST_F(TabControlTest, TabsKnowTheirPlaceWhenAnotherIsDeleted)
{
    open("123PPP");
    delete wnd("T0");
    EXPECT_EQ(wnd("T1")->getWindowIndex(), 0);
    click(1);
    EXPECT_EQ(page(), "T4") << "T1 is the first child now, and three places on is its page";
    click(2);
    EXPECT_EQ(page(), "T5");
}

} // namespace
