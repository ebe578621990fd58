#include "platform/display/surface.h"
#include "tests/unit/controls/listbox_fixture.h"

namespace {

using ListBoxModelTest = ListBoxTest;

TEST_F(ListBoxModelTest, SettingACellThatHasAValue)
{
    startList("COLUMNS 50 50; ITEM '' ''");
    const char* const rows[][4] = {
        {"text replaces text", "a", "setItemData 0 1 \"b\"", "b"},
        {"a number has no separators", "a", "setItemData 0 1 -12345", "-12345"},
        {"fixed point has two decimals", "a", "setItemData 0 1 1.25", "1.25"},
        {"its zero has blanks", "a", "setItemData 0 1 0.0", "  0.0"},
        {"an icon is appended to text", "a", "setItemDataWithIconIndex 0 1 2 -1", "a##ICON##2##FRAME##-1"},
        {"so does progress", "a", "setItemDataWithIconPercentage 0 1 2 25", "a##ICON##2##PROGRESS##25"},
        {"text is placed before an icon", "##ICON##2##FRAME##0", "setItemData 0 1 7", "7##ICON##2##FRAME##0"},
        {"also before existing text", "a##ICON##2", "setItemData 0 1 \"b\"", "ba##ICON##2"},
        {"an icon is placed before an icon", "a##ICON##2", "setItemDataWithIconIndex 0 1 3 1",
         "##ICON##3##FRAME##1a##ICON##2"},
        {"any text with a mark is an icon", "a", "setItemData 0 1 \"b##ICON##\"", "ab##ICON##"},
        {"a frame alone is text", "##FRAME##1", "setItemData 0 1 \"b\"", "b"},
    };
    for (const auto& [name, before, line, after] : rows) {
        SCOPED_TRACE(name);
        list()->removeAllItems(0);
        list()->addItem();
        list()->setItemData(0, 1, CString(before));
        EXPECT_EQ(callList(line), "1");
        EXPECT_EQ(list()->getItemText(0, 1), after);
    }
}

TEST_F(ListBoxModelTest, RowsAndColumnsOutsideTheTable)
{
    startList("COLUMNS 50 50; TITLES 'A'; ITEM 'a' 'b'; ITEM 'c' 'd'");
    const char* const exception = R"({"error": "invalid argument"})";
    const char* const rows[][3] = {
        {"a column beyond the limit", "setItemData 0 20 \"x\"", "0"},
        {"a row", "setItemData 2 0 \"x\"", exception},
        {"a column that this list does not have", "setItemData 0 2 \"x\"", exception},
        {"a column below 0", "setItemData 0 -1 \"x\"", exception},
        {"progress", "setItemDataWithIconPercentage 2 1 0 50", exception},
        {"wrapped text in a row below 0", "setItemDataWithWrap -1 0 \"some more text\"", exception},
        {"wrapped text in a column", "setItemDataWithWrap 0 2 \"x\"", exception},
        {"a width", "getColumnWidth 2", exception},
        {"a title below 0", "setTitle -1 \"x\"", exception},
        {"a row to remove", "removeItem 2", exception},
        {"the text of a cell", "getItemText 2 0", "\"\""},
        {"the text below 0", "getItemText 0 -1", "\"\""},
        {"a cell's selectability", "isNonSelectable 9 9", "0"},
    };
    for (const auto& [name, line, value] : rows) {
        SCOPED_TRACE(name);
        EXPECT_EQ(callList(line), value);
        EXPECT_EQ(cells(), "a b|c d") << "nothing changes";
    }
}

TEST_F(ListBoxModelTest, ColumnsRowsAndTitles)
{
    startList("");
    EXPECT_EQ(list()->addItem(), -1) << "no row without a column";
    EXPECT_EQ(list()->getItemCount(), 0);
    list()->addColumn("wide", AWnd::TJ_LEFT);
    EXPECT_EQ(list()->getColumnWidth(0), 40) << "as wide as its text";
    for (int i = 1; i <= AListBox::maxColumns; ++i)
        list()->addColumn(i, AWnd::TJ_LEFT);
    EXPECT_EQ(list()->getColumnCount(), 20) << "further columns are ignored";
    EXPECT_EQ(list()->addItem(), 0);
    EXPECT_EQ(list()->setItemData(0, 19, CString("last")), 1);

    EXPECT_EQ(list()->getItemsPerPage(), 5);
    list()->setTitle(3, "T");
    EXPECT_EQ(list()->getItemsPerPage(), 4) << "one title adds the title row";
    const struct {
        int rowHeight, rowsOfPage;
    } heights[] = {{30, 3}, {200, -1}, {0, 120}, {-5, 120}};
    for (const auto& row : heights) {
        list()->setRowHeight(row.rowHeight);
        EXPECT_EQ(list()->getItemsPerPage(), row.rowsOfPage) << row.rowHeight;
        play("move 150 150", "frame");
    }
}

TEST_F(ListBoxModelTest, WrappedTextIsSplitIntoRows)
{
    const struct {
        const char* name;
        int width;
        const char* text;
        const char* cells; // the text is set in the second row; the others have x in the first column
    } rows[] = {
        {"a text that fits stays whole", 70, "one two", "x |x one two|x "},
        {"three words, three rows", 50, "one two three", "x |x one|x | two| three"},
        {"as many words as fit", 70, "one two four", "x |x one two|x | four"},
        {"consecutive blanks: the first is the break", 40, "ab  cdef", "x |x ab|x |  cdef"},
        {"a long word loses a letter at the break", 50, "abcdefghij kl", "x |x abcde|x | ghij kl"},
        {"a single last letter is lost", 50, "aaaaaa b", "x |x aaaaaa|x "},
        {"a width of 0", 0, "abcd", "x |x |x | | cd"},
        {"a negative width", -5, "abc", "x |x |x | | bc"},
    };
    startList("");
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        list()->reset(1, 0);
        list()->addColumn(10, AWnd::TJ_LEFT);
        list()->addColumn(row.width, AWnd::TJ_LEFT);
        for (int i = 0; i < 3; ++i)
            list()->setItemData(list()->addItem(), 0, CString("x"));
        EXPECT_EQ(list()->setItemDataWithWrap(1, 1, row.text), 1);
        EXPECT_EQ(cells(), row.cells);
    }
}

