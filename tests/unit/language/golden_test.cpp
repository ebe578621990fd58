// Builds, dumps, rebuilds and plays a script that uses every statement of the language. The results are
// compared with files in tests/golden: window tree, drawing operations and pictures of whole screens, taken
// by all_statements.events. The script is also a seed of the fuzz target. The test fails if drawing changes.
// The actual results, and pictures of the difference, are then in the folder "golden" of the test's working
// directory, build/.../tests under ctest. If the change is intended, update the files with:
//
//     TGX_UPDATE_GOLDEN=1 ctest --test-dir build/release -R unit.language
// Look at the pictures before you commit them.

#include "language/text/print.h"
#include "platform/media/image_file.h"
#include "tests/unit/language/sources.h"
#include "tests/unit/support/tgx_test.h"
#include "tgx/script/vocabulary.h"

#include <cstdlib>
#include <fstream>
#include <set>

namespace {

const std::string folder = TGX_SOURCE_DIR "/tests/golden/";

bool isUpdate()
{
    return std::getenv("TGX_UPDATE_GOLDEN") != nullptr;
}

class GoldenTest : public TgxTest {
protected:
    void SetUp() override
    {
        parsed = tgx::script_text::parse("all_statements.tgs", fileContents(folder + "all_statements.tgs"),
                                         [](const std::string&, std::string&) { return std::nullopt; });
        ASSERT_EQ(headlines(parsed), "");
        bytes = emit(parsed).bytes;
    }

    /// Writes a picture of frames side by side. Each is a plate with a light and a dark edge that fades
    /// downwards, brighter from frame to frame, and not symmetric in any direction.
    void frames(const std::string& name, int width, int height, int count, std::uint32_t colour)
    {
        const ImageRef image = makeImage(count > 1 ? (width + 1) * count : width, height);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < image->width; ++x)
                image->row(y)[x] = 0xFF000000 | pixelOf(x % (width + 1), y, width, height,
                                                        40 + 20 * (x / (width + 1)), colour);
        ASSERT_TRUE(writePng(*image, (data / name).string()));
    }
    static std::uint32_t pixelOf(int x, int y, int width, int height, int brightness, std::uint32_t colour)
    {
        if (x == width)
            return 0; // between two frames
        if (x + y < 3)
            return keyColour; // a corner is cut off
        int percent = brightness + 40 * (height - y) / height;
        if (x == 0 || y == 0)
            percent += 60;
        if (x == width - 1 || y == height - 1)
            percent /= 2;
        std::uint32_t pixel = 0;
        for (int shift : {0, 8, 16})
            pixel |= std::min(255u, (colour >> shift & 255) * static_cast<unsigned>(percent) / 100) << shift;
        return pixel;
    }
    void makePictures()
    {
        bitmap("back.png", 640, 480, 0x203040);
        frames("gem.png", 64, 48, 4, 0x9060C0);
        frames("tile.png", 16, 16, 1, 0x60A060);
        frames("plate.png", 40, 20, 1, 0x806040);
        frames("frame.png", 6, 6, 8, 0xC0A040);
        frames("hotframe.png", 6, 6, 8, 0xFF8040);
        frames("button.png", 90, 24, 5, 0x4070A0);
        frames("combo.png", 160, 24, 5, 0x507080);
        frames("step.png", 20, 24, 5, 0xA07050);
        frames("mark.png", 16, 16, 5, 0x60A060);
        frames("across.png", 26, 16, 6, 0x708090);
        frames("UIG/scroll1.bmp", 16, 26, 6, 0x708090);
        frames("title.png", 200, 20, 1, 0x805030);
        frames("selected.png", 200, 20, 1, 0x3050A0);
        frames("hot.png", 200, 20, 1, 0x306030);
        frames("icon.png", 24, 20, 3, 0xC05050);
        frames("loaded.png", 180, 14, 2, 0x40C0A0);
        frames("tank.png", 16, 56, 2, 0x40A0C0);
    }

    tgx::script_text::ParsedScript parsed;
    std::string bytes;
};

TEST_F(GoldenTest, TheScriptUsesEveryStatement)
{
    std::set<int> used;
    for (const auto& line : parsed.lines)
        for (const auto& token : line.tokens)
            used.insert(token.id);
    for (const Statement& row : vocabulary())
        EXPECT_TRUE(used.contains(row.id)) << row.keyword << " is not used in all_statements.tgs";
}

TEST_F(GoldenTest, DumpAndBuildReproduceTheBytes)
{
    const std::string dump = tgx::script_text::print(bytes);
    EXPECT_EQ(build(parse(dump)), bytes);
    EXPECT_EQ(tgx::script_text::print(build(parse(dump))), dump);
}

TEST_F(GoldenTest, IsASeedOfTheFuzzTarget)
{
    const std::string seed = TGX_SOURCE_DIR "/tests/fuzz/corpus/all_statements.tgx";
    if (isUpdate())
        std::ofstream(seed, std::ios::binary) << bytes;
    EXPECT_TRUE(fileContents(seed) == bytes) << seed << " differs from the compiled all_statements.tgs";
}

TEST_F(GoldenTest, MatchesTheGoldenFiles)
{
    makePictures();
    write("UIG/script.tgx", bytes);
    options.eventsFile = folder + "all_statements.events";
    options.outDirectory = (std::filesystem::current_path() / "golden").string();
    options.update = isUpdate();
    options.messagesFail = true;
    EXPECT_TRUE(Player(options, nullptr, out, err).run() == PlayStatus::Done) << err.str();
}

} // namespace
