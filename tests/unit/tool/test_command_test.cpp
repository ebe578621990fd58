#include "player/suite.h"
#include "tests/unit/support/tgx_test.h"

#include <algorithm>
#include <csignal>
#include <fstream>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#ifdef __linux__
#include <sys/prctl.h>
#endif

namespace fs = std::filesystem;

namespace {

const char* const header = "# tgx: play ../data --script script.tgx --size 64x48\n";

class TestCommandTest : public TgxTest {
protected:
    void SetUp() override
    {
        script("SCREEN \"MENU\" 0 0 64 48 \"\"\nBEGIN\n  WINDOW \"BOX\" 0 0 10 20\nEND\n");
        folder = data.parent_path() / "tests";
        tests.directory = folder.string();
        tests.play.outDirectory = outputs.string();
    }
    void events(const std::string& name, const std::string& lines)
    {
        fs::create_directories((folder / name).parent_path());
        std::ofstream(folder / name, std::ios::binary) << lines;
    }
    /// Returns the exit status. out and err get the output, with paths relative to the tests' folder.
    int run(const MainWinFactory& factory = nullptr)
    {
        std::ostringstream said;
        std::ostringstream refused;
        const int status = runTests(tests, factory, said, refused);
        out.str(without(said.str(), folder.string() + '/'));
        err.str(without(refused.str(), folder.string() + '/'));
        return status;
    }
    fs::path folder;
    TestOptions tests;
};

TEST_F(TestCommandTest, PrintsALineForEachFileFollowedByItsMessages)
{
    events("b/holds.events",
           "# A heading.\n\n# tgx: play ../../data --script script.tgx\nexpect active MENU\n");
    events("fails.events",
           std::string(header) + "call BOX left\nexpect active X\nexpect text BOX a\nframe two\n");
    events("a.events", std::string(header) + "expect call BOX height = 20\n");
    events("a.part", "nonsense\n");
    const std::string report = "ok    a.events\n"
                               "ok    b/holds.events\n"
                               "FAIL  fails.events\n"
                               "      fails.events:3: expected active X, found \"MENU\"\n"
                               "      fails.events:4: expected text BOX a, found \"\"\n"
                               "      fails.events:5: expected a number from 0 to 2147483647, found \"two\"\n"
                               "3 files, 2 ok, 1 failed\n";
    for (int jobs : {0, 1, 8}) {
        SCOPED_TRACE(jobs);
        tests.jobs = jobs;
        EXPECT_EQ(run(), 1);
        EXPECT_EQ(out.str(), report) << "sorted by name, whichever ends first";
    }
    tests.filter = "holds";
    EXPECT_EQ(run(), 0);
    EXPECT_EQ(out.str(), "ok    b/holds.events\n1 file, 1 ok, 0 failed\n");
}

TEST_F(TestCommandTest, TakesDataAndScriptFromTheFileOrTheCommandLine)
{
    tests.play.dataDirectory = data.string();
    tests.play.script = "script.tgx";
    tests.play.width = 320;
    const struct {
        const char* name;
        std::string lines;
        std::string said; // messages below the file's line; "" if it passes
    } rows[] = {
        {"its own line, completed by the command line",
         "# tgx: play --script other.tgx\nexpect active OTHER\n", ""},
        {"no such folder", "# tgx: play ../gone\n",
         "      play: no data directory \"" + (data.parent_path() / "gone").string() + "\"\n"},
        {"an unknown word", "# tgx: run ../data\n",
         "      t.events:1: expected # tgx: play DATA --script NAME, found # tgx: run ../data\n"},
        {"an invalid argument", "#\n# tgx: play ../data --events x\n",
         "      t.events:2: The following arguments were not expected: x --events\n"},
        {"an invalid size", "# tgx: play --size 3\n",
         "      t.events:1: --size: expected WIDTHxHEIGHT with sides from 1 to 32767, found 3\n"},
        {"not among the first lines", "frame\n# tgx: play ../gone\nexpect active MENU\n", ""},
        {"an unexpected message", "frame\ncall BOX setBmp gone\n",
         "      t.events:2: the message \"cannot load gone\" was not expected\n"},
    };
    script("SCREEN \"OTHER\" 0 0 64 48 \"\"\n", "other.tgx");
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        events("t.events", row.lines);
        EXPECT_EQ(run(), !row.said.empty() ? 1 : 0);
        EXPECT_EQ(out.str(),
                  (!row.said.empty() ? "FAIL  t.events\n" : "ok    t.events\n") + row.said +
                      (!row.said.empty() ? "1 file, 0 ok, 1 failed\n" : "1 file, 1 ok, 0 failed\n"));
    }
    tests.play.script = "";
    events("t.events", "frame\n");
    EXPECT_EQ(run(), 1);
    EXPECT_NE(
        out.str().find("t.events: no data directory and script: begin it with \"# tgx: play DATA --script "
                       "NAME\", or give --data and --script\n"),
        std::string::npos);
}

