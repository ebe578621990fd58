#include "player/reports.h"
#include "tests/unit/support/tgx_test.h"

#include <chrono>
#include <fstream>

namespace {

namespace fs = std::filesystem;

/// Runs whole events files, with the plain main window.
class PlayerTest : public TgxTest {
protected:
    void SetUp() override
    {
        script(R"(
SCREEN "MENU" 0 0 320 200 "sky.bmp"
BEGIN
  WINDOW "BOX" 10 20 100 50
  BEGIN
    BMPFILE "box.bmp"
    TEXT "a\xE9\x0A\"\\"
  END
END
)");
        bitmap("sky.bmp", 320, 200);
        bitmap("box.bmp", 8, 8);
        options.width = 320;
        options.height = 200;
        options.eventsFile = (data / "run.events").string();
    }

    PlayStatus run(const std::string& events)
    {
        write("run.events", events);
        out.str("");
        err.str("");
        return Player(options, nullptr, out, err).run();
    }
    std::string at(int line, const std::string& reason)
    {
        return options.eventsFile + ':' + std::to_string(line) + ": " + reason + '\n';
    }
};

TEST_F(PlayerTest, TheRunStopsAtTheFirstWrongLine)
{
    EXPECT_EQ(run("# title\r\n\r\ncall BOX left\nframe two\ncall BOX top\n"), PlayStatus::WrongLine);
    EXPECT_EQ(out.str(), "3: 10\n");
    EXPECT_EQ(err.str(), at(4, "expected a number from 0 to 2147483647, found \"two\""));
}

TEST_F(PlayerTest, AnExitEndsTheRunAndNoLineFollows)
{
    EXPECT_EQ(run("exit\ncall BOX left\nframe 5\nnonsense\n"), PlayStatus::Done);
    EXPECT_EQ(out.str(), "2: 10\n") << "the exit completes with the next frame";
    EXPECT_EQ(err.str(), "");
    EXPECT_EQ(run("call BOX left"), PlayStatus::Done) << "a second run starts fresh";
    EXPECT_EQ(out.str(), "1: 10\n");
}

TEST_F(PlayerTest, MessagesAreOneLineEach)
{
    EXPECT_EQ(run("call BOX setBmp \"a\\x0A\\x09\\xE9\\\\.bmp\"\n"), PlayStatus::Done);
    EXPECT_EQ(err.str(), "message: cannot load a\\n\\t\\u00e9\\.bmp\n"
                         "note: no folder a\\n\\t\\u00e9 in " +
                             data.string() + '\n');
    EXPECT_EQ(out.str(), "1: null\n");
}

TEST_F(PlayerTest, AMissingScriptIsReportedAndTheRunGoesOn)
{
    options.script = "none.tgx";
    EXPECT_EQ(run("frame 2\ncall main getActiveScreen\n"), PlayStatus::Done);
    EXPECT_EQ(err.str(),
              "message: no screen in none.tgx\nnote: no file none.tgx in " + data.string() + "/UIG\n");
    EXPECT_EQ(out.str(), "2: null\n");
}

/// The texts of the messages stay the same; notes come between them.
TEST_F(PlayerTest, WhatIsMissingIsExplainedOnce)
{
    const std::string longName = "%s%d" + std::string(5000, 'n');
    script("SCREEN \"MENU\" 0 0 64 48 \"\"\nBEGIN\nBITMAP \"A\" 0 0 9 9 \"art\\a.bmp\"\nBITMAP \"B\" 0 0 9 9 "
           "\"art\\b.bmp\"\nGOTO \"" +
           longName + "\" \"%s.tgx\"\nGOTO \"X\" \"%s.tgx\"\nEND\n");
    EXPECT_EQ(run("frame\ncall main changeScreen GONE 0 150 gone.tgx\nframe 9\n"), PlayStatus::Done);
    const auto line = [](int number) {
        return "message: Encountered an error on line " + std::to_string(number) +
               " in script.tgx\\nThe line is :\\n\\t\n";
    };
    const std::string folder = " in " + data.string();
    EXPECT_EQ(
        err.str(),
        "message: Could not find SUBROUTINE\nnote: no file %s.tgx" + folder +
            "/UIG\nmessage: Could not find SUBROUTINE " + longName + '\n' + line(5) +
            "note: line numbers in messages count the statements of the compiled script, as "
            "tgx dump prints them; with its map beside it (tgx build --map) messages also "
            "name the line of the text\n"
            "message: Could not find SUBROUTINE\nmessage: Could not find SUBROUTINE X\n" +
            line(6) + "message: cannot load art\\a.bmp\nnote: no folder art" + folder +
            "\nmessage: cannot load art\\b.bmp\nmessage: cannot find screen GONE\nnote: no file gone.tgx" +
            folder + "/UIG\n");
}

TEST_F(PlayerTest, MessagesNameTheLineOfTheTextWhereAMapIs)
{
    script("SCREEN \"MENU\" 0 0 64 48 \"\"\nBEGIN\nGOTO \"PART\" \"parts\\p.tgx\"\n"
           "BITMAP \"B\" 0 0 9 9 \"gone.bmp\"\nBUTTONLOOP 1 1 1 1\nEND\n");
    script("SUBROUTINE \"PART\"\nBITMAP \"P\" 0 0 9 9 \"part.bmp\"\nEND\n", "parts/p.tgx");
    write("UIG/script.tgx.map", "0 1 a.tgs\n22 2 a.tgs\n24 7 a.tgs\n45 8 a b.tgs\n72 9 a.tgs\n");
    write("UIG/parts/p.tgx.map", "0 3 parts/p.tgs\n8 4 parts/p.tgs\n");
    const std::string error = "message: Encountered an error on line 5 in script.tgx\\nThe line is :\\n\\t\n";
    const std::string comes = ": note: the message comes from this line\n";
    run("frame\n");
    EXPECT_EQ(err.str(), error + "a.tgs:9" + comes + "message: cannot load part.bmp\nparts/p.tgs:4" + comes +
                             "message: cannot load gone.bmp\na b.tgs:8" + comes);

    options.messagesFail = true;
    fs::remove(data / "UIG/parts/p.tgx.map");
    run("frame\nexpect message \"cannot load part.bmp\"\nexpect message \"cannot load gone.bmp\"\n");
    EXPECT_EQ(err.str(), options.eventsFile + ": the message \"" + error.substr(9, error.size() - 10) +
                             "\" was not expected; it comes from a.tgs:9\n");

    options.messagesFail = false;
    fs::last_write_time(data / "UIG/script.tgx.map",
                        fs::last_write_time(data / "UIG/script.tgx") - std::chrono::seconds(1));
    run("frame\n");
    EXPECT_EQ(err.str().find("a.tgs"), std::string::npos) << "the map is of an older script";
}

TEST_F(PlayerTest, ARunThatIsOutOfMemoryEndsWithAMessage)
{
    write("run.events", "frame\n");
    options.dataDirectory = data.string();
    options.eventsFile = (data / "run.events").string();
    testing::internal::CaptureStderr();
    const int status =
        ::play(options, [](int, int, int) -> std::unique_ptr<AMainWin> { throw std::bad_alloc(); });
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "play: out of memory\n");
    EXPECT_EQ(status, static_cast<int>(PlayStatus::WrongCall));
}

