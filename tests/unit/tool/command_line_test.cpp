// The program as a shell runs it: exit status, messages, and that it writes all outputs or none.

#include "tests/unit/language/sources.h"
#include "tests/unit/support/tgx_test.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <map>

namespace fs = std::filesystem;

namespace {

const struct Row {
    const char* arguments;
    int status;
    const char* out;     // beginning of the first line; "" if there is no output
    const char* err;     // the same for stderr
    const char* written; // files that are new or changed
} rows[] = {
    {"build good.tgs", 0, "", "", "good.tgx"},
    {"build good.tgs -o other.tgx --map good.map --depfile good.d", 0, "", "", "good.d good.map other.tgx"},
    {"build good.tgs; mkdir uig; cd uig; tgx build ../good.tgs -o a.tgx; echo *", 0, "a.tgx a.tgx.map", "",
     "good.tgx"},
    {"build - -o good.tgx < good.tgs", 0, "", "", "good.tgx"},
    {"build good.tgs -o - | tgx dump -", 0, "WINDOW \"A\" 0 0 9 9", "", ""},
    {"build bad.tgs", 1, "", "bad.tgs:1:1: error: unknown keyword WINDOWW; did you mean WINDOW?", ""},
    {"build bad.tgs --map bad.map --depfile bad.d", 1, "", "bad.tgs:1:1: error: unknown keyword", ""},
    {"build none.tgs", 1, "", "none.tgs: error: cannot read: ", ""},
    {"build good.tgs -o none/good.tgx", 1, "", "none/good.tgx: error: cannot write: ", ""},
    {"build good.tgs --map none/good.map", 1, "", "none/good.map: error: cannot write: ", ""},
    {"build good.tgs --depfile none/good.d", 1, "", "none/good.d: error: cannot write: ", ""},
    {"build good.tgs -o good.tgs", 2, "", "tgx build: good.tgs would be overwritten by its own output", ""},
    {"build including.tgs -o ./good.tgs", 2, "", "tgx build: ./good.tgs is included and would be", ""},
    {"build good.tgs --map good.tgx", 2, "", "tgx build: two outputs have the name good.tgx", ""},
    {"build", 2, "", "tgx build: ", ""},
    {"build good.tgs --nothing", 2, "", "tgx build: ", ""},

    {"dump good1.tgx", 0, "WINDOW \"A\" 0 0 9 9", "", ""},
    {"dump - < good1.tgx", 0, "WINDOW \"A\" 0 0 9 9", "", ""},
    {"dump good1.tgx -o good1.tgs", 0, "", "", "good1.tgs"},
    {"dump good1.tgx -o ./good1.tgx", 2, "", "tgx dump: good1.tgx would be overwritten by its own text", ""},
    {"dump good1.tgx -o none/good1.tgs", 1, "", "none/good1.tgs: error: cannot write: ", ""},
    {"dump none.tgx", 1, "", "none.tgx: error: cannot read: ", ""},
    {"dump", 2, "", "tgx dump: ", ""},

    {"check good.tgs --data .", 0, "", "0 errors, 0 warnings in 1 script", ""},
    {"check good.tgs", 0, "", "note: pictures and fonts are not checked", ""},
    {"check warned.tgs --data .", 0, "warned.tgs:3:3: warning: TEXTRAW is overridden",
     "0 errors, 1 warning in 1", ""},
    {"check -W warned.tgs --data .", 1, "warned.tgs:3:3: warning: ", "0 errors, 1 warning in 1", ""},
    {"check -W warned.tgs --data . --allow no-effect", 0, "", "0 errors, 0 warnings in 1 script", ""},
    {"check good.tgs --allow no-efect", 2, "",
     "tgx check: there is no code no-efect; did you mean no-effect?", ""},
    {"check -W good.tgs --data .", 0, "", "0 errors, 0 warnings in 1 script", ""},
    {"check bad.tgs", 1,
     "bad.tgs:1:1: error: unknown keyword WINDOWW; did you mean WINDOW? [unknown-keyword]", "note: ", ""},
    {"check --json bad.tgs", 1, "[", "note: ", ""},
    {"check --json good.tgs", 0, "[]", "note: ", ""},
    {"check none.tgs", 1, "", "none.tgs: error: cannot read: ", ""},
    {"check empty", 2, "", "tgx check: no script (*.tgs, *.tgx) found", ""},
    {"check", 2, "", "tgx check: expected a script or a folder", ""},
    {"check --nothing", 2, "", "tgx check: ", ""},
    {"check good.tgs --fonts many", 2, "", "tgx check: --fonts: ", ""},
    {"check good.tgs --data none", 2, "", "tgx check: --data: ", ""},
    {"check --explain limit-exceeded", 0, "limit-exceeded (error): ", "", ""},
    {"check --explain limit-exceded", 2, "",
     "tgx check: there is no code limit-exceded; did you mean limit-exceeded?", ""},

    // Full disks, and inputs that fail or are endless.
    {"dump good1.tgx > /dev/full", 1, "", "stdout: error: cannot write: ", ""},
    {"check --explain limit-exceeded > /dev/full", 1, "", "tgx: cannot write to standard output: ", ""},
    {"play . --script none.tgx --events calls.events > /dev/full", 1, "", "message: no screen", ""},
    {"build good.tgs; ulimit -f 1; trap '' XFSZ; tgx build big.tgs -o good1.tgx", 1, "",
     "good1.tgx: error: cannot write: ", "good.tgx"},
    {"build empty", 1, "", "empty: error: cannot read: this is a folder", ""},
    {"dump empty", 1, "", "empty: error: cannot read: this is a folder", ""},
    {"build /proc/self/mem -o a.tgx", 1, "", "/proc/self/mem: error: cannot read: ", ""},
    {"dump /proc/self/mem", 1, "", "/proc/self/mem: error: cannot read: ", ""},
    {"check /proc/self/mem", 1, "", "/proc/self/mem: error: cannot read: ", ""},
    {"play . --script none.tgx --events /proc/self/mem 2>&1 | tail -n 1", 0,
     "/proc/self/mem:0: cannot read on after this line: ", "", ""},
    {"dump /dev/zero", 1, "", "/dev/zero: error: cannot read: it has more than 16777216 bytes", ""},
    {"check - < /dev/zero", 1, "", "stdin: error: cannot read: it has more than 16777216 bytes", ""},

    {"", 2, "", "Compiles, dumps, checks, plays and shows", ""},
    {"bild good.tgs", 2, "", "tgx: no command bild", ""},
};

class CommandLine : public TgxTest {
protected:
    /// Returns names and contents of the files in the folder.
    static std::map<std::string, std::string> filesIn(const fs::path& folder)
    {
        std::map<std::string, std::string> files;
        for (const fs::directory_entry& each : fs::directory_iterator(folder))
            if (each.is_regular_file())
                files[each.path().filename().string()] = fileContents(each.path());
        return files;
    }
    static std::string firstLine(const fs::path& path)
    {
        const std::string text = fileContents(path);
        return text.substr(0, text.find('\n'));
    }
    static void expectBeginning(const std::string& line, const std::string& beginning)
    {
        EXPECT_EQ(beginning.empty() ? line : line.substr(0, beginning.size()), beginning) << line;
    }
};

TEST_F(CommandLine, ReturnsAStatusAndWritesAllOutputsOrNone)
{
    const fs::path folder = data.parent_path() / "shell";
    const fs::path outFile = outputs / "out";
    const fs::path errFile = outputs / "err";
    fs::create_directories(outputs);
    std::string big;
    for (int i = 0; i < 200; ++i)
        big += "WINDOW \"A\" 0 0 9 9\n";
    const std::map<std::string, std::string> given = {
        {"good.tgs", "WINDOW \"A\" 0 0 9 9\n"},
        {"good1.tgx", build(parse("WINDOW \"A\" 0 0 9 9"))},
        {"including.tgs", "INCLUDE \"good.tgs\"\n"},
        {"warned.tgs", "WINDOW \"A\" 0 0 9 9\nBEGIN\n  TEXTRAW 1\n  TEXTRAW 0\nEND\n"},
        {"big.tgs", big},
        {"calls.events", "call main getFrameStep\n"},
        {"bad.tgs", "WINDOWW \"A\" 0 0 9 9\n"},
        {"bad.tgx", "of an older build"},
        {"bad.map", "of an older build"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(std::string("tgx ") + row.arguments);
        fs::remove_all(folder);
        fs::create_directories(folder / "empty");
        for (const auto& [name, contents] : given)
            std::ofstream(folder / name, std::ios::binary) << contents;

        const std::string command = "cd '" + folder.string() +
                                    "' && tgx() { '" TGX_TOOL "' \"$@\"; } && { tgx " + row.arguments +
                                    "; } >'" + outFile.string() + "' 2>'" + errFile.string() + '\'';
        const int result = std::system(command.c_str());

        ASSERT_TRUE(WIFEXITED(result));
        EXPECT_EQ(WEXITSTATUS(result), row.status);
        expectBeginning(firstLine(outFile), row.out);
        expectBeginning(firstLine(errFile), row.err);
        std::string written;
        for (const auto& [name, contents] : filesIn(folder))
            if (const auto before = given.find(name); before == given.end() || before->second != contents)
                written += (written.empty() ? "" : " ") + name;
        EXPECT_EQ(written, row.written);
        if (row.status == 2 && *row.arguments) {
            const std::string said = fileContents(errFile);
            EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1) << said;
        }
    }
}

} // namespace
