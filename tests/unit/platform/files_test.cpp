// Names in scripts can reach only files of the data directory.

#include "platform/framework/cfile.h"
#include "platform/framework/datadir.h"
#include "platform/limits.h"
#include "platform/system/whole_file.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

/// Makes a temporary folder with a data directory "data" and, outside it, a file "secret.txt".
class Files : public testing::Test {
protected:
    Files()
    {
        std::string pattern = (fs::temp_directory_path() / "tgx-files-XXXXXX").string();
        base = mkdtemp(pattern.data());
        write("secret.txt", "secret");
        write("data/UIG/Menu.tgx", "menu");
        write("data/both.txt", "exact");
        write("data/BOTH.txt", "capitals");
        write("data/Two.txt", "b");
        write("data/TWO.txt", "a");
        write("data2/near.txt", "beside");
        fs::create_symlink("../secret.txt", base / "data/out.txt");
        fs::create_symlink("..", base / "data/up");
        fs::create_symlink("UIG/Menu.tgx", base / "data/in.tgx");
        fs::create_symlink("../data2", base / "data/near");
        fs::create_symlink("loop", base / "data/loop");
        EXPECT_EQ(mkfifo((base / "data/pipe").c_str(), 0600), 0);
        setDataDirectory((base / "data").string());
    }
    ~Files() override
    {
        setDataDirectory(".");
        fs::remove_all(base);
    }
    void write(const std::string& name, std::string_view bytes)
    {
        fs::create_directories((base / name).parent_path());
        std::ofstream(base / name, std::ios::binary) << bytes;
    }
    static std::string contents(const std::string& name)
    {
        CFile file;
        return file.Open(name.c_str()) ? std::string(file.bytes()) : "none";
    }

    fs::path base;
};

