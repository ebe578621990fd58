#include "platform/framework/datadir.h"
#include "platform/media/image_file.h"
#include "tests/unit/support/tgx_test.h"
#include "tgx/controls/combobox.h"

#include <fstream>

namespace fs = std::filesystem;

namespace {

const char* const menu = R"(SCREEN 'MENU' 0 0 64 48 '' {
      WINDOW 'PANEL' 0 0 60 40 { BUTTON 'OK' 0 0 20 20 'Go' }; CHECKBOX 'TICK' 0 20 20 20 ''
      COMBOBOX 'CHOICE' 20 0 20 20 ''; LISTBOX 'LIST' 20 20 20 80 { COLUMNS 20 LEFT }
    }
    SCREEN 'OPTIONS' 0 0 64 48 '' { WINDOW 'FAR' 0 0 10 10 }; WINDOW 'QUERY' 0 0 20 20)";

class ExpectTest : public TgxTest {
protected:
    void SetUp() override
    {
        script(menu);
        options.width = 64;
        options.height = 48;
        options.eventsFile = (data / "run.events").string();
    }

    /// Runs these lines and returns what they write on stderr, without the paths of the data and output
    /// directories.
    std::string run(const std::string& events)
    {
        write("run.events", events);
        out.str("");
        err.str("");
        status = Player(options, nullptr, out, err).run();
        return without(without(err.str(), data.string() + '/'), outputs.string() + '/');
    }
    static ImageRef readPicture(const fs::path& path)
    {
        setDataDirectory(path.parent_path().string());
        return loadImageFile(path.filename().string());
    }

    PlayStatus status = PlayStatus::WrongCall;
};

TEST_F(ExpectTest, EachExpectationHoldsOrReportsWhatWasFound)
{
    start("", 64, 48);
    auto* box = static_cast<AComboBox*>(wnd("CHOICE"));
    auto* list = static_cast<AListBox*>(wnd("LIST"));
    for (int i = 0; i < 3; ++i) {
        box->addItem("item");
        list->addItem();
    }
    box->setSelectedItem(2);
    play("frame", "call TICK setSelected 1");
    const struct {
        const char *given, *expectation;
        const char* found; // "" if the expectation holds
    } rows[] = {
        {"", "active menu", ""},
        {"", "active OPTIONS", "\"MENU\""},
        {"", "popup none", ""},
        {"", "popup QUERY", "none"},
        {"", "visible QUERY 1", "0: \"QUERY\" is not open"},
        {"call main setPopupWnd QUERY MENU 0", "popup QUERY", ""},
        {"", "popup none", "\"QUERY\""},
        {"", "visible OK 1", ""}, // covered by the popup, which does not count
        {"call main setPopupWnd null null 0", "popup none", ""},
        {"move to OK", "focus none", "\"LIST\""},
        {"frame", "focus OK", ""},
        {"", "text OK \"go\"", "\"Go\""},
        {"call OK setWindowText \"\\x0A1\"", "text OK 1", "\"\\x0A1\""},
        {"", "text OK \"\\x0A1\"", ""},
        {"", "text GONE Go", "no window \"GONE\"; the screen \"MENU\" has PANEL, OK, TICK, CHOICE and LIST"},
        {"", "visible OK 0", "1"},
        {"", "visible FAR 1", "0: \"FAR\" is on the screen \"OPTIONS\", which is not active"},
        {"call PANEL setEnabled 0", "enabled OK 1", "0: \"OK\" is disabled because \"PANEL\" is disabled"},
        {"call PANEL setVisible 0", "visible OK 1", "0: \"OK\" is hidden because \"PANEL\" is hidden"},
        {"", "enabled OK 0", ""},
        {"", "selected OK 1", "0"},
        {"", "selected CHOICE 2", ""},
        {"", "selected LIST -1", ""},
        {"call LIST setSelectedItem 2", "selected LIST 0", "2"},
        {"", "call OK width = 0x14", ""},
        {"", "call OK width = 2", "20"}, // not just the beginning of the number
        {"", "call OK width = \"20\"", "20"},
        {"", "call OK getID = ok", "\"OK\""},
        {"call OK setWindowText 7", "call OK getText = 7", ""}, // without quotes it may be text too
        {"", "call main getPopupWnd 0 = null", ""},
        {"", "call main getPopupWnd 0 = \"null\"", "null"},
        {"", "call main getPopupWnd -1 = error", ""},
        {"", "call GONE left = 1",
         "no window \"GONE\"; the screen \"MENU\" has PANEL, OK, TICK, CHOICE and LIST"},
        {"", "call LIST getMousePosOfFirstSelectableItem = 1 30 32", ""},
        {"", "call LIST getMousePosOfFirstSelectableItem = [1,30,32]", ""},
        {"", "call LIST getMousePosOfFirstSelectableItem = 1", "[1,30,32]"},
        {"", "call LIST getMousePosOfFirstSelectableItem = 1 30", "[1,30,32]"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.expectation);
        play(row.given);
        const std::string found = row.found;
        EXPECT_EQ(playWrong(std::string("expect ") + row.expectation),
                  found.empty() ? "" : std::string("expected ") + row.expectation + ", found " + found);
    }
}

