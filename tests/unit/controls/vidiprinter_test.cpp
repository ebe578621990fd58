#include "tests/unit/support/tgx_test.h"
#include "tgx/controls/vidiprinter.h"

namespace {

class VidiPrinterTest : public TgxTest {
protected:
    void SetUp() override
    {
        start("SCREEN \"S\" 0 0 640 480 \"\"\n"
              "BEGIN\n"
              "  VIDIPRINTER \"V\" 100 100 200 40 \"abc\" 10 4\n"
              "END\n");
        measureFont(0);
    }
};

TEST_F(VidiPrinterTest, PrintsFrameByFrameAndRestartsWithADifferentText)
{
    const struct {
        const char *name, *event, *text;
        int progress;
    } rows[] = {
        {"a tick is not a frame", "tick", "abc", 0},
        {"the first frame", "frame", "abc", 409},
        {"whatever its ticks", "call V draw 7", "abc", 818},
        {"except a frame of 0 ticks", "call V draw 0", "abc", 818},
        {"nearly complete", "frame 8", "abc", 4090},
        {"the same text", "call V setWindowText \"abc\"", "abc", 4090},
        {"complete, but no further", "frame 3", "abc", 4499},
        {"a text in another case is a different one", "call V setWindowText \"ABC\"", "ABC", 0},
        {"printing again", "frame 2", "ABC", 818},
        {"a number", "call V setWindowText 12", "12", 0},
        {"invisible", "call V setVisible 0", "12", 0},
        {"nothing is printed", "frame", "12", 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        play(row.event);
        EXPECT_EQ(call("V getPrintProgress"), std::to_string(row.progress));
        EXPECT_EQ(wnd("V")->getText(), row.text);
        EXPECT_EQ(drawn("V"), !wnd("V")->isVisible(1)
                                  ? Trace{}
                                  : Trace{text(row.text).at(110, 116).scale(row.progress).mode(1)});
    }
}

TEST_F(VidiPrinterTest, TheTextIsPlacedAsInAnyWindowAndDrawnLast)
{
    play("frame 2");
    wnd("V")->addChildWindow(new AWnd(AWnd::WND_PLAIN, "IN", 0, 0, 50, 20))->setWindowText("x");
    const Drawn child = text("x").at(100, 104);
    play("call V setTextJustify 2");
    EXPECT_EQ(drawn("V"), (Trace{child, text("abc").at(260, 116).scale(818).mode(1)}));
    play("call V setTextWrap 1", "call V setTextJustify 0", "call V setWindowText \"abc\\nde\"");
    EXPECT_EQ(drawn("V"), (Trace{child, text("abc").at(110, 104).mode(1), text("de").at(110, 120).mode(1)}))
        << "a wrapped text is shown at once";
}

TEST_F(VidiPrinterTest, FinishingShowsTheWholeTextButNotThatOfChildren)
{
    struct Shortened : AVidiPrinter { // a class of the game that shows less than it prints
        Shortened() : AVidiPrinter("", 0, 0, 50, 20)
        {
            setWindowText("whole");
            windowText = "who";
        }
    };
    AWnd* outer = screen("S")->addChildWindow(new Shortened);
    AWnd* inner = outer->addChildWindow(new Shortened);
    win().getScreenList()->finishAnims();
    EXPECT_EQ(outer->getText(), "whole");
    EXPECT_EQ(inner->getText(), "who") << "children are not finished";
}

} // namespace