TEST_F(Files, aNameFindsFilesInAnyCaseButNoneOutside)
{
    const struct {
        const char* name;
        std::string file;
        const char* bytes;
    } rows[] = {
        {"backslash and other case", "uig\\MENU.TGX", "menu"},
        {"slash, double slash and dot", "./UIG//Menu.tgx", "menu"},
        {"the exact name takes precedence", "both.txt", "exact"},
        {"the first of several in byte order", "two.txt", "a"},
        {"a link to a file inside", "IN.tgx", "menu"},
        {"missing", "UIG\\none.tgx", "none"},
        {"empty", "", "none"},
        {"a folder", "UIG", "none"},
        {"a pipe", "pipe", "none"},
        {"a file used as a folder", "both.txt\\x", "none"},
        {"leads out", "..\\secret.txt", "none"},
        {"leads out from a folder inside", "UIG/../../secret.txt", "none"},
        {".. without leading out", "UIG\\..\\both.txt", "none"},
        {"absolute", (base / "data/both.txt").string(), "none"},
        {"absolute with a backslash", "\\both.txt", "none"},
        {"drive letter", "c:both.txt", "none"},
        {"a link to a file outside", "out.txt", "none"},
        {"the same link in another case", "OUT.TXT", "none"},
        {"a link to a folder outside", "up\\secret.txt", "none"},
        {"a folder outside with the same prefix", "near/near.txt", "none"},
        {"a link to itself", "loop", "none"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(contents(row.file), row.bytes);
    }
    EXPECT_FALSE(findDataFile(std::string_view("both.txt\0x", 10)))
        << "a name with characters after a 0 byte";
}

TEST_F(Files, byDefaultTheWorkingFolderIsSearchedBeforeTheExecutables)
{
    const std::string name = "tgx-files-test-" + std::to_string(getpid()) + ".txt";
    const fs::path beside = fs::read_symlink("/proc/self/exe").parent_path() / name;
    const fs::path before = fs::current_path();
    fs::current_path(base);
    setDataDirectory("");
    std::ofstream(beside) << "beside";
    EXPECT_EQ(contents(name), "beside");
    {
        const OtherDataDirectory other((base / "data").string());
        EXPECT_EQ(contents(name), "none") << "only the folder that was set is searched";
    }
    EXPECT_EQ(contents(name), "beside") << "both default folders are searched again";
    write(name, "here");
    EXPECT_EQ(contents(name), "here");
    setDataDirectory(".");
    fs::remove(base / name);
    EXPECT_EQ(contents(name), "none");
    fs::remove(beside);
    fs::current_path(before);
}

TEST_F(Files, aMissingFileIsReportedWithTheSearchedFolder)
{
    const std::string folder = fs::canonical(base / "data").string();
    setMemoryFile("ram\\x.tgx", std::make_shared<const std::string>());
    const struct {
        const char* name;
        std::string file;
        std::string whyNoFile;
    } rows[] = {
        {"a file", "uig\\none.tgx", "no file none.tgx in " + folder + "/uig"},
        {"a file without a folder", "none.bmp", "no file none.bmp in " + folder},
        {"its folder", "art\\none.bmp", "no folder art in " + folder},
        {"a folder in an existing one", "UIG/old/none.tgx", "no folder UIG/old in " + folder},
        {"a file used as a folder", "both.txt\\x", "no folder both.txt in " + folder},
        {"an existing file", "uig\\menu.tgx", ""},
        {"a memory file without a folder", "ram\\x.tgx", ""},
        {"a refused name", "..\\secret.txt", ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(whyNoDataFile(row.file), row.whyNoFile);
        EXPECT_EQ(missingDataFolder(row.file), row.whyNoFile.starts_with("no folder") ? row.whyNoFile : "");
    }
    setMemoryFile("ram\\x.tgx", nullptr);
}

TEST_F(Files, aFileThatAppearsAfterAFailedLookUpIsFound)
{
    // Listings are cached only for folders that have not changed recently.
    fs::last_write_time(base / "data", fs::file_time_type::clock::now() - std::chrono::hours(1));
    EXPECT_FALSE(findDataFile("NEW.txt"));
    write("data/new.txt", "new");
    EXPECT_EQ(contents("NEW.txt"), "new");
    fs::remove(base / "data/new.txt");
    EXPECT_EQ(contents("NEW.txt"), "none");
}

TEST_F(Files, readingAndSeekingStayInsideTheFile)
{
    write("data/ten.txt", "0123456789");
    CFile file;
    ASSERT_EQ(file.Open("TEN.txt"), 1);
    EXPECT_STREQ(file.GetFileName(), "TEN.txt") << "the name as passed to Open";

    char buffer[16] = {};
    EXPECT_EQ(file.Read(buffer, 4), 4u);
    EXPECT_EQ(file.Seek(-1, CFile::current), 3u);
    EXPECT_EQ(file.Read(buffer, 16), 7u);
    EXPECT_EQ(std::string_view(buffer, 7), "3456789");
    EXPECT_EQ(file.Read(buffer, 1), 0u);
    EXPECT_EQ(file.Seek(-3, CFile::end), 7u);
    EXPECT_EQ(file.Seek(std::numeric_limits<long>::max(), CFile::current), 10u);
    EXPECT_EQ(file.Seek(std::numeric_limits<long>::min(), CFile::end), 0u);

    fs::resize_file(base / "data/both.txt", limits::fileBytes + 1);
    EXPECT_EQ(file.Open("both.txt"), 0);
    EXPECT_TRUE(file.wasTooLarge());
    EXPECT_EQ(file.Open("missing.txt"), 0);
    EXPECT_FALSE(file.wasTooLarge());
    EXPECT_EQ(file.GetLength(), 0u) << "nothing of the previous file remains";
    ASSERT_EQ(file.Open("UIG\\menu.tgx"), 1);
    EXPECT_STREQ(file.GetFileName(), "menu.tgx");
}

TEST_F(Files, aMemoryFileReadsTheAttachedBytes)
{
    CMemFile file;
    char byte = 'x';
    EXPECT_EQ(file.Read(&byte, 1), 0u);
    const unsigned char memory[] = {7, 0, 9};
    file.Attach(memory, 3);
    EXPECT_TRUE(file.GetFileName().IsEmpty());
    EXPECT_EQ(file.Seek(2), 2u);
    EXPECT_EQ(file.Read(&byte, 1), 1u);
    EXPECT_EQ(byte, 9);
    file.Close();
    EXPECT_EQ(file.Read(&byte, 1), 0u);
    file.Attach(nullptr, 3);
    EXPECT_EQ(file.GetLength(), 0u);
}

TEST_F(Files, aNewFileIsCompleteOrMissing)
{
    const std::string path = (base / "new.txt").string();
    std::string reason;
    const auto countFiles = [this] { return std::distance(fs::directory_iterator(base), {}); };
    const auto before = countFiles();
    {
        tgx::NewFile abandoned;
        EXPECT_TRUE(abandoned.prepare(path, "half", reason));
        EXPECT_EQ(countFiles(), before + 1);
    }
    EXPECT_EQ(countFiles(), before) << "a file that was not put in place is removed";
    EXPECT_FALSE(tgx::writeWholeFile((base / "none/new.txt").string(), "a", reason));
    EXPECT_FALSE(tgx::writeWholeFile(base.string(), "a", reason));
    EXPECT_FALSE(tgx::writeWholeFile("/dev/full", "a", reason));
    EXPECT_EQ(countFiles(), before);

    fs::create_symlink("new.txt", base / "link.txt");
    EXPECT_TRUE(tgx::writeWholeFile(path, "first", reason)) << reason;
    fs::permissions(path, fs::perms::owner_all);
    EXPECT_TRUE(tgx::writeWholeFile((base / "link.txt").string(), "second", reason)) << reason;
    EXPECT_TRUE(fs::is_symlink(base / "link.txt"));
    EXPECT_EQ(tgx::readWholeFile(path, 6, reason), "second");
    EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_all) << "the permissions of the replaced file";
    EXPECT_FALSE(tgx::readWholeFile(path, 5, reason)) << "one byte too many";

    const pid_t child = fork();
    if (child == 0) {
        tgx::removeNewFilesOnSignals();
        tgx::NewFile interrupted;
        interrupted.prepare(path, "third", reason);
        std::raise(SIGTERM);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(countFiles(), before + 2) << "new.txt and its link";
    EXPECT_EQ(tgx::readWholeFile(path, 6, reason), "second");
}

} // namespace