TEST_F(ExpectTest, AWrongExpectationIsRefusedWithTheReason)
{
    start("", 64, 48);
    const char* const rows[][2] = {
        {"expect", "expected expect EXPECTATION, found 0 words after expect"},
        {"expect activ MENU", "no expectation \"activ\"; did you mean active?"},
        {"expect nothing", "no expectation \"nothing\"; expectations are active, popup, focus, text, "
                           "visible, enabled, selected, "
                           "message, call, picture, tree and trace"},
        {"expect text OK", "expected the form expect text ID \"TEXT\", found expect text OK"},
        {"expect visible OK yes", "expected a number from 0 to 1, found \"yes\""},
        {"expect selected PANEL 1", "\"PANEL\" is not a button, list box or combo box"},
        {"expect call OK = 0 0",
         "expected the form expect call TARGET OPERATION ARG ... = VALUE, found expect call OK = 0 0"},
        {"expect call OK left =",
         "expected the form expect call TARGET OPERATION ARG ... = VALUE, found expect call OK left ="},
        {"expect tree ../a.json", "\"../a.json\" is not a file name below the folder of the events file"},
        {"expect trace /a.jsonl", "\"/a.jsonl\" is not a file name below the folder of the events file"},
        {"wait for it", "expected the form wait until EXPECTATION [N], found wait for it"},
        {"wait until active MENU 1 2",
         "expected the form wait until active NAME|none [N], found wait until active MENU 1 2"},
        {"wait until active MENU ten", "expected a number from 0 to 2147483647, found \"ten\""},
        {"wait until tree a.json", "cannot wait for a tree; wait until something else holds, then expect it"},
    };
    for (const auto& [line, reason] : rows)
        EXPECT_EQ(playWrong(line), reason) << line;
}

TEST_F(ExpectTest, AWaitRunsFramesUntilItHolds)
{
    start("", 64, 48);
    int frames = 0;
    win().duringFrame = [&] { wnd("PANEL")->setVisible(++frames < 5); };
    play("wait until visible OK 1");
    EXPECT_EQ(frames, 0) << "it holds immediately";
    play("wait until visible OK 0");
    EXPECT_EQ(frames, 5);
    EXPECT_EQ(playWrong("wait until visible OK 1 3"),
              "waited 3 frames for visible OK 1, found 0: \"OK\" is hidden because \"PANEL\" is hidden");
    EXPECT_EQ(frames, 8);
    EXPECT_EQ(playWrong("wait until call OK left = 9"), "waited 240 frames for call OK left = 9, found 0");
    EXPECT_EQ(frames, 248);
    EXPECT_EQ(playWrong("wait until call OK left = 9 2"), "waited 2 frames for call OK left = 9, found 0");
    EXPECT_EQ(frames, 250);
}

