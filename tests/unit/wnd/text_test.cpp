#include "tests/unit/support/tgx_test.h"

namespace {

/// Texts in a font with characters 10 pixels wide and 12 high, and lines 16 high.
class TextTest : public TgxTest {
protected:
    void SetUp() override
    {
        start("SCREEN 'S' 0 0 640 480 '' { TEXTWND 'T' 100 50 55 100 '' }");
        play("frame 10");
        measureFont(0);
    }
    AWnd* t() { return wnd("T"); }
    Drawn line(const std::string& words, int x, int y) { return text(words).at(x, y); }
    Drawn wrapped(const std::string& words, int y) { return text(words).at(100, 50 + y).mode(1); }
    void show(const std::string& words, int width, int height)
    {
        t()->setWndPos(100, 50, width, height);
        t()->setWindowText(CString(words));
    }
};

TEST_F(TextTest, OneLineIsCutToTheBoxAndJustified)
{
    const struct {
        const char* name;
        int width, height;
        AWnd::E_TEXTJUSTIFY justify;
        int centreV, offsetX, offsetY;
        const char* shown;
        int x, y;
    } rows[] = {
        {"cut on the right", 35, 12, AWnd::TJ_LEFT, 1, 0, 0, "abc", 100, 50},
        {"the cut text is centred", 35, 12, AWnd::TJ_CENTRE, 1, 0, 0, "abc", 102, 50},
        {"the cut text ends at the right edge", 35, 12, AWnd::TJ_RIGHT, 1, 0, 0, "abc", 105, 50},
        {"centred vertically", 100, 40, AWnd::TJ_LEFT, 1, 0, 0, "abcdef", 100, 64},
        {"at the top", 100, 40, AWnd::TJ_LEFT, 0, 0, 0, "abcdef", 100, 50},
        {"an offset narrows the box", 50, 12, AWnd::TJ_LEFT, 1, 10, 6, "abcd", 110, 53},
        {"justified to the right, the offset is the distance from the edge", 50, 12, AWnd::TJ_RIGHT, 1, 10, 0,
         "abcd", 100, 50},
        {"no width, no text", 0, 12, AWnd::TJ_LEFT, 1, 0, 0, "", 100, 50},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        show("abcdef", row.width, row.height);
        t()->setTextJustify(row.justify);
        t()->setTextCentreV(row.centreV);
        t()->setTextOffset(row.offsetX, row.offsetY);
        EXPECT_EQ(drawn("T"), (Trace{line(row.shown, row.x, row.y)}));
    }
}

TEST_F(TextTest, ARawTextIsDrawnUncut)
{
    show("far wider than the box", 20, 12);
    t()->setTextRaw(1);
    EXPECT_EQ(drawn("T"), (Trace{line("far wider than the box", 100, 50).raw(1).mode(1)}));
}

TEST_F(TextTest, WrappedLines)
{
    const struct {
        const char *name, *text;
        int width, height;
        const char* lines; // each with its top, relative to the box
    } rows[] = {
        {"at blanks", "aaa bbb cccc", 55, 100, "aaa@0|bbb@16|cccc@32"},
        {"lines of more than 20 characters are spread", "aaa bbb ccc ddd eee fff ggg", 55, 100,
         "aaa@0|bbb@25|ccc@51|ddd@76|eee@102|fff ggg@127"},
        {"the last character ends the text, beyond the box", "aaa bbb ccc", 55, 100, "aaa@0|bbb ccc@16"},
        {"at a mark of two characters", "abc\\nde", 55, 100, "abc@0|de@16"},
        {"at a line feed", "abc\nde", 55, 100, "abc@0|de@16"},
        {"at a mark where the line has no blank", "aaa bbb\\nccc", 35, 100, "aaa@0|bbb@16|ccc@32"},
        {"a word that is too long is cut, and a character is dropped", "aaa bbbbbbbbbbbb ccc", 55, 100,
         "aaa@0|bbbbb@16|bbbbbb@32|ccc@48"},
        {"on the first line too", "aaaaaaaaaaaa bbb", 55, 100, "aaaaa@0|aaaaaa@16|bbb@32"},
        {"the second of two blanks begins the next line", "aa  bb cc", 45, 100, "aa@0| bb cc@16"},
        {"one line fits", "aaa bbb cccc", 55, 31, "aaa@0"},
        {"two lines fit", "aaa bbb cccc", 55, 32, "aaa@0|bbb@16"},
        {"a box without a width still ends", "abcdef", -5, 100, "@0|@16|@32|@48|@64|ef@80"},
    };
    t()->setTextWrap(1);
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        show(row.text, std::max(row.width, 0), row.height);
        t()->setTextOffset(row.width < 0 ? -row.width : 0, 0);
        std::vector<std::string> seen;
        drawn("T");
        for (const DrawCommand& command : win().getLastFrame().commands())
            if (command.op == DrawOp::TextOut) {
                seen.push_back(std::string(win().getLastFrame().text(command)) + "@" +
                               std::to_string(command.y - 50));
                EXPECT_EQ(command.mode, 1);
            }
        EXPECT_EQ(joined(seen, "|"), row.lines);
    }
}

TEST_F(TextTest, AMegabyteOfTextIsWrappedInOnePass)
{
    // Quadratic work here would take minutes; the drawing itself is tested by the result.
    const std::string words(1 << 20, 'x');
    show(words, 100, 12);
    EXPECT_EQ(drawn("T"), (Trace{line("xxxxxxxxxx", 100, 50)}));
    t()->setTextWrap(1);
    EXPECT_EQ(drawn("T"), (Trace{wrapped("xxxxxxxxxx", 0)}));
}

} // namespace