TEST_F(ListBoxModelTest, RowAndColumnOfAPositionAreClearedTogether)
{
    startList("COLUMNS 50 50; ITEM 'a'; ITEM 'b'");
    const char* const rows[][2] = {
        {"setSelectedItem 1", "1,-1 -1,0"},
        {"setSelectedColumn 1", "1,1 -1,0"},
        {"setSelectedItem 2", "1,1 -1,0"},
        {"setSelectedColumn 2", "1,1 -1,0"},
        {"setHotItem 0", "1,1 0,0"},
        {"setHotColumn 1", "1,1 0,1"},
        {"setHotItem 2", "1,1 0,1"},
        {"setHotColumn 2", "1,1 0,1"},
        {"setHotColumn -1", "1,1 -1,-1"},
        {"setSelectedItem -1", "-1,-1 -1,-1"},
        {"setSelectedItem 0", "0,-1 -1,-1"},
        {"setHotItem 1", "0,-1 1,-1"},
        {"setSelectedColumn -1", "-1,-1 1,-1"},
        {"setHotItem -1", "-1,-1 -1,-1"},
    };
    for (const auto& [line, expected] : rows) {
        play(std::string("call LIST ") + line);
        EXPECT_EQ(state(), expected) << line;
    }
}

TEST_F(ListBoxModelTest, WhatRemainsAfterEmptyingTheList)
{
    const struct {
        const char* call;
        int rowIsFixed, columns, page, first, percentage;
    } rows[] = {
        {"removeAllItems 0", 1, 2, 4, 6, 409600},
        {"removeAllItems 1", 0, 2, 4, 6, 409600},
        {"reset 0 0", 0, 2, 4, 6, 409600},
        {"reset 0 1", 0, 2, 4, 0, 0},
        {"reset 1 1", 0, 0, 5, 0, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.call);
        startList("COLUMNS 50 50; TITLES 'A'; LISTFIXEDROWS 1; LISTFIXEDCOLUMNS 1");
        addRows(10);
        list()->scrollToLastItem();
        list()->setSelectedItem(7);
        list()->setHotItem(8);
        ASSERT_EQ(bar()->isVisible(0), 1);

        EXPECT_EQ(callList(row.call), "1");
        EXPECT_EQ(list()->getItemCount(), 0);
        EXPECT_EQ(list()->isNonSelectable(1, 0), row.rowIsFixed);
        EXPECT_EQ(list()->isNonSelectable(0, 1), 1) << "fixed columns stay";
        EXPECT_EQ(list()->getColumnCount(), row.columns);
        EXPECT_EQ(list()->getItemsPerPage(), row.page);
        EXPECT_EQ(first(), row.first);
        EXPECT_EQ(bar()->getPercentage().raw, row.percentage);
        EXPECT_EQ(bar()->isVisible(0), 0);
        EXPECT_EQ(state(), "7,-1 8,0") << "the caller must set them again";
    }
}

