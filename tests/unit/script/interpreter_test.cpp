#include "tests/unit/script/script_fixture.h"

#include "tgx/script/token.h"
#include "tgx/wnd/tabstops.h"

using namespace std::string_literals;

namespace {

TEST_F(ScriptTest, BlocksBelongToTheWindowBeforeThem)
{
    const std::string tooMany = "\x71" + repeat(30, "\3\1\0"s) + "\7";
    const struct {
        const char* name;
        std::string script, tree;
        Messages reported;
    } rows[] = {
        {"a block opens the window before it", wnd("A") + block(wnd("B")) + wnd("C"), "A(B) C", {}},
        {"so does a second block", wnd("A") + block(wnd("B")) + block(wnd("C")), "A(B C)", {}},
        {"a failed line between leaves it open",
         wnd("A") + line("WINDOW", "X") + block(wnd("B")),
         "A(B)",
         {lineError(2, "t.tgx")}},
        {"an attribute between closes it", wnd("A") + line("VISIBLE", 1) + block(wnd("B")), "A B", {}},
        {"an empty line and ADDFONT between do not",
         wnd("A") + "\7" + line("ADDFONT", "", "", 0) + block(wnd("B")),
         "A(B)",
         {"cannot load "}},
        {"a block without a window is the root's", block(wnd("A") + block(wnd("B"))), "A(B)", {}},
        {"a surplus END does nothing",
         line("END") + wnd("A") + line("END") + line("END") + block(wnd("B")),
         "A(B)",
         {}},
        {"an open block is not an error", wnd("A") + line("BEGIN") + wnd("B"), "A(B)", {}},
        {"a screen goes to the root and opens its block",
         wnd("A") + block(line("SCREEN", "S", 0, 0, 9, 9, "") + block(wnd("B"))),
         "A S(B)",
         {}},
        {"the id static means no id", wnd("static") + block(wnd("B")), "(B)", {}},
        {"keywords that are not statements",
         "\x41\7\x30\7\x60\4N\0\7\0\7\xFF\7"s + wnd("A"),
         "A",
         {lineError(1, "t.tgx"), lineError(2, "t.tgx"), lineError(3, "t.tgx"), lineError(4, "t.tgx"),
          lineError(5, "t.tgx")}},
        {"the message quotes a text at the start, including %s",
         "\4say %s %d\0\7"s,
         "",
         {lineError(1, "t.tgx", "say %s %d")}},
        {"more than 30 tokens", tooMany + wnd("A"), "A", {lineError(1, "t.tgx")}},
        {"BEGIN and END are valid with any number of tokens",
         wnd("A") + "\x0E" + repeat(40, "\x0E") + "\7" + wnd("B") + "\x0F\x0F\7" + wnd("C"),
         "A(B) C",
         {}},
        {"19 blocks around a window, not 20",
         repeat(19, line("BEGIN")) + wnd("A") + line("BEGIN") + wnd("B") + repeat(20, line("END")) + wnd("C"),
         "A C",
         {lineError(22, "t.tgx")}},
        {"a wrong count makes nothing",
         line("BITMAP", "A", 0, 0, 9, 9) + line("SCREEN", "S", 0, 0, 9, 9) + line("USERDEF", "U"),
         "",
         {lineError(1, "t.tgx"), lineError(2, "t.tgx"), lineError(3, "t.tgx")}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        newWindow();
        runScript(row.script);
        EXPECT_EQ(tree(), row.tree);
        EXPECT_EQ(messages, row.reported);
    }
}

TEST_F(ScriptTest, AttributesSetTheirFields)
{
    const struct {
        const char* name;
        std::string line;
        int (*get)(AWnd&);
        int value;
    } rows[] = {
        {"2 clears a flag", line("BMPSTRETCH", 2), [](AWnd& w) { return w.getBmpStretch(); }, 0},
        {"3 sets it", line("BMPTILE", 3), [](AWnd& w) { return w.getBmpTile(); }, 1},
        {"-1 sets it", line("TEXTWRAP", -1), [](AWnd& w) { return w.getTextWrap(); }, 1},
        {"visible tests for above 0", line("VISIBLE", -1), [](AWnd& w) { return w.isVisible(0); }, 0},
        {"a text for a number is 0", line("ENABLED", "1"), [](AWnd& w) { return w.getEnabled(); }, 0},
        {"the blit mode has 8 bits", line("BMPBLITMODE", 258), [](AWnd& w) { return w.getBmpBlitMode(); }, 2},
        {"the word RIGHT", line("JUSTIFY", Word{"RIGHT"}), [](AWnd& w) { return int{w.getTextJustify()}; },
         2},
        {"the word CENTRE", line("JUSTIFY", Word{"CENTRE"}), [](AWnd& w) { return int{w.getTextJustify()}; },
         1},
        {"another word changes nothing", line("JUSTIFY", 2), [](AWnd& w) { return int{w.getTextJustify()}; },
         0},
        {"a negative width keeps the old one", line("WNDPOS", 5, 6, -1, 8),
         [](AWnd& w) { return w.getWndWidth() * 100 + w.getWndHeight(); }, 3008},
        {"text offset", line("TEXTOFFSET", 7, -3),
         [](AWnd& w) { return w.getTextOffsetX() * 10 + w.getTextOffsetY(); }, 67},
        {"bitmap offset", line("BMPOFFSET", 7, -3),
         [](AWnd& w) { return w.getBmpOffsetX() * 10 + w.getBmpOffsetY(); }, 67},
        {"bitmap source", line("BMPSOURCE", 7, -3),
         [](AWnd& w) { return w.getBmpSourceX() * 10 + w.getBmpSourceY(); }, 67},
        {"bitmap info", line("BMPINFO", 11, 12, 13, 14),
         [](AWnd& w) { return w.getFrameWidth() + w.getFrameHeight() + w.getFrameDelay(); }, 36},
        {"easy close", line("EASYCLOSE", 1), [](AWnd& w) { return w.isEasyClose(); }, 1},
        {"raw text", line("TEXTRAW", 1), [](AWnd& w) { return w.getTextRaw(); }, 1},
        {"vertical centring", line("TEXTCENTREV", 0), [](AWnd& w) { return w.getTextCentreV(); }, 0},
        {"text", line("TEXT", "four"), [](AWnd& w) { return w.getText().GetLength(); }, 4},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        newWindow();
        runScript(wnd("A") + block(row.line));
        EXPECT_EQ(row.get(*get("A")), row.value);
        EXPECT_EQ(messages, Messages{});
    }
}

TEST_F(ScriptTest, WindowStatementsTakeTheirArguments)
{
    runScript(line("BITMAP", "ONE", 1, 2, 30, 40, "one.bmp") +
              line("BITMAP", "STRIP", 1, 2, 30, 40, "s.bmp", 10, 11, 3, 4) +
              line("TEXTWND", "T", 1, 2, 30, 40, "Hello", 5, 6) +
              line("SCREEN", "S", 0, 0, 640, 480, "b.bmp", "more"));
    EXPECT_EQ(get("ONE")->getFrameWidth(), 30);
    EXPECT_EQ(get("ONE")->getBmpFilename(), "one.bmp");
    EXPECT_EQ(get("STRIP")->getFrameHeight(), 11);
    EXPECT_EQ(get("STRIP")->getFrameCount(), 4);
    EXPECT_EQ(get("T")->getText(), "Hello");
    EXPECT_EQ(get("T")->getTextOffsetY(), 6);
    EXPECT_EQ(get("T")->getBmpFilename(), "");
    const auto* screen = static_cast<AScreen*>(get("S"));
    EXPECT_EQ(screen->getWindowType(), AWnd::WND_SCREEN);
    EXPECT_EQ(screen->getBackdropName(), "b.bmp");
    EXPECT_EQ(screen->getExtraString(), "more");
}

TEST_F(ScriptTest, AMissingFontOrWindowFailsItsLine)
{
    runScript(wnd("A") + block(wnd("B") + wnd("C") + line("TABORDER", "b", "C", "LATER", "B") +
                               line("TABLIST1", "B", "B") + line("FONT", 99) + line("FONT", -1) +
                               line("FONT", 0) + wnd("LATER")));
    EXPECT_EQ(messages, (Messages{lineError(5, "t.tgx"), lineError(7, "t.tgx"), lineError(8, "t.tgx")}));
    const ATabStopInfo* stops = get("A")->getTabStopInfo(0);
    ASSERT_NE(stops, nullptr);
    EXPECT_EQ(stops->tabOrderWnds.GetSize(), 2) << "the windows before the missing one stay";
    EXPECT_EQ(stops->insertDeleteWnds.GetSize(), 2) << "a list may name a window twice";
    EXPECT_EQ(get("A")->getFont(), window->getFont(0));
}

TEST_F(ScriptTest, TheGameSuppliesItsOwnWindows)
{
    runScript(line("USERDEF", "GAME", 1, 2, 3, 4) + line("USERDEF", "U", 1, 2, 3, 4, "GAME") +
              block(wnd("B")) + line("USERDEF", "V", 1, 2, 3, 4));
    EXPECT_EQ(tree(), "GAME! U!(B) V");
    EXPECT_EQ(window->classNames, (std::vector<std::string>{"GAME", "GAME", "V"}));
    EXPECT_EQ(messages,
              (Messages{"Cannot find source code for userdef window Vcreating default AWnd instead"}));
}

TEST_F(ScriptTest, WindowsThatTheGameDeletesDuringTheReadAreForgotten)
{
    window->onCreate = [this] { delete get("A"); };
    runScript(wnd("A") + block(wnd("B") + line("USERDEF", "U", 1, 2, 3, 4, "GAME") + wnd("C")) +
              block(wnd("D")));
    EXPECT_EQ(tree(), "C D") << "lines of a block whose window is deleted act on the root";
    EXPECT_EQ(messages, (Messages{lineError(4, "t.tgx")}));
}

} // namespace
