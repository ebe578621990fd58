#include "tests/unit/controls/listbox_fixture.h"

namespace {

using ListBoxDrawingTest = ListBoxTest;

TEST_F(ListBoxDrawingTest, AFrameFromBackToFront)
{
    startList(
        "COLUMNS 60 40 RIGHT 30 CENTRE; TITLES 'A' 'B' 'C'; LISTLOOK 24 1; ITEM 'a0' 'b0' 'c0'; ITEM 'a1'");
    list()->addDividerColumn(1);
    list()->addDividerColumn(0);
    list()->setSelectedItem(0);
    list()->setHotItem(0);
    const Drawn a = text("A").at(110, 106);
    const Drawn b = text("B").at(210, 106);
    const Drawn c = text("C").at(240, 106);
    EXPECT_EQ(drawn("LIST"), over(fill(185, 110, 186, 211, "#363636"), fill(115, 110, 116, 211, "#363636"),
                                  fill(100, 100, 300, 124, "#363636"), fill(100, 100, 300, 106, "#323232"),
                                  fill(100, 100, 300, 104, "#282828"), fill(100, 100, 300, 102, "#1e1e1e"), a,
                                  b, c, fill(100, 124, 300, 148, "#000080"),
                                  outline(100, 124, 300, 148, "#808080"), text("a0").at(110, 130),
                                  text("b0").at(200, 130), text("c0").at(235, 130), text("a1").at(110, 154)));
    list()->clearDividerColumns();
    list()->setTitleShaded(0);
    list()->removeAllItems(1);
    EXPECT_EQ(texts(), these(a, b, c)) << "titles are drawn without rows";
    list()->setVisible(0);
    EXPECT_EQ(drawn("LIST"), Trace{});
}

TEST_F(ListBoxDrawingTest, Highlights)
{
    bitmap("sel.bmp", 30, 10);
    bitmap("hot.bmp", 20, 8);
    const auto blue = [](int x, int y, int w) { return fill(x, y, x + w, y + 24, "#000080"); };
    const auto frame = [](int x, int y, int w) { return outline(x, y, x + w, y + 24, "#808080"); };
    const auto sel = [](int x, int y, int w) {
        return blit("sel.bmp").from(0, 0, 29, 9).to(x, y, w, 24).mode(2);
    };
    const auto hot = [](int x, int y, int w) {
        return blit("hot.bmp").from(0, 0, 19, 7).to(x, y, w, 24).mode(2);
    };
    const Drawn a = text("a").at(110, 106);
    const Drawn b = text("b").at(170, 106);
    const Drawn c = text("c").at(110, 130);
    const Drawn d = text("d").at(170, 130);
    const struct {
        const char* name;
        bool ofCells, bitmaps;
        const char* state;
        Trace drawn;
    } rows[] = {
        {"rows", false, false, "0,1 1,0", over(blue(100, 100, 200), a, b, frame(100, 124, 200), c, d)},
        {"bitmaps", false, true, "0,1 1,0", over(sel(100, 100, 200), a, b, hot(100, 124, 200), c, d)},
        {"one row", false, true, "1,1 1,0", over(a, b, sel(100, 124, 200), hot(100, 124, 200), c, d)},
        {"cells", true, false, "0,0 0,1", over(blue(110, 100, 50), a, frame(160, 100, 70), b, c, d)},
        {"one cell", true, false, "1,1 1,1", over(a, b, c, blue(170, 124, 50), frame(160, 124, 70), d)},
        {"with bitmaps", true, true, "0,0 1,1", over(sel(100, 100, 70), a, b, c, hot(160, 124, 70), d)},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        startList(std::string(row.bitmaps ? "LISTHIGHLIGHT 'sel.bmp' 'hot.bmp'\n" : "") +
                  "COLUMNS 50 50\nITEM \"a\" \"b\"\nITEM \"c\" \"d\"");
        list()->setBmpBlitMode(2);
        list()->setCellHighlight(row.ofCells);
        list()->setSelectedItem(row.state[0] - '0');
        list()->setSelectedColumn(row.state[2] - '0');
        list()->setHotItem(row.state[4] - '0');
        list()->setHotColumn(row.state[6] - '0');
        EXPECT_EQ(drawn("LIST"), row.drawn);
    }
}

TEST_F(ListBoxDrawingTest, Icons)
{
    bitmap("grid.bmp", 123, 49); // frames of 41 x 25, three in a row
    bitmap("short.bmp", 40, 10);
    bitmap("tall.bmp", 40, 60);
    bitmap("wide.bmp", 90, 24);
    bitmap("thin.bmp", 30, 24);
    startList("COLUMNS 40; LISTICONS 'grid.bmp' 'short.bmp' 'tall.bmp' 'wide.bmp' 'thin.bmp' 'none'");
    const auto icon = [](const char* file, int w, int h) { return blit(file).to(110, 100, w, h).mode(-1); };
    const auto frame = [&](int sx, int sy) { return icon("grid.bmp", 40, 24).from(sx, sy); };
    const Drawn low = icon("short.bmp", 40, 10).at(110, 107);
    const Drawn thin = icon("thin.bmp", 30, 24);
    const struct {
        const char *name, *cell;
        Trace drawn;
    } rows[] = {
        {"frame 0", "##ICON##0##FRAME##0", over(frame(0, 0))},
        {"frame 2", "##ICON##0##FRAME##2", over(frame(82, 0))},
        {"the grid continues in the next row", "##ICON##0##FRAME##3", over(frame(0, 25))},
        {"below the bitmap", "##ICON##0##FRAME##7", over(frame(41, 50))},
        {"far below", "##ICON##0##FRAME##2147483647", over(frame(41, 32767))},
        {"below 0", "##ICON##0##FRAME##-2", over(frame(0, 0))},
        {"whole", "##ICON##0##FRAME##-1", over(icon("grid.bmp", 40, 19).from(0, 0, 123, 49))},
        {"shorter than the row", "##ICON##1##FRAME##0", over(low)},
        {"taller", "##ICON##2##FRAME##0", over(icon("tall.bmp", 40, 24))},
        {"wider than the column", "##ICON##3##FRAME##0", over(icon("wide.bmp", 40, 24))},
        {"a row of two", "##ICON##3##FRAME##3", over(icon("wide.bmp", 40, 24).from(41, 25))},
        {"narrower", "##ICON##4##FRAME##0", over(thin)},
        {"too narrow for a grid", "##ICON##4##FRAME##1", over()},
        {"a missing file", "##ICON##5##FRAME##0", over()},
        {"no kind, no such icon", "##ICON##99", over()},
        {"text over it", "ab##ICON##1##FRAME##0", over(low, text("ab").at(110, 106))},
        {"the later of two", "##ICON##1##FRAME##0a##ICON##0##FRAME##2", over(low)},
        {"a frame takes precedence over progress", "##ICON##0##PROGRESS##50##FRAME##2", over(frame(82, 0))},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        setOnlyCell(row.cell);
        EXPECT_EQ(drawn("LIST"), row.drawn);
    }
    expectMessage("invalid argument in a frame"); // reported once
    setOnlyCell("##ICON##6##FRAME##0");
    play("frame 3");
    setOnlyCell("##ICON##4##FRAME##0");
    EXPECT_EQ(drawn("LIST"), over(thin)) << "frames are still drawn";
}

TEST_F(ListBoxDrawingTest, Progress)
{
    bitmap("panels.bmp", 201, 30);
    bitmap("half.bmp", 199, 10);
    const auto part = [](int x, int sx, int w) {
        return blit("panels.bmp").from(sx, 0).to(x, 100, w, 24).mode(-1);
    };
    const auto left = AWnd::TJ_LEFT;
    const struct {
        const char* name;
        AWnd::E_TEXTJUSTIFY justify;
        const char* cell;
        Trace drawn;
    } rows[] = {
        {"a quarter", AWnd::TJ_CENTRE, "0##PROGRESS##25", over(part(110, 0, 25), part(135, 126, 75))},
        {"from the right", AWnd::TJ_RIGHT, "0##PROGRESS##25", over(part(110, 101, 75), part(185, 75, 25))},
        {"fixed point", left, "0##PROGRESS##13", over(part(110, 0, 12), part(122, 113, 88))},
        {"nothing yet", left, "0##PROGRESS##0", over(part(110, 0, 0), part(110, 101, 100))},
        {"all", left, "0##PROGRESS##100", over(part(110, 0, 100), part(210, 201, 0))},
        {"-1 is frame 0", left, "0##PROGRESS##-1", over(part(110, 0, 100))},
        {"one panel", left, "1##PROGRESS##50", over(blit("half.bmp").to(110, 100, 50, 10).mode(-1))},
    };
    startList("LISTICONS 'panels.bmp' 'half.bmp'");
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        list()->reset(1, 0);
        list()->addColumn(100, row.justify);
        setOnlyCell(std::string("##ICON##") + row.cell);
        EXPECT_EQ(drawn("LIST"), row.drawn);
    }
}

