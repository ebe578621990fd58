// Which scripts a call of `tgx check` reads.

#include "language/check/collect.h"
#include "language/text/read_file.h"
#include "tests/unit/language/check_fixture.h"

namespace {

TEST_F(Check, CollectsScripts)
{
    write("UIG/script.tgs", "INCLUDE \"more.tgs\"");
    write("UIG/more.tgs", "FONT 0");
    write("UIG/script.tgx", "");
    write("UIG/old.tgx", "");
    write("UIG/notes.txt", "");
    write("other/menu.tgs", "");
    write("UIG/sub/deep/parts.tgs", "");
    write("own/menu.tgs", "GOTO \"S\" \"sub/parts.tgx\"");
    write("own/sub/parts.tgs", "");
    write("own/apart/menu.tgs", "");
    // Returns each folder, whether it has a data directory, and its scripts, unreported ones in brackets.
    const auto collected = [&](const char* names) {
        std::string list;
        std::vector<std::string> problems, arguments;
        for (const std::string& each : parts(names))
            arguments.push_back(each == "-" ? data.string() : (data / each).string());
        for (const auto& folder : tgx::script_check::collect(arguments, "", tgx::readFile, problems)) {
            list +=
                relative(folder.path, data).string() + (folder.dataDirectory.empty() ? "" : " (data)") + ':';
            for (const auto& file : folder.files) {
                const std::string name = file.name + (file.isCompiled ? "" : " (text)");
                list += file.isReported ? ' ' + name : " [" + name + ']';
            }
            list += '\n';
        }
        for (const std::string& each : problems)
            list += each.substr(each.rfind('/') + 1) + '\n';
        return list;
    };
    const char* const rows[][3] = {
        {"a folder of folders", "-",
         "UIG (data): old.tgx script.tgx (text) sub\\deep\\parts.tgx (text)\nother: menu.tgx (text)\nown: "
         "menu.tgx (text) sub\\parts.tgx (text)\nown/apart: menu.tgx (text)\n"},
        {"a file, with those of all folders below UIG", "UIG/old.tgx",
         "UIG (data): old.tgx [script.tgx (text)] [sub\\deep\\parts.tgx (text)]\n"},
        {"a file of a folder below UIG", "UIG/sub/deep/parts.tgs",
         "UIG (data): [old.tgx] [script.tgx (text)] sub\\deep\\parts.tgx (text)\n"},
        {"a compiled script with its text beside it, and a folder", "UIG/script.tgx other",
         "UIG (data): [more.tgx (text)] [old.tgx] script.tgx [sub\\deep\\parts.tgx (text)]\nother: menu.tgx "
         "(text)\n"},
        {"a file, with those of a folder that it names", "own/menu.tgs",
         "own: menu.tgx (text) [sub\\parts.tgx (text)]\n"},
        {"several names of one file", "other other/../other/menu.tgs other/menu.tgs",
         "other: menu.tgx (text)\n"},
        {"a missing file, and an existing one", "none/none.tgs other",
         "other: menu.tgx (text)\nnone.tgs: error: cannot read: No such file or directory\n"},
    };
    for (const auto& [name, arguments, expected] : rows) {
        SCOPED_TRACE(name);
        EXPECT_EQ(collected(arguments), expected);
    }
}

} // namespace