TEST_F(PlayerTest, AWrongCallRunsNothing)
{
    const std::string present = std::exchange(options.eventsFile, (data / "missing.events").string());
    EXPECT_EQ(Player(options, nullptr, out, err).run(), PlayStatus::WrongCall);
    EXPECT_EQ(err.str(), "play: cannot read the events file \"" + options.eventsFile + "\"\n");
    options.eventsFile = present;
    options.dataDirectory = (data / "nowhere").string();
    EXPECT_EQ(run("frame"), PlayStatus::WrongCall);
    EXPECT_EQ(err.str(), "play: no data directory \"" + options.dataDirectory + "\"\n");
}

TEST_F(PlayerTest, WithoutEventsThePictureOfTheSixtiethFrameIsWritten)
{
    options.eventsFile = "";
    EXPECT_EQ(Player(options, nullptr, out, err).run(), PlayStatus::Done);
    EXPECT_EQ(readOutput("screen.png").substr(0, 8), "\x89PNG\r\n\x1a\n");
    EXPECT_EQ(out.str() + err.str(), "");
}

TEST_F(PlayerTest, FilesGoBelowTheOutputDirectoryWholeOrNotAtAll)
{
    EXPECT_EQ(run("frame\ntree a/b/t.json\ntree -\n"), PlayStatus::Done);
    EXPECT_EQ(readOutput("a/b/t.json"), out.str());
    EXPECT_TRUE(fs::is_regular_file(outputs / "a/b/t.json"));
    EXPECT_EQ(run("frame\ntree a/b/t.json/x.json\n"), PlayStatus::WrongLine);
    EXPECT_EQ(err.str(), at(2, "cannot write \"a/b/t.json/x.json\""));
    fs::create_directories(outputs / "folder");
    EXPECT_EQ(run("trace folder\n"), PlayStatus::WrongLine);
    EXPECT_FALSE(fs::exists(outputs / "folder.new"));
}