TEST_F(ListBoxDrawingTest, ATitleExtendsOverColumnsWithoutTitles)
{
    using enum AWnd::E_TEXTJUSTIFY;
    const auto at = [](int x, const char* shown) { return text(shown).at(x, 106); };
    const struct {
        const char* name;
        AWnd::E_TEXTJUSTIFY justify;
        const char* titles[3];
        Trace drawn;
    } rows[] = {
        {"over empty titles", TJ_LEFT, {"ABCDEFGH", "", ""}, these(at(110, "ABCDEFGH"))},
        {"over no titles", TJ_LEFT, {"ABCDEFGH"}, these(at(110, "ABCDEFGH"))},
        {"up to the next", TJ_LEFT, {"ABCDEFGH", "", "X"}, these(at(110, "ABCDEFG"), at(190, "X"))},
        {"directly before another title", TJ_LEFT, {"ABCDEFGH", "X"}, these(at(110, "ABC"), at(150, "X"))},
        {"up to the last column", TJ_LEFT, {"", "ABCDEFGH"}, these(at(150, "ABCDEFG"))},
        {"centred titles are not extended", TJ_CENTRE, {"ABCDEFGH"}, these(at(110, "ABC"))},
        {"up to the right end", TJ_RIGHT, {"ABCDEFGH"}, these(at(140, "ABCDEFGH"))},
        {"no further than needed", TJ_RIGHT, {"ABCDEF"}, these(at(120, "ABCDEF"))},
    };
    startList("");
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        list()->reset(1, 0);
        for (int i = 0; i < 3; ++i)
            list()->addColumn(30, row.justify);
        for (int i = 0; i < 3 && row.titles[i]; ++i)
            list()->setTitle(i, row.titles[i]);
        EXPECT_EQ(texts(), row.drawn);
    }
    setOnlyCell("ABCDEFGH");
    EXPECT_EQ(texts(), these(at(120, "ABCDEF"), text("ABC").at(110, 130))) << "rows are cut";
}

