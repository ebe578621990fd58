#include "tests/unit/script/script_fixture.h"

#include "platform/limits.h"
#include "platform/system/module.h"

using namespace std::string_literals;

namespace {

/// What is said of a call on line 1 whose subroutine is nowhere.
Messages missing(const char* name)
{
    return {"Could not find SUBROUTINE", std::string("Could not find SUBROUTINE ") + name,
            lineError(1, "t.tgx")};
}
std::string numbered(const char* name, int number)
{
    return std::string(name) + std::to_string(number);
}
std::string sub(const std::string& name, const std::string& body)
{
    return line("SUBROUTINE", name) + body;
}

TEST_F(ScriptTest, OneWindowIsReadOutOfAScript)
{
    const std::string bad = line("WINDOW", "X");
    const struct {
        const char* name;
        std::string script;
        const char* toWindow;
        std::string tree;
        const char* result;
        Messages said;
    } rows[] = {
        {"its line and its block",
         wnd("A") + block(wnd("Z")) + wnd("B") + block(wnd("C")) + wnd("D"),
         "B",
         "B(C)",
         "B",
         {}},
        {"without a block one further line", wnd("B") + wnd("C") + wnd("D"), "B", "B C", "B", {}},
        {"a line of its name inside does not end it",
         wnd("B") + line("TEXT", "B") + wnd("C") + wnd("D"),
         "B",
         "B C",
         "B",
         {}},
        {"case counts in the script", wnd("b") + wnd("C"), "B", "", nullptr, {}},
        {"the first line of that name counts",
         wnd("A") + line("TEXT", "B") + wnd("C") + wnd("B"),
         "B",
         "C",
         nullptr,
         {}},
        {"a name inside another window's block",
         wnd("A") + block(wnd("B") + block(wnd("C"))),
         "B",
         "B(C)",
         "B",
         {}},
        {"skipped lines count in messages",
         wnd("A") + "\7" + bad + wnd("B") + block(bad),
         "B",
         "B",
         "B",
         {lineError(6, "t.tgx")}},
        {"an unfinished script", wnd("B") + line("BEGIN") + wnd("C") + "\x71\4", "B", "B(C)", "B", {}},
        {"a script without the window", wnd("A"), "B", "", nullptr, {}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        newWindow();
        file("t.tgx", row.script);
        AWnd* found = read("t.tgx", row.toWindow);
        EXPECT_EQ(tree(), row.tree);
        EXPECT_STREQ(found ? static_cast<const char*>(found->getID()) : nullptr, row.result);
        EXPECT_EQ(messages, row.said);
    }
}

TEST_F(ScriptTest, AFileComesBeforeTheResource)
{
    const std::string resource = wnd("R");
    const EmbeddedResource embedded("TGXScript", 300, reinterpret_cast<const unsigned char*>(resource.data()),
                                    resource.size());
    const HINSTANCE program = GetModuleHandleA(nullptr);
    window->readScriptFile("none.tgx", program, 0x10000 + 300, "", 0);
    EXPECT_EQ(tree(), "R") << "16 bits of the number count";
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
    EXPECT_EQ(messages, (Messages{"no screen in t.tgx"}));
    EXPECT_EQ(window->getActiveScreen(), nullptr);
    file("u.tgx", line("SCREEN", "ONE", 0, 0, 640, 480, "") + line("SCREEN", "TWO", 0, 0, 640, 480, ""));
    read("u.tgx", "", 1);
    ASSERT_NE(window->getActiveScreen(), nullptr);
    EXPECT_EQ(window->getActiveScreen()->getID(), "ONE");
    EXPECT_EQ(window->getActiveScreen()->isOpen(), 1);
}

TEST_F(ScriptTest, SubroutinesActOnTheCallersWindow)
{
    file("lib.tgx", sub("ADD", block(wnd("L"))) + sub("ONE", wnd("O") + wnd("P")) +
                        sub("NEST", block(wnd("N") + block(line("GOTO", "ADD")) + wnd("M"))));
    file("Other.tgx", sub("ADD", wnd("OTHER")));
    const struct {
        const char* name;
        std::string script, tree;
        Messages said;
    } rows[] = {
        {"a block", wnd("A") + block(line("GOTO", "ADD", "lib.tgx") + wnd("B")), "A(L B)", {}},
        {"a body of one statement", wnd("A") + block(line("GOTO", "ONE", "lib.tgx")), "A(O)", {}},
        {"a call in a body goes on behind it",
         wnd("A") + block(line("GOTO", "NEST", "lib.tgx")),
         "A(N(L) M)",
         {}},
        {"a name in another case is the same file",
         wnd("A") + block(line("GOTO", "ADD", "LIB.tgx") + line("GOTO", "ADD", "lib.TGX")),
         "A(L L)",
         {}},
        {"the block behind a call is still the window's",
         wnd("A") + line("GOTO", "ONE", "lib.tgx") + block(wnd("B")),
         "A(B) O",
         {}},
        {"the running script itself, from the top",
         line("GOTO", "S") + wnd("B") + line("BEGIN") + line("END") + sub("S", wnd("C")) + wnd("D"),
         "C B C D",
         {lineError(5, "t.tgx")}},
        {"the first of two with one name",
         line("GOTO", "S") + "\7"s + sub("S", wnd("C")) + sub("S", wnd("D")),
         "C C D",
         {lineError(3, "t.tgx"), lineError(5, "t.tgx")}},
        {"the start of another does not end a body", line("GOTO", "S", "s2.tgx"), "C D", {}},
        {"a failed line ends it in silence", line("GOTO", "F", "s2.tgx") + wnd("B"), "E B", {}},
        {"a subroutine that is missing", line("GOTO", "NO", "lib.tgx") + wnd("B"), "B", missing("NO")},
        {"a script that is missing", line("GOTO", "%s", "no.tgx"), "", missing("%s")},
    };
    file("s2.tgx", sub("S", line("BEGIN") + wnd("C") + line("SUBROUTINE", "INNER") + wnd("D") + line("END")) +
                       sub("F", block(wnd("E") + line("FONT", 99) + wnd("G"))));
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        newWindow();
        runScript(row.script);
        EXPECT_EQ(tree(), row.tree);
        EXPECT_EQ(messages, row.said);
    }
}

TEST_F(ScriptTest, APointerShowsAWindowInASecondPlace)
{
    file("script.tgx", wnd("X") + wnd("SHARED") + block(wnd("S")));
    runScript(wnd("A") + block(line("POINTER", "shared", "script.tgx")));
    EXPECT_EQ(tree(), "A") << "in the script case counts";
    EXPECT_EQ(messages, (Messages{lineError(3, "t.tgx")}));
    newWindow();
    runScript(wnd("A") + block(line("POINTER", "SHARED", "script.tgx")) + wnd("B") +
              block(line("POINTER", "shared") + block(wnd("T"))) + line("POINTER", "NO", "script.tgx"));
    EXPECT_EQ(tree(), "A(SHARED(S T)) SHARED(S T) B(SHARED(S T))");
    EXPECT_EQ(get("SHARED")->getPointerCount(), 2);
    EXPECT_EQ(get("SHARED")->getOwner(), window->getScreenList());
    EXPECT_EQ(messages, (Messages{lineError(12, "t.tgx")}));
    delete get("A");
    EXPECT_EQ(tree(), "SHARED(S T) B(SHARED(S T))");
}

TEST_F(ScriptTest, APointerNeverMakesACycle)
{
    runScript(wnd("A") +
              block(line("POINTER", "A") + wnd("B") + block(line("POINTER", "A") + line("POINTER", "B"))) +
              wnd("C") + block(line("POINTER", "B")) + line("POINTER", "B") + block(line("POINTER", "C")));
    EXPECT_EQ(tree(), "A(B) C(B) B") << "C holds B in its second place";
    EXPECT_EQ(messages, (Messages{lineError(3, "t.tgx"), lineError(6, "t.tgx"), lineError(7, "t.tgx"),
                                  lineError(16, "t.tgx")}));
}

TEST_F(ScriptTest, APointerLeavesTheSubroutineItStandsIn)
{
    file("p.tgx", wnd("P"));
    file("lib.tgx", sub("S", block(line("POINTER", "P", "p.tgx") + wnd("B") + line("GOTO", "T") +
                                   line("GOTO", "T", "lib.tgx") + wnd("C"))) +
                        sub("T", wnd("D")));
    runScript(wnd("A") + block(line("GOTO", "S", "lib.tgx") + line("GOTO", "T", "lib.tgx")));
    EXPECT_EQ(tree(), "A(P B D D C D) P");
    EXPECT_EQ(messages, Messages{});
}

TEST_F(ScriptTest, CallsAndReadsNestOnlySoDeep)
{
    file("deep.tgx", sub("S", block(wnd("N") + line("GOTO", "S"))));
    runScript(line("GOTO", "S", "deep.tgx"));
    EXPECT_EQ(window->getScreenList()->getWindowCount(), limits::subroutineDepth);
    // Each definition reads the one before it. (The first line that bears a name counts, so they stand in
    // this order.)
    std::string chain;
    for (int i = 100; i > 0; --i)
        chain += wnd(numbered("W", i)) + block(line("POINTER", numbered("W", i + 1), "chain.tgx"));
    file("chain.tgx", chain);
    newWindow();
    read("chain.tgx", "W1");
    EXPECT_NE(get(numbered("W", limits::readDepth).c_str()), nullptr);
    EXPECT_EQ(get(numbered("W", limits::readDepth + 1).c_str()), nullptr);
    EXPECT_EQ(messages.size(), 1u) << "the line whose window could not be read";
}

TEST_F(ScriptTest, WhatDoublesAtEachStepIsStopped)
{
    std::string calls = sub("S0", line("VISIBLE", 1));
    std::string inside = wnd("W0");
    std::string windows = wnd("W0");
    std::string fromAbove;
    for (int i = 1; i <= 60; ++i) {
        const std::string last = numbered("W", i - 1);
        const std::string twice = block(line("POINTER", last) + line("POINTER", last));
        calls += sub(numbered("S", i),
                     block(line("GOTO", numbered("S", i - 1)) + line("GOTO", numbered("S", i - 1))));
        inside += wnd(numbered("W", i)) + twice;
        windows += wnd(numbered("W", i));
        fromAbove = line("POINTER", numbered("W", i)) + twice + fromAbove;
    }
    file("calls.tgx", calls);
    const struct {
        const char* name;
        std::string script;
    } rows[] = {
        {"calls", line("GOTO", "S60", "calls.tgx")},
        {"windows shown twice in each other", inside},
        {"the same, the outermost first", windows + fromAbove},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        newWindow();
        runScript(row.script + wnd("BEHIND"));
        EXPECT_EQ(messages, Messages{"t.tgx runs too long"});
        EXPECT_EQ(get("BEHIND"), nullptr);
        read("t.tgx", "BEHIND");
        EXPECT_NE(get("BEHIND"), nullptr) << "the next read starts afresh";
    }
}

} // namespace
