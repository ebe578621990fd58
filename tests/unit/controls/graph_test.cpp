#include "tests/unit/support/tgx_test.h"
#include "tgx/controls/graph.h"

namespace {

Drawn line(int x1, int y1, int x2, int y2, const std::string& colour = "#ffff00")
{
    return fill(x1, y1, x2, y2, colour).setRaw("op", "\"line\"").set("width", 2);
}

/// Boxes of 200 x 100 pixels: with both ranges at 10, a position is 20 pixels wide and a value 10 pixels
/// high.
class GraphTest : public TgxTest {
protected:
    void SetUp() override
    {
        start("SCREEN 'S' 0 0 640 480 '' { "
              "BARGRAPH 'BARS' 100 100 200 100; LINEGRAPH 'LINES' 100 100 200 100 }");
        measureFont(0);
    }
    AGraph* graph(const std::string& id) { return static_cast<AGraph*>(wnd(id)); }
    /// Call n has the colour n n n.
    void add(const std::string& id, std::initializer_list<int> values, int series = 0, const char* label = "")
    {
        for (int value : values)
            graph(id)->addData(value, label, 0x010101u * static_cast<unsigned>(++calls), series);
    }
    Trace operations(const std::string& id, const std::string& op) { return drawn(id).operations(op); }

    int calls = 0;
};

TEST_F(GraphTest, GridNumbersAndAxes)
{
    const Drawn box = dirty(100, 100, 300, 200);
    const Drawn yAxis = outline(99, 100, 100, 200, "#000000");
    const Drawn xAxis = outline(99, 200, 300, 201, "#000000");
    const auto row = [](int y) { return outline(100, y, 300, y + 1, "#ff0000"); };
    const auto column = [](int x) { return outline(x, 100, x + 1, 200, "#ff0000"); };
    const auto number = [](const char* shown, int x, int y) { return text(shown).at(x, y).mode(1); };
    const auto under = [](const char* shown, int x) { return text(shown).at(x, 207); };
    const auto set = [&](const char* operation) {
        play("call BARS " + std::string(operation), "call LINES " + std::string(operation));
    };

    for (const char* operation : {"setXGridEvery 5", "setYGridEvery 4", "setXLabelEvery 3",
                                  "setYLabelEvery 7", "setFirstXLabel -6", "setGridColour 0x0000ff"})
        set(operation);
    EXPECT_EQ(drawn("BARS"),
              (Trace{box, number("0", 85, 194), row(160), number("7", 85, 124), row(120), under("-3", 140),
                     column(200), under("0", 210), under("3", 270), column(300), yAxis, xAxis}));
    EXPECT_EQ(drawn("LINES"),
              (Trace{box, number("0", 85, 194), row(160), number("7", 85, 124), row(120),
                     number("-6", 90, 205), number("-3", 150, 205), column(200), number("0", 215, 205),
                     number("3", 275, 205), column(300), yAxis, xAxis}));
    for (const char* operation :
         {"setXGridEvery 0", "setYGridEvery -1", "setXLabelEvery -4", "setYLabelEvery 0"})
        set(operation);
    EXPECT_EQ(drawn("LINES"), (Trace{box, yAxis, xAxis}));
    play("call LINES setVisible 0");
    EXPECT_EQ(drawn("LINES"), Trace{box});
}

TEST_F(GraphTest, GrowsOverTheFrames)
{
    add("BARS", {8});
    add("LINES", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
    const struct {
        int frame, barTop, segments; // the axis is at 200
    } rows[] = {{1, 200, 0},  {2, 196, 1},   {3, 192, 1},   {11, 160, 5},
                {12, 156, 6}, {20, 124, 10}, {21, 120, 10}, {30, 120, 10}};
    int frame = 0;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.frame);
        for (; frame < row.frame; ++frame)
            play("frame");
        const Trace bar = frameDrawn().operations("fillrect");
        EXPECT_EQ(bar, row.barTop == 200 ? Trace{} : Trace({fill(101, row.barTop, 120, 200, "#010101")}));
        const auto commands = win().getLastFrame().commands();
        EXPECT_EQ(std::ranges::count(commands, DrawOp::Line, &DrawCommand::op), row.segments);
    }
    play("call BARS removeAll 0");
    EXPECT_EQ(graph("BARS")->getGrowth().raw, 4096);
    play("call BARS removeAll 1", "call BARS draw 3", "call BARS draw 0", "call BARS setVisible 0",
         "call BARS draw 1");
    EXPECT_EQ(graph("BARS")->getGrowth().raw, 612) << "by the ticks of the frames in which it was visible";
}

TEST_F(GraphTest, BarsAndTheirLabels)
{
    play("call BARS setXLabelEvery 0", "call BARS setYLabelEvery 0");
    play("call BARS draw 30");
    const struct {
        const char* name;
        int value, showEmptyBars;
        const char* label;
        Trace fills;
        Drawn shown;
    } rows[] = {
        {"a bar", 5, 0, "^", {fill(101, 150, 120, 200, "#010101")}, text("^").at(105, 138)},
        {"0 has a label only", 0, 0, "ab", {}, text("ab").at(100, 188)},
        {"or a line", 0, 1, "ab", {fill(100, 199, 120, 200, "#010101")}, text("ab").at(100, 188)},
        {"a negative value has no bar", -2, 1, "ab", {}, text("ab").at(100, 208)},
        {"however low", INT_MIN, 1, "ab", {}, text("ab").at(100, 524476)},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        play("call BARS removeAll 0");
        calls = 0;
        graph("BARS")->setShowEmptyBars(row.showEmptyBars);
        add("BARS", {row.value}, 0, row.label);
        EXPECT_EQ(operations("BARS", "fillrect"), row.fills);
        EXPECT_EQ(operations("BARS", "textout"), Trace{row.shown});
    }

    play("call BARS removeAll 1");
    add("BARS", {-2});
    EXPECT_EQ(operations("BARS", "fillrect"), Trace{}) << "a negative value has no bar while it grows either";
    play("call BARS draw 30");

    // A position of 20.5 pixels and a value of 0.505: all bars shrink at once, and a bar's right end is
    // computed from its rounded left one. The colours of the first calls apply to every series.
    play("call BARS removeAll 0", "call BARS setWndPos 100 100 205 101");
    calls = 0;
    add("BARS", {101}, 3);
    add("BARS", {200, 1}, 1);
    EXPECT_EQ(operations("BARS", "fillrect"),
              (Trace{fill(101, 100, 120, 201, "#010101"), fill(121, 200, 140, 201, "#020202"),
                     fill(101, 150, 120, 201, "#010101")}));
}