TEST_F(TestCommandTest, WritesTheFilesOfEachTestToItsOwnFolder)
{
    events("x/one.events", "# tgx: play ../../data --script script.tgx\ntree t.json\nexpect tree e.json\n");
    events("two.events", std::string(header) + "tree t.json\n");
    EXPECT_EQ(run(), 1);
    for (const char* name : {"x/one/t.json", "x/one/e.actual.json", "two/t.json"})
        EXPECT_TRUE(fs::exists(outputs / name)) << name;
    tests.play.update = true;
    EXPECT_EQ(run(), 0);
    EXPECT_EQ(out.str(), "ok    two.events\nok    x/one.events\n      x/one.events:3: wrote e.json\n"
                         "2 files, 2 ok, 0 failed\n");
    tests.play.update = false;
    EXPECT_EQ(run(), 0);
}

TEST_F(TestCommandTest, ACrashFailsOnlyItsOwnFile)
{
    struct Crashing : AMainWin {
        using AMainWin::AMainWin;
        void drawscreen() override
        {
            if (getWnd("BOX", 1)->wndX() == 7)
                std::raise(SIGKILL);
            AMainWin::drawscreen();
        }
    };
    events("bad.events", std::string(header) + "call BOX setWndPos 7 0 1 1\nframe\n");
    events("good.events", std::string(header) + "frame\nexpect active MENU\n");
    tests.junitFile = (outputs / "junit.xml").string();
    fs::create_directories(outputs);
    EXPECT_EQ(run([](int w, int h, int depth) { return std::make_unique<Crashing>(w, h, depth); }), 1);
    EXPECT_EQ(out.str(), "FAIL  bad.events\n      bad.events: ended by signal 9, Killed\nok    good.events\n"
                         "2 files, 1 ok, 1 failed\n");
    std::string report = readOutput("junit.xml");
    for (std::size_t at = 0; (at = report.find(" time=\"", at)) != std::string::npos;)
        report.erase(at, report.find('"', at + 7) + 1 - at);
    const std::string suite = folder.string();
    EXPECT_EQ(report,
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<testsuite name=\"" + suite +
                  "\" tests=\"2\" failures=\"1\">\n  <testcase classname=\"" + suite +
                  "\" name=\"bad.events\"><failure message=\"bad.events: ended by signal 9, Killed\">"
                  "bad.events: ended by signal 9, Killed\n</failure></testcase>\n  <testcase classname=\"" +
                  suite + "\" name=\"good.events\"/>\n</testsuite>\n");
}

TEST_F(TestCommandTest, RejectsACallThatTestsNothing)
{
    EXPECT_EQ(run(), 2);
    EXPECT_EQ(err.str(), "test: no folder \"" + folder.string() + "\"\n");
    events("a.part", "frame\n");
    EXPECT_EQ(run(), 2);
    EXPECT_EQ(err.str(), "test: no events file below \"" + folder.string() + "\"\n");
    events("a.events", header);
    tests.filter = "b";
    EXPECT_EQ(run(), 2);
    EXPECT_EQ(err.str(), "test: no events file below \"" + folder.string() + "\" has \"b\" in its name\n");
    tests.filter = "";
    tests.junitFile = (folder / "gone/j.xml").string();
    EXPECT_EQ(run(), 2);
    EXPECT_EQ(err.str(), "test: cannot write \"gone/j.xml\"\n");
}

TEST_F(TestCommandTest, AGamesOwnPlayerRunsTests)
{
    events("a.events", "expect active X <&\"\n");
    events("b.events", "expect active MENU\n");
    const auto start = [&](std::vector<std::string> words) {
        std::vector<char*> arguments;
        for (std::string& word : words)
            arguments.push_back(word.data());
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        const int status = playMain(static_cast<int>(arguments.size()), arguments.data(), nullptr);
        out.str(without(testing::internal::GetCapturedStdout(), folder.string() + '/'));
        err.str(testing::internal::GetCapturedStderr());
        return status;
    };
    EXPECT_EQ(start({"game", "test", tests.directory, "b", "--data", data.string(), "--script", "script.tgx",
                     "--size", "64x48", "--jobs", "2"}),
              0);
    EXPECT_EQ(out.str(), "ok    b.events\n1 file, 1 ok, 0 failed\n");
    EXPECT_EQ(start({"game", "test", tests.directory, "--jobs", "0"}), 2);
    EXPECT_EQ(start({"game", "test"}), 2);
    EXPECT_EQ(
        start({"game", data.string(), "--script", "script.tgx", "--events", folder.string() + "/b.events"}),
        0);
    EXPECT_EQ(err.str(), "");
}

#ifdef __linux__
TEST_F(TestCommandTest, ARunEndsWhenItsSuiteIsKilled)
{
    events("long.events", std::string(header) + "tree begun.json\nframe 2000000000\n");
    prctl(PR_SET_CHILD_SUBREAPER, 1); // orphaned processes become children of this one
    const pid_t suite = fork();
    if (suite == 0)
        _exit(run());
    while (!fs::exists(outputs / "long" / "begun.json"))
        std::this_thread::yield();
    kill(suite, SIGKILL);
    int status = 0;
    EXPECT_EQ(waitpid(suite, &status, 0), suite);
    EXPECT_GT(waitpid(-1, &status, 0), 0);
    EXPECT_TRUE(WIFSIGNALED(status));
    prctl(PR_SET_CHILD_SUBREAPER, 0);
}
#endif

} // namespace