TEST_F(ListBoxDrawingTest, FontsOfRowsAndColumns)
{
    std::string fonts;
    for (int i = 0; i < 4; ++i) {
        expectMessage("cannot load none.ttf");
        fonts += "ADDFONT 'none.ttf' '' 12 0\n";
    }
    startList(fonts +
              "COLUMNS 30 30\nTITLES \"T\" \"T\"\nLISTFONTS 1 2 3 4\nITEM \"a\" \"a\"\nITEM \"b\" \"b\"\n"
              "ITEM \"c\" \"c\"");
    list()->addFontRow1(0);
    list()->addFontRow1(1);
    list()->addFontRow2(1);
    list()->addFontRow2(2);
    list()->addFontRow3(2);
    /// Compares the fonts of four lines with two columns each.
    const auto inFonts = [this](std::initializer_list<int> expected) {
        std::vector<int> fontsOfTexts;
        drawn("LIST");
        for (const DrawCommand& command : win().getLastFrame().commands())
            if (command.op == DrawOp::TextOut)
                fontsOfTexts.push_back(static_cast<int>(command.subject) - 1);
        return fontsOfTexts == std::vector<int>(expected);
    };
    EXPECT_TRUE(inFonts({4, 4, 1, 1, 2, 2, 3, 3})) << "the last rule that matches applies";
    list()->addFontColumn(1);
    list()->setRowFont(3, nullptr);
    EXPECT_TRUE(inFonts({4, 4, 1, 1, 2, 1, 2, 1}))
        << "a font column takes precedence over font rows, except in the title";
    list()->setRowFont(1, nullptr);
    list()->clearFontRows2();
    list()->setTitleFont(nullptr);
    EXPECT_TRUE(inFonts({0, 0, 0, 0, 0, 0, 0, 0}));
    list()->setRowFont(1, win().getFont(1));
    EXPECT_TRUE(inFonts({0, 0, 1, 1, 1, 1, 0, 1}));
    list()->removeAllItems(1);
    setOnlyCell("a");
    list()->setItemData(0, 1, CString("b"));
    EXPECT_TRUE(inFonts({0, 0, 0, 0})) << "an emptied list has no fonts of rows and columns";
    list()->setFont(nullptr);
    EXPECT_TRUE(inFonts({})) << "no font, no text";
}