TEST_F(ExpectTest, TheRunContinuesAfterAFailureAndAWrongLineEndsItsPart)
{
    const struct {
        const char *name, *events;
        const char* messages; // on stderr
        const char* values;   // that calls print
        PlayStatus status;
    } rows[] = {
        {"a failure is reported and the next line is run", "expect active X\ncall OK left\nexpect active Y\n",
         "run.events:1: expected active X, found \"MENU\"\nrun.events:3: expected active Y, found \"MENU\"\n",
         "2: 0\n", PlayStatus::WrongLine},
        {"a wrong line ends the run", "frame two\nexpect active X\n",
         "run.events:1: expected a number from 0 to 2147483647, found \"two\"\n", "", PlayStatus::WrongLine},
        {"a wrong line ends its part only",
         "call OK setWndPos 5 5 5 5\ncall X left\ncall OK left\n test \"b\"\ncall OK left\n",
         "run.events:2: no window \"X\"; the screen \"MENU\" has PANEL, OK, TICK, CHOICE and LIST\n",
         "1: null\n5: 0\n", PlayStatus::WrongLine},
        {"a part without a name", "test\ncall OK left\ntest b\ncall OK top\n",
         "run.events:1: expected test \"NAME\", found 0 words after test\n", "4: 0\n", PlayStatus::WrongLine},
        {"the exit ends its part", "exit\nframe\ncall OK left\ntest b\ncall OK left\n", "", "5: 0\n",
         PlayStatus::Done},
        {"expectations after the exit are checked",
         "exit\nframe\nexpect active none\nexpect text OK Go\nwait until active MENU\nexpect call main "
         "getActiveScreen = null\n",
         "run.events:4: expected text OK Go, found no window \"OK\"; no screen is active\n"
         "run.events:5: waited 0 frames for active MENU, found none\n"
         "run.events:6: expected call main getActiveScreen = null, found that the program has ended\n",
         "", PlayStatus::WrongLine},
        {"a wait notices the exit", "exit\nwait until active none\n", "", "", PlayStatus::Done},
        {"messages are expected one by one",
         "call OK setBmp a\ncall OK setBmp b\nexpect message \"cannot load b\"\nexpect message \"cannot load "
         "b\"\n",
         "message: cannot load a\nmessage: cannot load b\n"
         "run.events:4: expected message \"cannot load b\", found \"cannot load a\"\n",
         "1: null\n2: null\n", PlayStatus::WrongLine},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(run(row.events), row.messages);
        EXPECT_EQ(out.str(), row.values);
        EXPECT_EQ(status, row.status);
    }
}

TEST_F(ExpectTest, APartStartsFreshWhateverWasPlayedBefore)
{
    const std::string look = "frame\ntree -\ntrace -\n";
    run(look);
    const std::string fresh = out.str();
    EXPECT_EQ(run("test a\nmove 5 5\npress left\nframe 9\nkey a\nmove 7 7\ntest b\n" + look), "");
    EXPECT_EQ(out.str(), fresh);
}

TEST_F(ExpectTest, AnUnexpectedMessageIsAFailureIfMessagesFailIsSet)
{
    options.messagesFail = true;
    EXPECT_EQ(run("test a\ncall OK setBmp a\ntest b\ncall OK setBmp b\nexpect message \"cannot load b\"\n"),
              "run.events:2: the message \"cannot load a\" was not expected\n");
    EXPECT_EQ(status, PlayStatus::WrongLine);
    options.script = "none.tgx";
    EXPECT_EQ(run("# nothing\n"), "run.events: the message \"no screen in none.tgx\" was not expected\n"
                                  "note: no file none.tgx in UIG\n");
    EXPECT_EQ(run("test a\nexpect message \"no screen in none.tgx\"\n"), "");
}

TEST_F(ExpectTest, AnIncludedFileIsPlayedInPlace)
{
    write("steps/move.part", "call OK left\nexpect active X\ninclude more.part\ncall OK width\n");
    write("steps/more.part", "call OK top\n");
    write("bad.part", "frame\ncall X left\n");
    write("round.part", "include round.part\n");
    write("test.part", "test a\n");
    EXPECT_EQ(
        run("include steps/move.part\ninclude steps/../bad.part\ncall OK height\n"),
        "run.events:1: steps/move.part:2: expected active X, found \"MENU\"\n"
        "run.events:2: bad.part:2: no window \"X\"; the screen \"MENU\" has PANEL, OK, TICK, CHOICE and "
        "LIST\n");
    EXPECT_EQ(out.str(), "1: 0\n1: 0\n4: 20\n");
    const char* const rows[][2] = {
        {"include gone.part", "cannot read the events file \"gone.part\""},
        {"include steps", "cannot read the events file \"steps\""},
        {"include /dev/null",
         "expected a file named from the folder of the events file, found \"/dev/null\""},
        {"include test.part",
         "test.part:1: test opens a part of the file that is played, not of one that it includes"},
    };
    for (const auto& [line, reason] : rows)
        EXPECT_EQ(run(line), std::string("run.events:1: ") + reason + '\n');
    const std::string messages = run("include round.part");
    EXPECT_NE(messages.find("round.part:1: files include one another more than 16 deep\n"),
              std::string::npos);
}

