#include "tests/unit/support/tgx_test.h"
#include "tgx/controls/radiobutton.h"
#include "tgx/controls/tabcontrol.h"

namespace {

class TabControlTest : public TgxTest {
protected:
    /// Makes the children: "1" to "3" are tabs, "P" a visible page, "p" a hidden one, "B" a plain button.
    /// Their ids are T0, T1 and so on.
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

TEST_F(TabControlTest, TabsAndTheirPages)
{
    const struct {
        const char* name;
        const char* children;
        const char* radio; // button that is asked for the selected one of the group
        const char *tabAtFirst, *pageAtFirst;
        int clicked; // index
        const char *tab, *page;
    } rows[] = {
        {"tabs before the pages", "12PP", "T0", "T0", "T2", 1, "T1", "T3"},
        {"tabs after the pages", "PP12", "T2", "T2", "T0", 3, "T3", "T1"},
        {"only the second page is visible at first", "12pP", "T0", "T1", "T3", 0, "T0", "T2"},
        {"all pages hidden", "12pp", "T0", "T0", "", 1, "T1", "T3"},
        {"the visible page has no tab", "12ppP", "T0", "T0", "T4", 1, "T1", "T3"},
        {"a plain button shows a page but belongs to no group", "12pPB", "T0", "T1", "T3", 4, "T1", "T2"},
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

TEST_F(TabControlTest, TabsKeepTheirPagesWhenAnotherTabIsDeleted)
{
    open("123PPP");
    delete wnd("T0");
    EXPECT_EQ(wnd("T1")->getWindowIndex(), 0);
    click(1);
    EXPECT_EQ(page(), "T4") << "T1 is now the first child, and its page is three places after it";
    click(2);
    EXPECT_EQ(page(), "T5");
}

} // namespace