TEST_F(GraphTest, ThePlotSlidesWithTheBox)
{
    play("frame");
    graph("BARS")->setMoveAnimation(0, 0, 50, 0, ZnFixed::fromInt(10), ZnFixed(), 0);
    for (int x : {100, 110, 120}) {
        play("frame");
        EXPECT_EQ(frameDrawn().operations("adddirtyrect"),
                  (Trace{dirty(x, 100, x + 200, 200), dirty(100, 100, 300, 200)}));
    }
}

TEST_F(GraphTest, LinesAreDrawnWithPensAndMarks)
{
    play("call LINES setXLabelEvery 0", "call LINES setYLabelEvery 0", "call LINES setLineColour 1 0x0000ff");
    play("call LINES draw 30");
    add("LINES", {5}, 1, "|");
    add("LINES", {5}, 1, "^");
    add("LINES", {7}, 1, "ab");
    add("LINES", {-5}, 2);
    EXPECT_EQ(operations("LINES", "line"),
              (Trace{line(100, 200, 120, 150, "#ff0000"), line(120, 150, 140, 150, "#ff0000"),
                     line(140, 150, 160, 130, "#ff0000"), line(100, 200, 120, 250)}));
    const Trace marks{fill(120, 144, 124, 156, "#ff8000"), fill(140, 144, 144, 156, "#00a200")};
    EXPECT_EQ(operations("LINES", "fillrect"), marks);
    EXPECT_EQ(operations("LINES", "textout"), (Trace{text("ab").at(140, 118), text("").at(110, 238)}));

    HDC context = nullptr;
    ASSERT_EQ(win().getBackBuffer()->GetDC(&context), 0);
    EXPECT_EQ(operations("LINES", "line"), Trace{}) << "the only device context is in use";
    EXPECT_EQ(operations("LINES", "fillrect"), marks);
    EXPECT_EQ(win().getBackBuffer()->ReleaseDC(context), 0);
}

TEST_F(GraphTest, RangesOnlyGrow)
{
    const char* const rows[][3] = {
        {"in range", "addData 10 a 0 2", R"("xRange":10,"yRange":10,"counts":[0,0,1,0])"},
        {"above", "addData 200 a 0 3", R"("xRange":10,"yRange":200,"counts":[0,0,1,1])"},
        {"below", "addData -500 a 0 3", R"("xRange":10,"yRange":200,"counts":[0,0,1,2])"},
        {"no such series", "addData 900 a 0 4", R"("xRange":10,"yRange":200,"counts":[0,0,1,2])"},
        {"nor a negative one", "addData 900 a 0 -1", R"("xRange":10,"yRange":200,"counts":[0,0,1,2])"},
        {"limited to 16 bits", "addData 40000 a 0 0", R"("xRange":10,"yRange":32767,"counts":[1,0,1,2])"},
        {"emptied", "removeAll 0", R"("xRange":10,"yRange":10,"counts":[0,0,0,0])"},
    };
    for (const auto& [name, line, tree] : rows) {
        SCOPED_TRACE(name);
        play("call BARS " + std::string(line), "tree tree.json");
        EXPECT_NE(readOutput("tree.json").find(std::string(R"("growth":0,)") + tree), std::string::npos);
    }
    add("LINES", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}, 1);
    EXPECT_EQ(graph("LINES")->getXRange(), 12);
}

TEST_F(GraphTest, GraphInfoSetsOnlyTheArgumentsGiven)
{
    const struct {
        const char* line;
        std::vector<int> info; // begins with the lengths of the two texts
    } rows[] = {
        {"GRAPHINFO", {0, 0, 1, 20, 10, 2, 0}},
        {"GRAPHINFO 'a' 'bc'", {1, 2, 1, 20, 10, 2, 0}},
        {"GRAPHINFO 'a' 'bc' 5", {1, 2, 5, 20, 10, 2, 0}},
        {"GRAPHINFO 'a' 'bc' 5 6 7 8 3", {1, 2, 5, 6, 7, 8, 1}},
    };
    for (const auto& row : rows) {
        start("SCREEN \"S\" 0 0 9 9 \"\"\nGRAPH \"G\" 0 0 9 9\nBEGIN\n" + std::string(row.line) + "\nEND\n");
        const AGraph& g = *graph("G");
        EXPECT_EQ(row.info, (std::vector<int>{g.getGraphText1().GetLength(), g.getGraphText2().GetLength(),
                                              g.getXLabelEvery(), g.getYLabelEvery(), g.getYGridEvery(),
                                              g.getXGridEvery(), g.getShowEmptyBars()}))
            << row.line;
    }
}

} // namespace