TEST_F(PlayerTest, TheSameEventsGiveTheSameBytes)
{
    const std::string events =
        "frame 2\nmove 15 25\npress left\nrelease left\nframe 4\ntree -\ntrace -\nfonts -\n";
    run(events);
    std::string first = out.str();
    run(events);
    EXPECT_EQ(out.str(), first);
    EXPECT_GT(first.size(), 1000u);
}

TEST_F(PlayerTest, TheTreeFileIsExactToTheByte)
{
    EXPECT_EQ(run("move 15 25\nframe\ntree -\n"), PlayStatus::Done);
    EXPECT_EQ(
        out.str(),
        R"({"activeScreen":"MENU","focus":"BOX","mouseDown":null,"popups":[],"capture":[],"pointer":[15,25],)"
        R"("frameStep":1,"root":{"id":"ScreenList","type":0,"class":"AScreenList","x":0,"y":0,"w":0,"h":0,)"
        R"("wndX":0,"wndY":0,"visible":1,"enabled":1,"text":"","bmp":"","frame":0,"font":-1,"children":[)"
        R"({"id":"MENU","type":1,"class":"AScreen","x":0,"y":0,"w":320,"h":200,"wndX":0,"wndY":0,"visible":1,)"
        R"("enabled":1,"text":"","bmp":"","frame":0,"font":0,"children":[{"id":"BOX","type":0,"class":"AWnd",)"
        R"("x":10,"y":20,"w":100,"h":50,"wndX":10,"wndY":20,"visible":1,"enabled":1,)"
        R"("text":"a\u00e9\u000a\"\\","bmp":"box.bmp","frame":0,"font":0,"children":[]}],)"
        R"("open":1,"caller":"","backdrop":"sky.bmp"}]}})"
        "\n");
}

TEST_F(PlayerTest, TheFontsFileHoldsTheTable)
{
    EXPECT_EQ(run("fonts -\n"), PlayStatus::Done);
    std::string text = out.str();
    EXPECT_TRUE(text.starts_with("[{\"lineHeight\":")) << text;
    EXPECT_EQ(std::count(text.begin(), text.end(), ','), 1 + 256)
        << "two heights and 256 advances of the built-in font";
    EXPECT_TRUE(text.ends_with("]}]\n"));
}

TEST_F(PlayerTest, TheTraceFileIsExactToTheByte)
{
    start("", 320, 200);
    measureFont(0);
    play("draw", "call main setbackdrop 0x0000FF", "call main setbackdrop \"sky.bmp\" -1",
         "call main fillrect 1 2 3 4 0x102030", "call main rectangle -1 -2 3 4 0xFFFFFF",
         "call main drawLine 1 2 3 4 5 0xABCDEF", "call main redrawScreen", "draw", "trace t.jsonl");
    EXPECT_EQ(readOutput("t.jsonl"),
              R"({"op":"setbackdrop","colour":"#ff0000"}
{"op":"setbackdrop","image":"sky.bmp"}
{"op":"fillrect","x1":1,"y1":2,"x2":3,"y2":4,"colour":"#102030"}
{"op":"rectangle","x1":-1,"y1":-2,"x2":3,"y2":4,"colour":"#ffffff"}
{"op":"line","x1":1,"y1":2,"x2":3,"y2":4,"colour":"#abcdef","width":5}
{"op":"redrawScreen"}
{"op":"drawbackdrop"}
{"op":"blit","image":"box.bmp","x":10,"y":20,"w":100,"h":50,"sx":0,"sy":0,"sw":8,"sh":8,"mode":0}
{"op":"textout","x":10,"y":39,"text":"a\u00e9\u000a\"\\","font":0,"raw":0,"scale":4096,"mode":0}
{"op":"drawscreen"}
)");
    EXPECT_EQ(drawn("BOX"),
              (Trace{blit("box.bmp").from(0, 0, 8, 8).to(10, 20, 100, 50), text("a\xE9\n\"\\").at(10, 39)}));
}

} // namespace