TEST_F(ListBoxModelTest, RemovingARowOnThePageScrollsTheList)
{
    startList("COLUMNS 50 50");
    const struct {
        const char* name;
        int first, removed, firstAfter;
    } rows[] = {
        {"at the top", 0, 2, 0},       {"above the page", 3, 2, 3}, {"first of the page", 3, 3, 2},
        {"last of the page", 3, 7, 2}, {"after the page", 3, 8, 3},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        list()->reset(0, 1);
        addRows(10);
        list()->scrollTo(ZnFixed::fromInt(20 * row.first));
        ASSERT_EQ(first(), row.first);
        list()->removeItem(row.removed);
        EXPECT_EQ(first(), row.firstAfter);
        EXPECT_EQ(list()->getItemText(row.removed, 0).str(), "r" + std::to_string(row.removed + 1));
        EXPECT_EQ(list()->getItemCount(), 9);
    }
}

TEST_F(ListBoxModelTest, NonSelectableCells)
{
    startList("VISIBLE 0; COLUMNS 50 50; LISTFIXEDROWS 1 3; ITEM 'a##ICON##' 'ICON0'; ITEM 'b'; ITEM '' 'c'");
    const struct {
        const char* name;
        int item, column, fixed, fixedWithBlanks;
    } rows[] = {
        {"text with an icon", 0, 0, 0, 0}, {"an icon alone", 0, 1, 0, 1}, {"a fixed row", 1, 0, 1, 1},
        {"an empty cell", 2, 0, 0, 1},     {"text", 2, 1, 0, 0},          {"outside the table", 9, 0, 0, 1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        list()->setBlankCellsNonSelectable(0);
        EXPECT_EQ(list()->isNonSelectable(row.item, row.column), row.fixed);
        list()->setBlankCellsNonSelectable(1);
        EXPECT_EQ(list()->isNonSelectable(row.item, row.column), row.fixedWithBlanks);
    }
}

TEST_F(ListBoxModelTest, ASecondStartupLoadsMissingBitmapsAndNoIconTwice)
{
    bitmap("one.bmp", 40, 20);
    bitmap("game.bmp", 40, 20);
    bitmap("late.bmp", 40, 20);
    for (int i = 0; i < 3; ++i) { // for each startup
        expectMessage("cannot load sel.bmp");
        expectMessage("cannot load hot.bmp");
    }
    expectMessage("cannot load title.bmp");
    startList(R"(COLUMNS 60; LISTICONS 'one.bmp' 'none.bmp'; LISTHIGHLIGHT 'sel.bmp' 'hot.bmp'
        TITLEBMP 'title.bmp'; ITEM 'ICON1'; ITEM 'ICON0')");
    surface* icon = win().createsprite("game.bmp", -1, -1, -1);
    EXPECT_EQ(list()->addIcon(icon), 2) << "a missing file keeps its index";
    EXPECT_EQ(list()->addIcon(icon), 3);
    const int row = list()->addItem();
    list()->setItemData(row, 0, icon, 0);
    EXPECT_EQ(list()->getItemText(row, 0), "##ICON##2##FRAME##0") << "the first entry with this bitmap";

    bitmap("title.bmp", 30, 20);
    const int before = win().getSurfaceCount();
    list()->addIconFile("late.bmp");
    list()->returned();
    list()->startup();
    EXPECT_EQ(win().getSurfaceCount(), before + 2) << "the title and the new icon, once";
    list()->setTitle(0, "");
    list()->addItem();
    list()->setItemData(3, 0, CString("##ICON##4##FRAME##0"));
    play("frame 2");
    const auto at = [](int y, const char* file) { return blit(file).to(110, y, 40, 20).mode(-1); };
    const Drawn title = blit("title.bmp").from(0, 0, 29, 19).to(100, 100, 200, 24);
    EXPECT_EQ(drawn("LIST").operations("blit"),
              these(title, at(150, "one.bmp"), at(174, "game.bmp"), at(198, "late.bmp")));
    win().deleteSurface(icon);
    EXPECT_EQ(drawn("LIST").operations("blit"), these(title, at(150, "one.bmp"), at(198, "late.bmp")))
        << "a released bitmap keeps its index";
}

TEST_F(ListBoxModelTest, MoreRowsThan16BitsCanCount)
{
    startList("COLUMNS 50; TITLES 'A'");
    addRows(40000);
    EXPECT_EQ(list()->getItemCount(), 40000);
    EXPECT_EQ(list()->getRevealedItems(), 32767);
    list()->scrollTo(ZnFixed::fromRaw(204800));
    EXPECT_EQ(first(), 19998);
    list()->setHotItem(19999);
    play("move 150 130", "frame 2", "press left", "tick", "release left", "tick", "key down", "tick");
    EXPECT_EQ(state(), "19998,0 19999,0");
    list()->scrollToLastItem();
    play("frame", "press left", "tick", "key down", "tick", "frame", "wheel up", "tick", "frame");
    EXPECT_EQ(list()->getItemText(39999, 0), "r39999");
}

TEST_F(ListBoxModelTest, Statements)
{
    const char* const rows[][4] = {
        {"a justification follows its width", "COLUMNS 100 RIGHT 50", "getColumnWidth 1", "50"},
        {"any other word is a column without width", "COLUMNS 70 VISIBLE", "getColumnWidth 1", "0"},
        {"also a word at the start", "COLUMNS RIGHT 50", "getColumnWidth 0", "0"},
        {"without columns one as wide as the list is added", "ITEM 'a'", "getColumnWidth 0", "200"},
        {"a row of texts", "COLUMNS 9 9; ITEM 'a' 'F2'", "getItemText 0 1", "\"F2\""},
        {"an empty row", "COLUMNS 9; ITEM; ITEM 'a'", "getItemText 1 0", "\"a\""},
        {"a number has no text", "ITEM 5", "getItemText 0 0", "\"\""},
        {"an icon", "ITEM 'ICON3'", "getItemText 0 0", "\"##ICON##3##FRAME##0\""},
        {"an icon with a frame", "ITEM 'ICON3F-1'", "getItemText 0 0", "\"##ICON##3##FRAME##-1\""},
        {"the first F is used", "ITEM 'ICON1F2F3'", "getItemText 0 0", "\"##ICON##1##FRAME##2\""},
        {"a word that begins with ICON", "ITEM 'ICONS'", "getItemText 0 0", "\"##ICON##0##FRAME##0\""},
        {"ICON must begin the text, in upper case", "ITEM 'IconICON3'", "getItemText 0 0", "\"IconICON3\""},
        {"a row height of 0", "LISTLOOK 0", "getRowHeight", "0"},
        {"a negative row height is ignored", "LISTLOOK -1 1 1", "getRowHeight", "24"},
        {"but its flags are set: title", "LISTLOOK -1 3 1", "getTitleShaded", "1"},
        {"but its flags are set: cells", "LISTLOOK -1 1 3", "getCellHighlight", "1"},
        {"a row height alone", "LISTLOOK 30 0 1\nLISTLOOK 31", "getCellHighlight", "1"},
        {"a dash for zero: the lowest bit", "LISTOPTIONS 2 1", "getZeroAsDash", "0"},
        {"gradual", "LISTOPTIONS 2 3", "getGradualReveal", "1"},
        {"gradual reveal left out", "LISTOPTIONS 1 1\nLISTOPTIONS 0", "getGradualReveal", "1"},
        {"fixed rows add up", "LISTFIXEDROWS 1 2\nLISTFIXEDROWS 5", "isNonSelectable 2 0", "1"},
        {"fixed columns", "LISTFIXEDCOLUMNS 4 -1", "isNonSelectable 0 -1", "1"},
        {"the keyword alone does nothing",
         R"(COLUMNS; LISTOPTIONS; LISTFONTS; LISTICONS; LISTFIXEDROWS; LISTFIXEDCOLUMNS; TITLES
             SCROLLBARINFO 'x' 3)",
         "getItemsPerPage", "5"},
    };
    for (const auto& [name, lines, line, value] : rows) {
        SCOPED_TRACE(name);
        startList(std::string("VISIBLE 0\n") + lines); // the icons are missing
        EXPECT_EQ(callList(line), value);
    }
}