TEST_F(ListBoxDrawingTest, AZeroIsShownAsADash)
{
    startList("COLUMNS 60; TITLES '0'; LISTOPTIONS 1");
    const char* const rows[][2] = {{"0", "-"},         {"0.0", "-"},       {"00", "00"}, {"0.00", "0.00"},
                                   {"  0.0", "  0.0"}, {"0##ICON##", "0"}, {"10", "10"}};
    const Drawn title = text("-").at(110, 106);
    for (const auto& [cell, shown] : rows) {
        setOnlyCell(cell);
        EXPECT_EQ(texts(), these(title, text(shown).at(110, 130))) << cell;
    }
    list()->setZeroAsDash(0);
    setOnlyCell("0");
    EXPECT_EQ(texts(), these(text("0").at(110, 106), text("0").at(110, 130)));
}

TEST_F(ListBoxDrawingTest, NumberOfVisibleRows)
{
    const auto at = [](int y, const char* shown) { return text(shown).at(110, y); };
    const struct {
        const char* name;
        int height;
        const char* attributes;
        int percentage;
        Trace drawn;
    } rows[] = {
        {"a row at the edge is not drawn", 72, "", 0, these(at(106, "r0"), at(130, "r1"))},
        {"one pixel more", 73, "", 0, these(at(106, "r0"), at(130, "r1"), at(154, "r2"))},
        {"scrolled", 73, "", 100, these(at(106, "r7"), at(130, "r8"), at(154, "r9"))},
        {"beyond the end", 73, "", 130, these(at(106, "r9"))},
        {"the title always", 20, "TITLES 'T'", 0, these(at(106, "T"))},
        {"taller rows", 73, "LISTLOOK 36", 0, these(at(112, "r0"), at(148, "r1"))},
        {"a border and an offset move everything inwards", 77, "BORDER 'edge.bmp' 3 6; TEXTOFFSET 5 7", 100,
         these(text("r8").at(118, 116), text("r9").at(118, 140))},
    };
    strip("edge.bmp", 6, 6, 8);
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        startList(std::string("COLUMNS 60\n") + row.attributes, "", row.height);
        addRows(10);
        list()->scrollTo(ZnFixed::fromInt(row.percentage));
        EXPECT_EQ(texts(), row.drawn);
    }
    while (list()->getItemCount() > 1)
        list()->removeItem(0);
    list()->setFirstVisibleItem(-3);
    list()->setHotItem(0);
    EXPECT_EQ(texts(), these(text("r9").at(118, 116))) << "drawn from the first row, without the others";
    EXPECT_EQ(drawn("LIST").operations("rectangle"), these(outline(103, 110, 281, 134, "#808080")));
}

TEST_F(ListBoxDrawingTest, RowsAppearOneByOne)
{
    startList("COLUMNS 50; ITEM 'a'; ITEM 'b'; ITEM 'c'; ITEM 'd'; LISTOPTIONS 0 1");
    list()->startup();
    EXPECT_EQ(texts(), Trace{}) << "a frame of 0 ticks reveals nothing";
    for (int i = 0; i < 3 && list()->getRevealedItems() == 0; ++i)
        play("draw");
    std::string counts;
    for (int i = 0; i < 10; ++i) {
        counts += std::to_string(list()->getRevealedItems());
        play("draw");
    }
    EXPECT_EQ(counts, "1112223334");
    list()->startup();
    play("draw 3");
    EXPECT_EQ(texts(), these(text("a").at(110, 106)));
    list()->setGradualReveal(0);
    play("draw");
    EXPECT_EQ(list()->getRevealedItems(), 4) << "without gradualReveal all rows appear at once";
    list()->setGradualReveal(1);
    list()->reset(0, 0);
    EXPECT_EQ(list()->getRevealedItems(), 0);
}

