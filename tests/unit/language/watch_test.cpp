#include "language/text/watch.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <functional>

namespace fs = std::filesystem;

namespace {

TEST(Watch, DetectsFilesThatAreWrittenReplacedRemovedOrCreated)
{
    const fs::path folder = fs::path(testing::TempDir()) / "tgx_watch_test";
    fs::remove_all(folder);
    fs::create_directories(folder);
    const auto write = [&](const char* name, const char* text) { std::ofstream(folder / name) << text; };
    const auto touch = [&](const char* name, int seconds) {
        fs::last_write_time(folder / name, fs::file_time_type(std::chrono::seconds(seconds)));
    };
    write("same", "a");
    const struct {
        const char* name;
        std::function<void()> change;
        bool isSeen;
    } rows[] = {
        {"no change", [] {}, false},
        {"other text, another time", [&] { touch("menu", 2000); }, true},
        {"other text, same time", [&] { write("menu", "abc"), touch("menu", 1000); }, true},
        {"another file in its place",
         [&] { touch("same", 500), fs::rename(folder / "same", folder / "menu"); }, true},
        {"removed", [&] { fs::remove(folder / "menu"); }, true},
        {"created", [&] { write("gone", ""); }, true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        write("menu", "a");
        touch("menu", 1000);
        fs::remove(folder / "gone");
        tgx::script_text::WatchedFiles watched({(folder / "menu").string()});
        watched.add((folder / "gone").string());
        row.change();
        EXPECT_EQ(watched.haveChanged(), row.isSeen);
    }
    fs::remove_all(folder);
}

} // namespace
