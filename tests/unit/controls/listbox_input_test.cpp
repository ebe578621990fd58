#include "tests/unit/controls/listbox_fixture.h"

namespace {

class ListBoxInputTest : public ListBoxTest {
protected:
    /// LIST has ten rows of two columns and a page of five. PEER, which has one row, and GO are on its right,
    /// and the list IN in a window is below it.
    void startLists(const std::string& attributes = "", const std::string& others = "")
    {
        startList("COLUMNS 50 50\n" + attributes,
                  R"(LISTBOX 'PEER' 400 100 100 121 { ITEM 'p' }; BUTTON 'GO' 400 300 50 50 ''
            WINDOW 'BOX' 100 300 200 100 { LISTBOX 'IN' 0 0 100 100 { ITEM 'i' } }
)" + others);
        addRows(10);
    }
    int selected(const std::string& id) { return list(id)->getSelectedItem(); }
};

TEST_F(ListBoxInputTest, PressesAndMoves)
{
    startLists("LISTFIXEDROWS 2");
    const char* const rows[][3] = {
        {"pointing makes hot", "move 120 130", "-1,-1 1,0"},
        {"a press selects", "press left", "1,0 1,0"},
        {"while held, the selection follows the pointer", "move 170 110", "0,1 0,1"},
        {"the release keeps the selection", "release left", "0,1 0,1"},
        {"a fixed row does not become hot", "move 120 160", "0,1 -1,0"},
        {"pressing it deselects", "press right", "-1,-1 -1,-1"},
        {"its release does nothing", "release right", "-1,-1 -1,-1"},
        {"another row", "move 120 180", "-1,-1 3,0"},
        {"the right button selects too", "press right", "3,0 3,0"},
        {"and is released", "release right", "3,0 3,0"},
        {"to the right of the columns the first one is hot", "move 270 110", "3,0 0,0"},
        {"Return selects what is hot", "key return", "0,0 0,0"},
    };
    for (const auto& [name, event, expected] : rows) {
        SCOPED_TRACE(name);
        play(event, "tick");
        EXPECT_EQ(state(), expected);
    }
    EXPECT_EQ(clicks(), "LIST LIST") << "the screen sees the list's id";
    list()->addNonSelectableRow(1);
    list()->setHotItem(1);
    play("doubleclick left", "tick");
    EXPECT_EQ(state(), "1,0 1,0") << "a double click does not check for fixed rows";
    play("release left", "tick 2");
    list()->setSelectedItem(1);
    list()->setEnabled(0);
    play("move 120 180", "tick");
    EXPECT_EQ(state(), "1,0 -1,0") << "nothing becomes hot in a disabled list";
    list()->setEnabled(1);
    list()->setTextOffset(10, 10);
    play("move 109 115", "tick");
    EXPECT_EQ(list()->getHotItem(), -1) << "to the left of the content";
    play("move 110 130", "tick");
    EXPECT_EQ(list()->getHotItem(), 0);
    list()->removeAllItems(0);
    click(120, 130);
    EXPECT_EQ(state(), "-1,-1 -1,-1") << "below the last row";
}

TEST_F(ListBoxInputTest, TheTitleRowIsTheRowAboveThePage)
{
    startLists("TITLES 'T'");
    list()->setSelectedItem(3);
    click(120, 110);
    EXPECT_EQ(state(), "-1,-1 -1,-1");
    list()->scrollTo(ZnFixed::fromInt(50));
    click(120, 110);
    EXPECT_EQ(state(), "2,0 2,0");
    click(120, 130);
    EXPECT_EQ(state(), "3,0 3,0");
}

TEST_F(ListBoxInputTest, PairedListsShareOneSelection)
{
    startLists("LISTFIXEDROWS 2");
    win().setKeepListSelection(1);
    list()->setSingleSelectWith(list("PEER"));
    const struct {
        const char *name, *move;
        int list, peer;
    } rows[] = {
        {"one list gains the selection", "move 120 130", 1, -1},
        {"the other gains it", "move 420 110", -1, 0},
        {"losing it does not select in the other", "move 420 160", -1, -1},
        {"the other gains it again", "move 420 110", -1, 0},
        {"nor does pressing a fixed row change it", "move 120 160", -1, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        play(row.move, "press left", "tick");
        EXPECT_EQ(selected("LIST"), row.list);
        EXPECT_EQ(selected("PEER"), row.peer);
        play("release left", "tick");
    }
    delete wnd("PEER");
    click(120, 130);
    EXPECT_EQ(selected("LIST"), 1);
}

TEST_F(ListBoxInputTest, AClickElsewhereDeselects)
{
    startLists(
        "",
        R"(WINDOW 'POP' 500 300 100 100 { LISTBOX 'PL' 0 0 100 50 { ITEM 'x' }; BUTTON 'PB' 0 60 50 20 '' }
        SCREEN 'OTHER' 0 0 640 480 '')");
    const char* const popup = "call main setPopupWnd POP S 0";
    const struct {
        const char* name;
        int keep;
        const char* before;
        int x, y, list, in, popupList;
    } rows[] = {
        {"on the list itself", 0, "", 120, 130, 1, -1, -1},
        {"on another list", 0, "", 420, 110, -1, -1, -1},
        {"on a button", 0, "", 410, 310, -1, -1, -1},
        {"with the selection kept", 1, "", 410, 310, 3, 0, 0},
        {"on the background: the lists directly on it", 0, "", 620, 20, -1, 0, 0},
        {"also with the selection kept", 1, "", 620, 20, -1, 0, 0},
        {"on the list's bar", 0, "", 290, 200, 3, 0, 0},
        {"on a button of a popup: the popup's lists", 0, popup, 510, 370, 3, 0, -1},
        {"on the popup's list", 0, popup, 510, 310, 3, 0, 0},
        {"when the screen opens", 1, "change OTHER", 0, 0, -1, -1, -1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        list("IN")->setSelectedItem(0);
        list("PL")->setSelectedItem(0);
        list()->setSelectedItem(3);
        win().setKeepListSelection(row.keep);
        play(row.before, "frame 6");
        if (row.x == 0)
            play("change S", "frame 6");
        else
            click(row.x, row.y);
        EXPECT_EQ(selected("LIST"), row.list);
        EXPECT_EQ(selected("IN"), row.in);
        EXPECT_EQ(selected("PL"), row.popupList);
        play("call main setPopupWnd null null 0", "tick");
    }
}

TEST_F(ListBoxInputTest, UpAndDown)
{
    startLists();
    play("move 120 110", "tick");
    const struct {
        const char* name;
        int wrap;
        std::vector<int> fixed;
        int first, hot;
        const char* key;
        int hotAfter, firstAfter;
    } rows[] = {
        {"down", 0, {}, 0, 0, "key down", 1, 0},
        {"over fixed rows", 0, {1, 2}, 0, 0, "key down", 3, 0},
        {"the last row of the page scrolls the list", 0, {}, 0, 3, "key down", 4, 1},
        {"scrolls by as many rows as were skipped", 0, {4}, 0, 3, "key down", 5, 2},
        {"from none", 0, {}, 0, -1, "key down", 0, 0},
        {"the last row", 0, {}, 5, 9, "key down", 9, 5},
        {"wraps", 1, {}, 5, 9, "key down", 0, 0},
        {"wraps over a fixed row", 1, {0}, 5, 9, "key down", 1, 0},
        {"only fixed rows left", 1, {4, 5, 6, 7, 8, 9}, 0, 3, "key down", 3, 0},
        {"up scrolls at the top of the page", 0, {}, 3, 4, "key up", 3, 2},
        {"up over a fixed row", 0, {2}, 0, 3, "key up", 1, 0},
        {"the first row", 0, {}, 0, 0, "key up", 0, 0},
        {"wraps to the end", 1, {}, 0, 0, "key up", 9, 5},
        {"wraps to the last that is not fixed", 1, {9, 8}, 0, 0, "key up", 7, 5},
        {"up from none", 1, {}, 0, -1, "key up", -1, 0},
        {"fixed up to the top", 1, {0, 1}, 0, 2, "key up", 2, 0},
        {"another key does not change the hot row", 1, {}, 0, 2, "key home", 0, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        list()->clearNonSelectableRows();
        for (const int item : row.fixed)
            list()->addNonSelectableRow(item);
        list()->setTextWrap(row.wrap);
        list()->scrollTo(ZnFixed::fromInt(20 * row.first));
        list()->setHotItem(row.hot);
        list()->setHotColumn(row.hot < 0 ? -1 : 0);
        play(win().mouseX == 120 ? "move 121 110" : "move 120 110", row.key, "tick 3");
        EXPECT_EQ(list()->getHotItem(), row.hotAfter) << "a movement before the key has no effect";
        EXPECT_EQ(first(), row.firstAfter);
    }
    EXPECT_EQ(selected("LIST"), -1);
    play("move 420 110", "tick");
    list()->setHotItem(2);
    play("key down", "tick");
    EXPECT_EQ(list()->getHotItem(), 2) << "only the list under the pointer";
}

TEST_F(ListBoxInputTest, LeftAndRightWithCellHighlight)
{
    startList("COLUMNS 30 30 30 30; LISTLOOK 24 0 1; ITEM 'a'", "TABORDER 'LIST'");
    const struct {
        const char* name;
        int wrap;
        std::vector<int> fixed;
        int hot;
        const char* key;
        int hotAfter;
    } rows[] = {
        {"right", 0, {}, 0, "key right", 1},
        {"over a fixed column", 0, {1}, 0, "key right", 2},
        {"the last", 0, {}, 3, "key right", 3},
        {"wraps", 1, {}, 3, "key right", 0},
        {"only fixed columns left: the pointer's column, which is fixed too", 0, {2, 3}, 1, "key right", 0},
        {"left over a fixed column", 0, {1}, 2, "key left", 0},
        {"the first", 0, {}, 0, "key left", 0},
        {"wraps to the last that is not fixed", 1, {3}, 0, "key left", 2},
        {"fixed up to the first", 1, {0, 1}, 2, "key left", 2},
    };
    play("move 190 110", "tick");
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        list()->clearNonSelectableColumns();
        for (const int column : row.fixed)
            list()->addNonSelectableColumn(column);
        list()->setTextWrap(row.wrap);
        list()->setHotItem(0);
        list()->setHotColumn(row.hot);
        play("move 191 110", "move 190 110", row.key, "tick 2");
        EXPECT_EQ(list()->getHotColumn(), row.hotAfter);
        EXPECT_EQ(win().mouseX, 190) << "the only stop keeps the pointer";
    }
    list()->clearNonSelectableColumns();
    list()->setCellHighlight(0);
    play("key right", "tick 2");
    EXPECT_EQ(win().mouseX, 200) << "a list of rows is an ordinary stop";
}

TEST_F(ListBoxInputTest, WhereTabMovesThePointer)
{
    const struct {
        const char *name, *attributes;
        int rows;
        const char* result; // start of the expected result; "[0" if there is no row
    } rows[] = {
        {"the first row", "COLUMNS 50", 2, "[1,200,112]"},
        {"below the titles", "COLUMNS 50; TITLES 'T'", 2, "[1,200,136]"},
        {"below fixed rows", "COLUMNS 50\nLISTFIXEDROWS 0 1", 3, "[1,200,160]"},
        {"in the middle of the content", "COLUMNS 50\nTEXTOFFSET 5 7", 2, "[1,140,119]"},
        {"inside the border", "COLUMNS 50; BORDER 'edge.bmp' 6 4", 2, "[1,200,118]"},
        {"before the bar", "COLUMNS 50", 6, "[1,192,112]"},
        {"all fixed", "COLUMNS 50\nLISTFIXEDCOLUMNS 0", 2, "[0"},
        {"all of the page", "COLUMNS 50\nLISTFIXEDROWS 0 1 2 3 4", 6, "[0"},
        {"no rows", "COLUMNS 50", 0, "[0"},
    };
    strip("edge.bmp", 4, 4, 8);
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        startList(row.attributes, "BUTTON 'GO' 400 300 50 50 ''; TABORDER 'GO' 'LIST'");
        addRows(row.rows);
        EXPECT_TRUE(callList("getMousePosOfFirstSelectableItem").starts_with(row.result));
        play("move 410 310", "tick", "key tab", "tick 2");
        const std::string pointer = std::to_string(win().mouseX) + "," + std::to_string(win().mouseY);
        EXPECT_EQ(row.result[1] == '1' ? row.result : "[1,425,325]", "[1," + pointer + "]")
            << "a list without a row is skipped";
    }
    startList("COLUMNS 50; TITLES 'T'");
    addRows(10);
    list()->scrollToLastItem();
    EXPECT_EQ(callList("getMousePosOfFirstSelectableItem"), "[1,192,136]") << "not the row below the titles";
}

TEST_F(ListBoxInputTest, AColumnIncludesTheGapAfterIt)
{
    const struct {
        const char *name, *attributes;
        int gap, end; // end of column 0 in screen pixels
    } rows[] = {
        {"the first column also has a gap before it", "", 10, 170},
        {"a narrow gap", "", 4, 158},
        {"moved content", "TEXTOFFSET 20 0\n", 10, 190},
        {"a border", "BORDER 'edge.bmp' 6 4\n", 10, 176},
    };
    strip("edge.bmp", 4, 4, 8);
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        startList(std::string(row.attributes) + "COLUMNS 50 50\nLISTLOOK 24 0 1\nITEM \"a\" \"b\"");
        list()->setColumnGap(row.gap);
        play("move " + std::to_string(row.end - 1) + " 115", "tick");
        EXPECT_EQ(list()->getHotColumn(), 0);
        play("move " + std::to_string(row.end) + " 115", "tick");
        EXPECT_EQ(list()->getHotColumn(), 1);
    }
}

TEST_F(ListBoxInputTest, ScrollingByPercentage)
{
    startLists();
    const struct {
        const char* name;
        int percentage; // raw
        int first, bar; // the bar's percentage
    } rows[] = {
        {"top", 0, 0, 0},
        {"a row", 81920, 1, 20},
        {"end", 409600, 5, 100},
        {"nearly a row counts as none", 81149, 0, 19},
        {"very nearly a row counts as one", 81150, 1, 19},
        {"beyond", 614400, 7, 100},
        {"before the first row", -163840, -1, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(list()->scrollTo(ZnFixed::fromRaw(row.percentage)), 1);
        EXPECT_EQ(first(), row.first);
        EXPECT_EQ(bar()->getPercentage().toInt(), row.bar);
    }
    list()->scrollTo(ZnFixed());
    play("move 120 110", "tick");
    std::string firsts;
    for (const char* step : {"wheel down", "call LIST scrollDown 0", "wheel up", "wheel up", "wheel up",
                             "call LIST scrollDown 1", "wheel down", "call LIST scrollUp 0",
                             "call LIST scrollUp 1", "call LIST scrollToLastItem"}) {
        play(step, "tick");
        firsts += std::to_string(first());
    }
    EXPECT_EQ(firsts, "1210055405");
    list()->reset(0, 1);
    EXPECT_EQ(callList("scrollDown 0") + callList("scrollTo 50.0") + callList("scrollToLastItem"), "000")
        << "all rows are visible";
    addRows(5);
    EXPECT_EQ(callList("scrollTo 50.0"), "1") << "a list with exactly one page can be scrolled";
    play("move 420 110", "wheel down", "tick");
    EXPECT_EQ(list("PEER")->getFirstVisibleItem(), 0) << "no bar";
}

TEST_F(ListBoxInputTest, ScrollingToARow)
{
    startLists();
    addRows(10);
    const struct {
        const char* name;
        int item, first, hot;
    } rows[] = {
        {"a row", 3, 3, 3},
        {"the same", 3, 3, -1},
        {"the last full page", 15, 15, 15},
        {"after that, a page less", 16, 11, 11},
        {"the last", 19, 14, 14},
        {"none", 20, 14, -1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        list()->setHotItem(-1);
        list()->setFirstVisibleItem(row.item);
        EXPECT_EQ(first(), row.first);
        EXPECT_EQ(list()->getHotItem(), row.hot);
    }
}

TEST_F(ListBoxInputTest, TheBarScrollsItsList)
{
    startLists("TITLES 'T'");
    EXPECT_EQ(bar()->height(), 97) << "below the titles";
    list()->reset(1, 1);
    list()->addColumn(50, AWnd::TJ_LEFT);
    addRows(10);
    list()->updateScrollBarHeight();
    EXPECT_EQ(bar()->height(), 121);
    bar()->setWndPos(184, 0, -1, -1);
    click(120, 110);
    const struct {
        const char *name, *event;
        int first, percent;
    } rows[] = {
        {"onto the lever", "move 290 139", 0, 0},
        {"taken", "press left", 0, 0},
        {"half way, off the bar", "move 20 161", 2, 51},
        {"the end", "move 290 400", 5, 100},
        {"released", "release left", 5, 100},
        {"beside it", "move 290 130", 5, 100},
        {"a page up", "press left", 0, 0},
        {"released again", "release left", 0, 0},
        {"onto the button", "move 290 215", 0, 0},
        {"a step down", "press left", 1, 20},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        play(row.event, "tick");
        EXPECT_EQ(first(), row.first);
        EXPECT_EQ(bar()->getPercentage().toInt(), row.percent);
        EXPECT_EQ(selected("LIST"), 0) << "the row has moved, but stays selected";
    }
    play("release left", "tick");
    list()->reset(0, 1);
    addRows(2);
    click(290, 130);
    EXPECT_EQ(selected("LIST"), 0) << "no click selects where a hidden bar is";
}

TEST_F(ListBoxInputTest, TheHotPositionIsRestoredWhenThePointerReturns)
{
    const char* const rows[][3] = {
        {"it is saved", "", "-1,-1 4,1"},
        {"not restored if its row has left the page", "call LIST scrollTo 100.0", "-1,-1 5,0"},
        {"or is fixed by now", "call LIST addNonSelectableRow 4", "-1,-1 0,0"},
        {"or no longer exists", "call LIST removeAllItems 0", "-1,-1 -1,0"},
    };
    for (const auto& [name, meanwhile, expected] : rows) {
        SCOPED_TRACE(name);
        startLists();
        play("move 180 200", "tick", "move 410 310", "tick");
        EXPECT_EQ(state(), "-1,-1 -1,0");
        play("move 420 310", "tick", meanwhile, "move 120 110", "tick");
        EXPECT_EQ(state(), expected);
        play("move 121 135", "tick");
        EXPECT_NE(list()->getHotItem(), 4) << "it is restored only once";
    }
    addRows(10);
    play("move 180 200", "tick", "move 410 310", "tick", "press left", "tick", "move 120 110", "tick",
         "move 410 310", "tick", "release left", "tick", "move 120 110", "tick");
    EXPECT_EQ(state(), "-1,-1 4,1") << "dragging a press over the list changes nothing";
    startLists("TITLES 'T'");
    for (const int item : {2, 3}) {
        play("move 180 " + std::to_string(130 + 24 * item), "tick", "move 410 310", "tick");
        list()->reset(0, 1);
        addRows(10);
        play("move 120 130", "tick");
        EXPECT_EQ(list()->getHotItem(), item == 2 ? 2 : 0)
            << "a reset forgets a hot row at the end of the page";
    }
}

} // namespace