TEST_F(ListBoxDrawingTest, SlidingRows)
{
    startList("COLUMNS 50; TITLES 'T'; ITEM 'a'");
    list()->setSelectedItem(0);
    const struct {
        const char* name;
        int slide; // raw
        int y[4];  // frame by frame
    } rows[] = {
        {"from below", 2 * 4096, {132, 131, 130, 130}},
        {"from above", -2 * 4096, {128, 129, 130, 130}},
        {"fractions of a pixel are not visible", -6144, {129, 130, 130, 130}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        list()->setRowSlide(ZnFixed::fromRaw(row.slide));
        for (const int y : row.y) {
            EXPECT_EQ(drawn("LIST"), over(text("T").at(110, 106), fill(100, 124, 300, 148, "#000080"),
                                          text("a").at(110, y)));
            play("draw");
        }
    }
}

TEST_F(ListBoxDrawingTest, TheHotBorderIsDrawnBelowTheRows)
{
    strip("glow.bmp", 60, 60, 8);
    expectMessage("cannot load none.bmp");
    startList("COLUMNS 50; ITEM 'a'; WNDPOS 100 100 120 120; BORDER 'none.bmp' 0 60 'glow.bmp'");
    const auto corner = [](int piece, int x, int y) {
        return blit("glow.bmp").from(piece * 61, 0).to(x, y, 60, 60).mode(-1);
    };
    const Drawn area = dirty(100, 100, 220, 220);
    const Drawn a = text("a").at(110, 106);
    EXPECT_EQ(drawn("LIST"), these(area, a));
    play("move 220 220", "tick");
    EXPECT_EQ(drawn("LIST"), these(corner(0, 100, 100), corner(2, 160, 100), corner(6, 100, 160),
                                   corner(4, 160, 160), area, a));
    play("move 221 220", "tick");
    EXPECT_EQ(drawn("LIST"), these(area, a));
}

TEST_F(ListBoxDrawingTest, TheScrollBarNarrowsTheRowsAndIsDrawnAboveThem)
{
    bitmap("title.bmp", 50, 20);
    startList("COLUMNS 50; TITLES 'T'; LISTLOOK 24 1", "", 76);
    addRows(3);
    list()->setSelectedItem(0);
    const auto piece = [](int frame, int y) {
        return blit("uig\\scroll1.bmp").from(frame * 17, 0).to(284, y, 16, 26).mode(-1);
    };
    const Drawn up = piece(0, 124);
    const Drawn down = piece(2, 150);
    const Drawn lever = piece(5, 150); // two pieces high, although the bar has no room for it
    const auto band = [](int height, const char* colour) {
        return fill(100, 100, 300, 100 + height, colour);
    };
    EXPECT_EQ(drawn("LIST"), these(up, down, lever, dirty(100, 100, 300, 176), band(24, "#363636"),
                                   band(6, "#323232"), band(4, "#282828"), band(2, "#1e1e1e"),
                                   text("T").at(110, 106), fill(100, 124, 284, 148, "#000080"),
                                   text("r0").at(110, 130), text("r1").at(110, 154), up, down, lever));
    list()->setTextOffset(5, 0);
    list()->setSelectedItem(-1);
    EXPECT_EQ(drawn("LIST").operations("fillrect"),
              these(fill(105, 100, 191, 124, "#363636"), fill(105, 100, 191, 106, "#323232"),
                    fill(105, 100, 191, 104, "#282828"), fill(105, 100, 191, 102, "#1e1e1e")))
        << "with a text offset the rows end with the columns";
    list()->setTitleBmpFile("title.bmp");
    list()->startup();
    list()->setEnabled(0);
    EXPECT_EQ(drawn("LIST").operations("blit"),
              these(up, down, lever, blit("title.bmp").from(0, 0, 49, 19).to(100, 100, 200, 24)))
        << "a disabled list does not draw its bar again";
}

} // namespace