TEST_F(ExpectTest, AFileThatDiffersIsReportedAndOnlyWrittenWithUpdate)
{
    const std::string events = "move 5 5\nframe\nexpect tree a/t.json\nexpect trace a/t.jsonl\n";
    EXPECT_EQ(
        run(events),
        "run.events:3: expected tree a/t.json, found no such file; the result is in a/t.actual.json, and "
        "--update accepts it\n"
        "run.events:4: expected trace a/t.jsonl, found no such file; the result is in a/t.actual.jsonl, and "
        "--update accepts it\n");
    EXPECT_FALSE(fs::exists(data / "a")) << "nothing is written without --update";

    options.update = true;
    EXPECT_EQ(run(events), "run.events:3: wrote a/t.json\nrun.events:4: wrote a/t.jsonl\n");
    EXPECT_EQ(status, PlayStatus::Done);
    EXPECT_EQ(fileContents(data / "a/t.json"), fileContents(outputs / "a/t.actual.json"));
    EXPECT_EQ(run(events), "") << "a file that is equal is not written again";
    options.update = false;
    EXPECT_EQ(run(events), "");

    const std::string moved = "call OK setWndPos 1 0 20 20\n" + events;
    EXPECT_EQ(
        run(moved),
        "run.events:4: expected tree a/t.json, found ...type\":2,\"class\":\"AButton\",\"x\":1,\"y\":0,"
        "\"w\":20,\"h\":20,\"wndX\":1,\"wndY\":0,\"visible\":... instead of "
        "...type\":2,\"class\":\"AButton\",\"x\":0,\"y\":0,\"w\":20,\"h\":20,\"wndX\":0,\"wndY\":0,"
        "\"visible\":... in the window \"OK\"; the whole result is in a/t.actual.json\n"
        "run.events:5: expected trace a/t.jsonl, found {\"op\":\"textout\",\"x\":1,\"y\":3,\"text\":\"Go\","
        "\"font\":0,\"raw\":0,\"scale\":4096,... instead of "
        "{\"op\":\"textout\",\"x\":0,\"y\":3,\"text\":\"Go\","
        "\"font\":0,\"raw\":0,\"scale\":4096,... in line 6; the whole result is in a/t.actual.jsonl\n");
    options.update = true;
    run(moved);
    EXPECT_NE(fileContents(data / "a/t.json").find("\"wndX\":1"), std::string::npos);
}

TEST_F(ExpectTest, PicturesAreComparedPixelByPixel)
{
    options.update = true;
    const std::string draw = "frame\n";
    EXPECT_EQ(run(draw + "expect picture p.png\n"), "run.events:2: wrote p.png\n");
    options.update = false;
    EXPECT_EQ(run(draw + "expect picture p.png\n"), "");

    ImageRef picture = readPicture(data / "p.png");
    ASSERT_TRUE(picture);
    const std::uint32_t before = picture->row(40)[62];
    picture->row(40)[62] = 0xFF123456;
    ASSERT_TRUE(writePng(*picture, (data / "p.png").string()));
    EXPECT_EQ(before & 0xFFFFFF, 0u);
    EXPECT_EQ(run(draw + "expect picture p.png\n"), "run.events:2: expected picture p.png, found 1 different "
                                                    "pixel: 62, 40 is #000000 instead of #123456; see "
                                                    "p.actual.png and p.difference.png\n");
    const ImageRef shown = readPicture(outputs / "p.difference.png");
    ASSERT_TRUE(shown);
    EXPECT_EQ(shown->row(40)[62], 0xFFFF0000);
    EXPECT_EQ(shown->row(40)[61], 0xFF000000);

    picture->row(3)[5] = 0xFFFFFFFF;
    ASSERT_TRUE(writePng(*picture, (data / "p.png").string()));
    EXPECT_NE(
        run(draw + "expect picture p.png\n").find("found 2 different pixels, from 5, 3 to 62, 40: 5, 3 is #"),
        std::string::npos);
    ASSERT_TRUE(writePng(*makeImage(8, 4), (data / "p.png").string()));
    EXPECT_EQ(run(draw + "expect picture p.png\n"),
              "run.events:2: expected picture p.png, found a screen of 64x48, but p.png is 8x4; see "
              "p.actual.png\n");
    write("p.png", "not a picture");
    EXPECT_EQ(run(draw + "expect picture p.png\n"),
              "run.events:2: expected picture p.png, found a file that is not a picture; the result is in "
              "p.actual.png\n");
    EXPECT_EQ(run(draw + "expect picture gone/q.png\n"),
              "run.events:2: expected picture gone/q.png, found no such picture; the result is in "
              "gone/q.actual.png, and --update accepts it\n");
    EXPECT_EQ(status, PlayStatus::WrongLine);
}

} // namespace
