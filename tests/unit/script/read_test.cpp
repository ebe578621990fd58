#include "tests/unit/script/script_fixture.h"

#include "platform/limits.h"
#include "platform/system/module.h"
#include "tgx/wnd/tabstops.h"

using namespace tgx;

using namespace std::string_literals;

namespace {

/// The messages for a call on line 1 whose subroutine does not exist.
std::string missing(const char* name)
{
    return std::string("Could not find SUBROUTINE, Could not find SUBROUTINE ") + name + ", 1";
}
std::string numbered(const char* name, int number)
{
    return std::string(name) + std::to_string(number);
}
std::string sub(const std::string& name, const std::string& body)
{
    return line("SUBROUTINE", name) + body;
}

TEST_F(ScriptTest, OneWindowIsReadFromAScript)
{
    const std::string bad = line("WINDOW", "X");
    const struct {
        const char* name;
        std::string script;
        const char* toWindow;
        std::string tree;
        const char* result;
        std::string failures;
    } rows[] = {
        {"its line and its block", wnd("A") + block(wnd("Z")) + wnd("B") + block(wnd("C")) + wnd("D"), "B",
         "B(C)", "B", ""},
        {"without a block one further line", wnd("B") + wnd("C") + wnd("D"), "B", "B C", "B", ""},
        {"a line of its name inside does not end it", wnd("B") + line("TEXT", "B") + wnd("C") + wnd("D"), "B",
         "B C", "B", ""},
        {"in the script the case must match", wnd("b") + wnd("C"), "B", "", nullptr, ""},
        {"the first line of that name is used", wnd("A") + line("TEXT", "B") + wnd("C") + wnd("B"), "B", "C",
         nullptr, ""},
        {"a name inside another window's block", wnd("A") + block(wnd("B") + block(wnd("C"))), "B", "B(C)",
         "B", ""},
        {"skipped lines are counted in messages", wnd("A") + "\7" + bad + wnd("B") + block(bad), "B", "B",
         "B", "6"},
        {"an unfinished script", wnd("B") + line("BEGIN") + wnd("C") + "\x71\4", "B", "B(C)", "B", ""},
        {"a script without the window", wnd("A"), "B", "", nullptr, ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        newWindow();
        file("t.tgx", row.script);
        AWnd* found = read("t.tgx", row.toWindow);
        EXPECT_EQ(tree(), row.tree);
        EXPECT_STREQ(found ? static_cast<const char*>(found->getID()) : nullptr, row.result);
        EXPECT_EQ(failures(), row.failures);
    }
}

TEST_F(ScriptTest, AFileComesBeforeTheResource)
{
    const std::string resource = wnd("R");
    const EmbeddedResource embedded("TGXScript", 300, reinterpret_cast<const unsigned char*>(resource.data()),
                                    resource.size());
    const HINSTANCE program = GetModuleHandleA(nullptr);
    window->readScriptFile("none.tgx", program, 0x10000 + 300, "", 0);
    EXPECT_EQ(tree(), "R") << "16 bits of the number are used";
    file("F.TGX", wnd("F") + line("WINDOW", "X"));
    window->readScriptFile("sub\\..\\f.tgx", program, 300, "", 0);
    window->readScriptFile("none.tgx", program, 301, "", 0);
    read("f.tgx");
    EXPECT_EQ(tree().substr(0, 1), "R");
    EXPECT_EQ(messages.back(), lineError(2, "f.tgx")) << "the message names the script without its folder";
}

TEST_F(ScriptTest, AFinalReadOpensTheFirstScreen)
{
    file("t.tgx", wnd("A"));
    read("t.tgx", "", 1);
    EXPECT_EQ(failures(), "no screen in t.tgx");
    EXPECT_EQ(window->getActiveScreen(), nullptr);
    file("u.tgx", line("SCREEN", "ONE", 0, 0, 640, 480, "") + line("SCREEN", "TWO", 0, 0, 640, 480, ""));
    read("u.tgx", "", 1);
    ASSERT_NE(window->getActiveScreen(), nullptr);
    EXPECT_EQ(window->getActiveScreen()->getID(), "ONE");
    EXPECT_EQ(window->getActiveScreen()->isOpen(), 1);
}

TEST_F(ScriptTest, AFirstScreenWithoutANameOpensToo)
{
    for (const char* name : {"", "static"}) {
        SCOPED_TRACE(name);
        window->recreateScreenList();
        file("t.tgx", line("SCREEN", name, 0, 0, 640, 480, "") + block(wnd("A")) +
                          line("SCREEN", "TWO", 0, 0, 640, 480, ""));
        read("t.tgx", "", 1);
        ASSERT_NE(window->getActiveScreen(), nullptr);
        EXPECT_EQ(window->getActiveScreen()->hasChildCalled("A"), 1);
        EXPECT_EQ(window->getActiveScreen()->isOpen(), 1);
    }
}

TEST_F(ScriptTest, SubroutinesActOnTheCallersWindow)
{
    file("lib.tgx", sub("ADD", block(wnd("L"))) + sub("ONE", wnd("O") + wnd("P")) +
                        sub("NEST", block(wnd("N") + block(line("GOTO", "ADD")) + wnd("M"))));
    file("Other.tgx", sub("ADD", wnd("OTHER")));
    const struct {
        const char* name;
        std::string script, tree, failures;
    } rows[] = {
        {"a block", wnd("A") + block(line("GOTO", "ADD", "lib.tgx") + wnd("B")), "A(L B)", ""},
        {"a body of one statement", wnd("A") + block(line("GOTO", "ONE", "lib.tgx")), "A(O)", ""},
        {"a body continues after a call", wnd("A") + block(line("GOTO", "NEST", "lib.tgx")), "A(N(L) M)", ""},
        {"a name in another case is the same file",
         wnd("A") + block(line("GOTO", "ADD", "LIB.tgx") + line("GOTO", "ADD", "lib.TGX")), "A(L L)", ""},
        {"the block after a call is still the window's",
         wnd("A") + line("GOTO", "ONE", "lib.tgx") + block(wnd("B")), "A(B) O", ""},
        {"the running script itself, from the top",
         line("GOTO", "S") + wnd("B") + line("BEGIN") + line("END") + sub("S", wnd("C")) + wnd("D"),
         "C B C D", "5"},
        {"the first of two with the same name",
         line("GOTO", "S") + "\7"s + sub("S", wnd("C")) + sub("S", wnd("D")), "C C D", "3, 5"},
        {"the start of another does not end a body", line("GOTO", "S", "s2.tgx"), "C D", ""},
        {"a failed line ends it without a message", line("GOTO", "F", "s2.tgx") + wnd("B"), "E B", ""},
        {"a missing subroutine", line("GOTO", "NO", "lib.tgx") + wnd("B"), "B", missing("NO")},
        {"a missing script", line("GOTO", "%s", "no.tgx"), "", missing("%s")},
    };
    file("s2.tgx", sub("S", line("BEGIN") + wnd("C") + line("SUBROUTINE", "INNER") + wnd("D") + line("END")) +
                       sub("F", block(wnd("E") + line("FONT", 99) + wnd("G"))));
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        newWindow();
        runScript(row.script);
        EXPECT_EQ(tree(), row.tree);
        EXPECT_EQ(failures(), row.failures);
    }
}

TEST_F(ScriptTest, APointerShowsAWindowInASecondPlace)
{
    file("script.tgx", wnd("X") + wnd("SHARED") + block(wnd("S")));
    runScript(wnd("A") + block(line("POINTER", "shared", "script.tgx")));
    EXPECT_EQ(tree(), "A") << "in the script the case must match";
    EXPECT_EQ(failures(), "3");
    newWindow();
    runScript(wnd("A") + block(line("POINTER", "SHARED", "script.tgx")) + wnd("B") +
              block(line("POINTER", "shared") + block(wnd("T"))) + line("POINTER", "NO", "script.tgx"));
    EXPECT_EQ(tree(), "A(SHARED(S T)) SHARED(S T) B(SHARED(S T))");
    EXPECT_EQ(get("SHARED")->getPointerCount(), 2);
    EXPECT_EQ(get("SHARED")->getOwner(), window->getScreenList());
    EXPECT_EQ(failures(), "12");
    delete get("A");
    EXPECT_EQ(tree(), "SHARED(S T) B(SHARED(S T))");
}

TEST_F(ScriptTest, APointerNeverMakesACycle)
{
    runScript(wnd("A") +
              block(line("POINTER", "A") + wnd("B") + block(line("POINTER", "A") + line("POINTER", "B"))) +
              wnd("C") + block(line("POINTER", "B")) + line("POINTER", "B") + block(line("POINTER", "C")));
    EXPECT_EQ(tree(), "A(B) C(B) B") << "C contains B in its second place";
    EXPECT_EQ(failures(), "3, 6, 7, 16");
}

TEST_F(ScriptTest, APointerEndsItsSubroutine)
{
    file("p.tgx", wnd("P"));
    file("lib.tgx", sub("S", block(line("POINTER", "P", "p.tgx") + wnd("B") + line("GOTO", "T") +
                                   line("GOTO", "T", "lib.tgx") + wnd("C"))) +
                        sub("T", wnd("D")));
    runScript(wnd("A") + block(line("GOTO", "S", "lib.tgx") + line("GOTO", "T", "lib.tgx")));
    EXPECT_EQ(tree(), "A(P B D D C D) P");
    EXPECT_EQ(failures(), "");
}

TEST_F(ScriptTest, CallsAndReadsHaveADepthLimit)
{
    file("deep.tgx", sub("S", block(wnd("N") + line("GOTO", "S"))));
    runScript(line("GOTO", "S", "deep.tgx"));
    EXPECT_EQ(window->getScreenList()->getWindowCount(), limits::subroutineDepth);
    // Each definition reads the one before it. (The first line with a name is used, hence this order.)
    std::string chain;
    for (int i = 100; i > 0; --i)
        chain += wnd(numbered("W", i)) + block(line("POINTER", numbered("W", i + 1), "chain.tgx"));
    file("chain.tgx", chain);
    newWindow();
    read("chain.tgx", "W1");
    const int deepest = 1 + limits::readDepth; // the outermost read is not nested
    EXPECT_NE(get(numbered("W", deepest).c_str()), nullptr);
    EXPECT_EQ(get(numbered("W", deepest + 1).c_str()), nullptr);
    EXPECT_EQ(messages.size(), 1u) << "the line whose window could not be read";
}

TEST_F(ScriptTest, AnEmptyScriptNameMeansTheFirstStreamWithoutAName)
{
    const std::string resource = sub("S", wnd("R"));
    const EmbeddedResource embedded("TGXScript", 300, reinterpret_cast<const unsigned char*>(resource.data()),
                                    resource.size());
    const std::string call = line("GOTO", "S", "300");
    const std::string unnamed = line("GOTO", "S", "");
    runScript(call + unnamed);
    EXPECT_EQ(tree(), "R R");
    EXPECT_EQ(failures(), "");
    newWindow();
    runScript(line("GOTO", "S", "") + call + unnamed + call);
    EXPECT_EQ(tree(), "R R");
    EXPECT_EQ(messages.size(), 6u) << "a missing resource 0 is an empty stream, which stays the first";
}

TEST_F(ScriptTest, AReadHasALineLimit)
{
    const std::string lines = repeat(limits::scriptLines - 1, "\7") + wnd("LAST");
    runScript(lines);
    EXPECT_EQ(tree(), "LAST");
    EXPECT_EQ(failures(), "");
    newWindow();
    runScript(lines + wnd("AFTER"));
    EXPECT_EQ(tree(), "LAST");
    EXPECT_EQ(failures(), "t.tgx runs too long");
    read("t.tgx", "AFTER");
    EXPECT_EQ(tree(), "LAST AFTER") << "the next read has a new limit";
}

TEST_F(ScriptTest, LargeScriptsRunCompletelyAndEndlessOnesEnd)
{
    const std::string resource = sub("S", wnd("R"));
    const EmbeddedResource embedded("TGXScript", 300, reinterpret_cast<const unsigned char*>(resource.data()),
                                    resource.size());
    std::string doubling = sub("S0", line("VISIBLE", 1));
    for (int i = 1; i <= 60; ++i)
        doubling += sub(numbered("S", i),
                        block(line("GOTO", numbered("S", i - 1)) + line("GOTO", numbered("S", i - 1))));
    file("doubling.tgx", doubling);
    file("long.tgx", sub("S", line("TEXT", std::string(60'000, 'x'))));
    file("panel.tgx", wnd("PANEL") + block(repeat(79, wnd("P"))));
    const std::string longCall = line("GOTO", "S", "long.tgx");
    const char* const tooLong = "t.tgx runs too long";
    const struct {
        const char* name;
        std::string script, failures;
    } rows[] = {
        {"ten thousand windows that share a panel of eighty",
         repeat(10'000, wnd("W") + block(line("POINTER", "PANEL", "panel.tgx"))), ""},
        {"thirty thousand calls into a resource", repeat(30'000, line("GOTO", "S", "300")), ""},
        {"ten thousand calls that set a long text", repeat(10'000, longCall), ""},
        {"useless calls that read the long text until the work is used up", repeat(50'000, longCall),
         tooLong},
        {"calls that double at each step", line("GOTO", "S60", "doubling.tgx"), tooLong},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        newWindow();
        runScript(row.script + wnd("AFTER"));
        EXPECT_EQ(failures(), row.failures);
        EXPECT_EQ(get("AFTER") != nullptr, row.failures.empty());
    }
}

TEST_F(ScriptTest, TenThousandWindowsInThreeTabLists)
{
    constexpr int count = 10'000;
    std::string windows;
    std::string lists;
    std::string names;
    for (int i = 0; i < count; ++i)
        windows += wnd(numbered("W", i));
    for (const char* keyword : {"TABORDER", "TABLIST1", "TABLIST2"})
        for (int i = 0; i < count;) {
            names = "";
            for (int end = std::min(i + maxLineTokens - 1, count); i < end; ++i)
                append(names, numbered("w", i));
            lists += line(keyword).insert(1, names);
        }
    // A window made between two such lines is found, and of several with one name the first.
    runScript(wnd("A") +
              block(windows + lists + wnd("LATE") + block(wnd("W5")) + line("TABORDER", "LATE", "W5")));
    EXPECT_EQ(failures(), "");
    const ATabStopInfo* stops = get("A")->getTabStopInfo(0);
    ASSERT_NE(stops, nullptr);
    ASSERT_EQ(stops->tabOrderWnds.GetSize(), count + 2);
    EXPECT_EQ(stops->insertDeleteWnds.GetSize(), count);
    EXPECT_EQ(stops->homeEndWnds.GetSize(), count);
    for (int i : {0, 28, 29, 5'000, count - 1})
        EXPECT_EQ(stops->tabOrderWnds[i], get("A")->getWndFromIndex(i, "")) << i;
    EXPECT_EQ(stops->tabOrderWnds[count], get("LATE"));
    EXPECT_EQ(stops->tabOrderWnds[count + 1], stops->tabOrderWnds[5]);
}

/// Returns the number of windows that drawing the tree visits.
long placesBelow(AWnd& wnd)
{
    static const CString here;
    long places = 0;
    for (int i = 0; AWnd* child = wnd.getWndFromIndex(i, here); ++i)
        places += 1 + placesBelow(*child);
    return places;
}

TEST_F(ScriptTest, WindowsShownTwiceInEachOtherCanStillBeDrawn)
{
    std::string inside = wnd("W0");
    std::string windows = wnd("W0");
    std::string fromAbove;
    for (int i = 1; i <= 30; ++i) {
        const std::string last = numbered("W", i - 1);
        const std::string twice = block(line("POINTER", last) + line("POINTER", last));
        inside += wnd(numbered("W", i)) + twice;
        windows += wnd(numbered("W", i));
        fromAbove = line("POINTER", numbered("W", i)) + twice + fromAbove;
    }
    const struct {
        const char* name;
        std::string script;
    } rows[] = {
        {"the innermost first", inside},
        {"the outermost first", windows + fromAbove},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        newWindow();
        runScript(row.script + wnd("AFTER"));
        EXPECT_NE(get("AFTER"), nullptr) << "only the lines that would exceed the limit fail";
        EXPECT_FALSE(messages.empty());
        for (const std::string& reported : messages)
            EXPECT_TRUE(reported.starts_with("Encountered an error on line")) << reported;
        const long places = placesBelow(*window->getScreenList());
        EXPECT_LE(places, limits::sharedPlaces + 32);
        EXPECT_GT(places, limits::sharedPlaces / 2);
    }
}

TEST_F(ScriptTest, AWindowInsideASharedOneCountsInEachPlace)
{
    constexpr long times = 2000; // including the window itself
    constexpr long fit = (limits::sharedPlaces - (times - 1)) / times;
    runScript(
        wnd("P") + repeat(times - 2, wnd("W") + block(line("POINTER", "P"))) + wnd("Q") +
        block(line("POINTER", "P") + block(repeat(fit + 1, wnd("C")) + line("SCREEN", "S", 0, 0, 9, 9, "") +
                                           line("TEXT", "still here"))));
    EXPECT_EQ(get("P")->getPointerCount(), times - 1);
    EXPECT_EQ(get("P")->getWindowCount(), fit);
    EXPECT_EQ(messages.size(), 1u) << "the one window beyond the limit";
    EXPECT_NE(get("S"), nullptr) << "a screen is the root's child wherever its line is";
    EXPECT_EQ(get("P")->getText(), "still here");
}

TEST_F(ScriptTest, TheLimitOfPlacesIsExact)
{
    runScript(wnd("P"));
    for (int i = 0; i < 40'000; ++i)
        get("P")->addPointer();
    EXPECT_EQ(get("P")->getPointerCount(), 32767);
    EXPECT_EQ(get("P")->isPointer(), 1);
}

} // namespace
