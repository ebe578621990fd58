#include "platform/display/settings.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>

namespace fs = std::filesystem;

namespace {

class Settings : public testing::Test {
protected:
    Settings()
    {
        std::string pattern = (fs::temp_directory_path() / "tgx-settings-XXXXXX").string();
        base = mkdtemp(pattern.data());
        setenv("XDG_CONFIG_HOME", base.c_str(), 1);
        setSettingsOwner("../Harbour & Sons", "Ships/..");
    }
    ~Settings() override
    {
        setSettingsOwner("", "");
        unsetenv("XDG_CONFIG_HOME");
        fs::remove_all(base);
    }
    static int store(const char* name, unsigned long value) { return setregistry(name, &value); }
    static std::optional<unsigned long> stored(const char* name)
    {
        unsigned long value = 4711;
        if (getregistry(name, &value))
            return value;
        EXPECT_EQ(value, 4711u) << "the variable is unchanged if nothing is stored";
        return std::nullopt;
    }
    std::string fileText() const
    {
        std::ostringstream text;
        text << std::ifstream(file).rdbuf();
        return text.str();
    }

    fs::path base;
    fs::path file;
};

TEST_F(Settings, areReadBackFromTheFileOfTheirOwner)
{
    file = base / "Harbour  Sons" / "Ships" / "settings.txt";
    EXPECT_EQ(stored("FullScreen"), std::nullopt);
    EXPECT_EQ(store("FullScreen", 1), 1);
    EXPECT_EQ(store("Depth", 0xFFFFFFFFul), 1);
    EXPECT_EQ(store("FullScreen", 0), 1);
    EXPECT_EQ(stored("FullScreen"), 0u);
    EXPECT_EQ(fileText(), "Depth=4294967295\nFullScreen=0\n");
    EXPECT_EQ(std::distance(fs::directory_iterator(file.parent_path()), {}), 1)
        << "no temporary file is left";

    EXPECT_EQ(store("two\nlines", 1), 0);
    EXPECT_EQ(store("a=b", 1), 0);
    setSettingsOwner("../Harbour & Sons", "Another");
    EXPECT_EQ(stored("Depth"), std::nullopt);
}

TEST_F(Settings, ignoreCorruptLines)
{
    file = base / "Harbour  Sons" / "Ships" / "settings.txt";
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary)
        << "Good=7\r\n=3\nText=abc\nHalf=12x\nMinus=-1\nHuge=99999999999999999999999\n"
        << std::string("Zero\0=1\n", 8) << "no sign\nGood too=8\nNoEnd=9";
    for (const char* name : {"", "Text", "Half", "Minus", "Huge", "no sign"})
        EXPECT_EQ(stored(name), std::nullopt) << name;
    EXPECT_EQ(stored("Good"), 7u);
    EXPECT_EQ(stored("Good too"), 8u);
    EXPECT_EQ(stored("NoEnd"), 9u);
    EXPECT_EQ(store("New", 1), 1);
    EXPECT_EQ(fileText().find("abc"), std::string::npos) << "corrupt lines are not kept";
    EXPECT_EQ(stored("Good"), 7u);
}

TEST_F(Settings, cannotBeStoredWhereAFileBlocksTheFolder)
{
    std::ofstream(base / "Harbour  Sons") << "a file where the folder should be";
    EXPECT_EQ(store("FullScreen", 1), 0);
    EXPECT_EQ(stored("FullScreen"), std::nullopt);
}

TEST_F(Settings, areNotStoredWithoutAProgram)
{
    for (const char* program : {"", "..", "///"}) {
        setSettingsOwner("Company", program);
        EXPECT_EQ(store("FullScreen", 1), 0) << program;
        EXPECT_EQ(stored("FullScreen"), std::nullopt) << program;
    }
    EXPECT_TRUE(fs::is_empty(base));
}

} // namespace