TEST_F(ListBoxModelTest, StatementsThatFail)
{
    const struct {
        const char *name, *lines;
        int failing; // number of the line that fails, from 1
        const char* cells;
    } rows[] = {
        {"more cells than columns", "COLUMNS 9 9; ITEM 'a' 'b'; ITEM 'c' 'd' 'e' 'f'", 3, "a b|c d"},
        {"a font outside the table", "VISIBLE 0; COLUMNS 9; ITEM 'a'; LISTFONTS 0 1", 4, "a"},
        {"a column after a row", "VISIBLE 0; COLUMNS 9; ITEM 'a'; COLUMNS 9; ITEM 'b' 'c'", 5, "a |b "},
        {"no row height", "LISTLOOK; ITEM 'a'", 1, "a"},
        {"one highlight", "LISTHIGHLIGHT 'x.bmp'; ITEM 'a'", 1, "a"},
        {"two title bitmaps", "TITLEBMP 'x.bmp' 'y.bmp'; ITEM 'a'", 1, "a"},
        {"scroll bar info without a width", "SCROLLBARINFO 'x.bmp'; ITEM 'a'", 1, "a"},
    };
    const auto expectFailure = [this](int line) {
        expectMessage("Encountered an error on line " + std::to_string(line) +
                      " in script.tgx\nThe line is :\n\t");
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        expectFailure(4 + row.failing);
        startList(row.lines);
        EXPECT_EQ(cells(), row.cells);
    }
    // On another window all lines except the last fail.
    const char* const lines =
        R"(COLUMNS 9; ITEM 'a'; LISTOPTIONS 1; LISTHIGHLIGHT 'x'; LISTFONTS 0; LISTICONS 'x'; LISTLOOK
            LISTFIXEDCOLUMNS 1; LISTFIXEDROWS 1; TITLEBMP; TITLES 'A'; SCROLLBARINFO 'x' 3;)";
    for (int i = 0; i < 11; ++i)
        expectFailure(8 + i);
    startList("", std::string("BUTTON \"B\" 0 0 9 9 \"\"\nBEGIN\n") + lines + "END");
}

} // namespace
