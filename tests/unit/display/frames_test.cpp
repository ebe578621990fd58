#include "tests/unit/display/display_test.h"

#include <map>
#include <set>

namespace {

class FramesTest : public DisplayTest {
protected:
    FramesTest()
    {
        white.setImage(imageOf(20, 20, [](int, int) { return 0xFFFFFFFFu; }), "");
        window.frame();
    }
    // Writes a plain picture of the screen's size.
    void writeBackdrop(const std::string& name, char blue)
    {
        std::string pixels;
        for (int i = 0; i < 256 * 192; i++)
            pixels += std::string(1, blue) + std::string("\x10\x20", 2);
        write(name, bmpFile(256, 192, 24, pixels));
    }
    void put(int x, int y) { white.blit(x, y, 20, 20, nullptr, -1); }
    int changedPixels() const
    {
        int pixels = 0;
        for (const tagRECT& rect : host().changed)
            pixels += (rect.right - rect.left) * (rect.bottom - rect.top);
        return pixels;
    }
    Scene window{256, 192};
    surface white{&window};
};

TEST_F(FramesTest, OnlyDifferencesAreReported)
{
    const std::vector<std::pair<const char*, std::function<void()>>> frames = {
        {"one bitmap", [&] { put(5, 5); }},
        {"moved far away", [&] { put(200, 150); }},
        {"with another drawn before it", [&] { put(100, 5), put(200, 150); }},
        {"with another drawn after it", [&] { put(100, 5), put(200, 150), put(5, 150); }},
        {"in another order", [&] { put(200, 150), put(100, 5), put(5, 150); }},
        {"none", [] {}},
    };
    for (const auto& [name, paint] : frames) {
        SCOPED_TRACE(name);
        const Image before = window.getScreenImage();
        window.frame(paint);
        Image patched = before;
        for (const tagRECT& rect : host().changed)
            for (int y = rect.top; y < rect.bottom; y++)
                std::copy(window.getScreenImage().row(y) + rect.left,
                          window.getScreenImage().row(y) + rect.right, patched.row(y) + rect.left);
        EXPECT_EQ(patched.pixels, window.getScreenImage().pixels)
            << "a change outside the reported rectangles";
        EXPECT_LT(changedPixels(), 256 * 192 / 2);
        const Image shown = window.getScreenImage();
        window.frame(paint);
        EXPECT_EQ(changedPixels(), 0) << "an identical frame changes nothing";
        window.redrawScreen();
        window.frame(paint);
        EXPECT_EQ(changedPixels(), 256 * 192) << "redrawScreen redraws everything";
        EXPECT_EQ(shown.pixels, window.getScreenImage().pixels) << "a full redraw gives another picture";
    }
}

TEST_F(FramesTest, OverlappingBoxesKeepTheirOrderInEveryTile)
{
    std::uint32_t seed = 7;
    const auto random = [&](int below) {
        return static_cast<int>((seed = seed * 1664525 + 1013904223) >> 8) % below;
    };
    for (int round = 0; round < 30; round++) {
        std::vector<std::array<int, 5>> boxes;
        for (int i = 0; i < 40; i++)
            boxes.push_back({random(256) - 20, random(192) - 20, random(150), random(150), random(1 << 24)});
        std::vector<std::uint32_t> expected(256 * 192, 0);
        for (const auto& [x, y, w, h, colour] : boxes)
            for (int py = std::max(0, y); py < std::min(192, y + h); py++)
                for (int px = std::max(0, x); px < std::min(256, x + w); px++)
                    expected[static_cast<std::size_t>(py) * 256 + px] = static_cast<std::uint32_t>(colour);
        window.frame([&] {
            for (const auto& [x, y, w, h, colour] : boxes)
                window.fillrect(x, y, x + w, y + h, static_cast<unsigned long>(colour));
        });
        for (int i = 0; i < 256 * 192; i++)
            ASSERT_EQ(window.at(i % 256, i / 256), expected[static_cast<std::size_t>(i)])
                << round << ": " << i % 256 << ", " << i / 256;
    }
}

TEST_F(FramesTest, ADeletedSurfaceIsStillShownByItsFrame)
{
    write("a.bmp", bmpFile(1, 1, 24, std::string("\x30\x20\x10\0", 4)));
    surface* sprite = window.createsprite("a.bmp", -1, -1, -1);
    ASSERT_TRUE(sprite);
    window.frame([&] {
        sprite->blit(3, 3, 1, 1, nullptr, -1);
        EXPECT_EQ(window.deleteSurface(sprite), 1);
    });
    EXPECT_EQ(window.at(3, 3), 0x102030u);
    EXPECT_EQ(window.getSurfaceCount(), 0);
    EXPECT_EQ(window.deleteSurface(&white), 0) << "it does not belong to this window";
    EXPECT_EQ(window.deleteSurface(nullptr), 0);
    EXPECT_EQ(window.getLastFrame().commands()[1].image->name, "a.bmp")
        << "the list can be read until the next frame ends";
}

TEST_F(FramesTest, PixelsOfAFileAreDroppedWhenNotShownAndReloadedWhenUsed)
{
    const auto picture = [&](char blue) {
        write("a.bmp", bmpFile(1, 1, 24, std::string(1, blue) + std::string("\x20\x10\0", 3)));
    };
    picture('\x30');
    const long long before = livePixelCount();
    surface* sprite = window.createsprite("a.bmp", -1, -1, -1);
    surface* written = window.createsprite("a.bmp", -1, -1, -1);
    written->setPixel(0, 0, 0x445566);
    const auto showAndRelease = [&] {
        SurfaceRef first(sprite);
        SurfaceRef(written).get();
        window.frame();
        EXPECT_NE(sprite->getImage(), nullptr);
    };
    const long long shared = livePixelCount() - before;
    showAndRelease();
    window.frame(), window.frame();
    EXPECT_EQ(livePixelCount() - before, shared / 2) << "only modified pixels are kept";
    EXPECT_EQ(sprite->width, 1);
    window.frame([&] {
        surface copy(*sprite);
        copy.blit(0, 0, 1, 1, nullptr, -1);
        sprite->blit(1, 0, 1, 1, nullptr, -1);
        written->blit(2, 0, 1, 1, nullptr, -1);
    });
    EXPECT_EQ(window.at(0, 0), 0x102030u);
    EXPECT_EQ(window.at(1, 0), 0x102030u);
    EXPECT_EQ(window.at(2, 0), 0x445566u);

    showAndRelease();
    window.frame(), window.frame();
    std::filesystem::remove(folder / "a.bmp");
    window.reloadsurfaces();
    window.frame([&] { sprite->blit(1, 0, 1, 1, nullptr, -1), sprite->blit(1, 0, 1, 1, nullptr, -1); });
    EXPECT_EQ(takeMessages(), std::vector<std::string>{"cannot load a.bmp"}) << "reported once";
    EXPECT_EQ(window.getSurfaceCount(), 2);
}

TEST_F(FramesTest, SetPixelAffectsOnlyLaterBlitsOfThatSurface)
{
    write("a.bmp", bmpFile(1, 1, 24, std::string("\x30\x20\x10\0", 4)));
    surface* one = window.createsprite("a.bmp", -1, -1, -1);
    surface* other = window.createsprite("a.bmp", -1, -1, -1);
    ASSERT_NE(one, other);
    EXPECT_EQ(one->getImage(), other->getImage()) << "surfaces of one file share pixels";
    window.frame([&] {
        one->blit(0, 0, 1, 1, nullptr, -1);
        one->setPixel(0, 0, 0xAABBCC);
        one->blit(1, 0, 1, 1, nullptr, -1);
        other->blit(2, 0, 1, 1, nullptr, -1);
        one->setPixel(1, 0, 0); // outside the bitmap
    });
    EXPECT_EQ(window.at(0, 0), 0x102030u);
    EXPECT_EQ(window.at(1, 0), 0xAABBCCu);
    EXPECT_EQ(window.at(2, 0), 0x102030u);

    one->setPixel(0, 0, 0x010203);
    const Image* written = one->getImage().get();
    one->setPixel(0, 0, keyColour);
    EXPECT_EQ(one->getImage().get(), written) << "pixels that are in no display list are modified in place";
    window.frame([&] { one->blit(1, 0, 1, 1, nullptr, -1); });
    EXPECT_EQ(window.at(1, 0), 0u) << "the key colour is transparent";
    EXPECT_EQ(one->reload(), 1);
    window.frame([&] { one->blit(1, 0, 1, 1, nullptr, -1); });
    EXPECT_EQ(window.at(1, 0), 0x102030u);
}

TEST_F(FramesTest, AReloadShowsTheNewContentsOfTheFiles)
{
    const auto colour = [&](char blue) {
        write("a.bmp", bmpFile(1, 1, 24, std::string(1, blue) + std::string("\0\0\0", 3)));
    };
    colour('\x10');
    surface* a = window.createsprite("a.bmp", -1, -1, -1);
    surface* b = window.createsprite("a.bmp", -1, -1, -1);
    const auto paint = [&] { a->blit(0, 0, 1, 1, nullptr, -1), b->blit(1, 0, 1, 1, nullptr, -1); };
    window.frame(paint);
    colour('\x99');
    window.reloadsurfaces();
    EXPECT_EQ(a->getImage(), b->getImage());
    window.frame(paint);
    EXPECT_EQ(window.at(0, 0), 0x99u);
    std::filesystem::remove(folder / "a.bmp");
    EXPECT_EQ(a->reload(), 0);
    window.frame(paint);
    EXPECT_EQ(window.at(1, 0), 0x99u) << "the pixels are kept if the file is missing";
}

TEST_F(FramesTest, PicturesLoadedAlternatelyAreDecodedOnceInAFrame)
{
    for (const char* name : {"a.bmp", "b.bmp"})
        write(name, bmpFile(1, 1, 24, std::string("\x30\x20\x10\0", 4)));
    std::map<std::string, std::set<std::uint32_t>> ids;
    for (int round = 0; round < 3; round++)
        for (const char* name : {"a.bmp", "b.bmp"}) {
            surface* sprite = window.createsprite(name, -1, -1, -1);
            ASSERT_TRUE(sprite);
            ids[name].insert(sprite->getImage()->id);
            window.deleteSurface(sprite);
        }
    EXPECT_EQ(ids["a.bmp"].size(), 1u);
    EXPECT_EQ(ids["b.bmp"].size(), 1u);
    const long long before = livePixelCount();
    window.frame();
    EXPECT_EQ(livePixelCount(), before - 2 * (4 + 16)) << "nothing keeps them after the frame";
}

TEST_F(FramesTest, AFailedFileIsDecodedAgainOnlyAfterAChangeOrReload)
{
    // Each attempt to decode uses up an image id.
    const auto idsTaken = [&](auto act) {
        const std::uint32_t before = makeImage(0, 0)->id;
        act();
        return makeImage(0, 0)->id - before - 1;
    };
    const auto tryIt = [&] {
        for (const char* name : {"a.bmp", "A.BMP", "./a.bmp"})
            EXPECT_EQ(window.createsprite(name, -1, -1, -1), nullptr);
    };
    const std::string palette(16, '\x40');
    write("a.bmp",
          bmpFile(2, 2, 8, std::string("\x02\x01", 2), palette, 1)); // run-length data without an end
    EXPECT_EQ(idsTaken(tryIt), 1u);
    EXPECT_EQ(idsTaken([&] { window.frame(tryIt); }), 0u);
    window.reloadsurfaces();
    EXPECT_EQ(idsTaken(tryIt), 1u);
    write("a.bmp", bmpFile(2, 2, 8, std::string("\x02\x01\0\x01", 4), palette, 1));
    EXPECT_NE(window.createsprite("a.bmp", -1, -1, -1), nullptr);
}

TEST_F(FramesTest, PixelsOfAllPicturesTogetherAreLimited)
{
    write("small.bmp", bmpFile(1, 1, 24, std::string(4, 1)));
    write("large.bmp", bmpFile(8000, 8000, 8, std::string("\0\x01", 2), std::string(16, 0), 1));
    std::vector<surface*> sections;
    for (int i = 0; i < 3; i++)
        sections.push_back(window.createBkgndSection(&white, 0, 0, 8000, 8000, nullptr));
    EXPECT_EQ(std::count(sections.begin(), sections.end(), nullptr), 0);
    EXPECT_EQ(window.createBkgndSection(&white, 0, 0, 8000, 8000, nullptr), nullptr);
    EXPECT_EQ(takeMessages(), std::vector<std::string>{"cannot load background"});
    EXPECT_EQ(window.createBkgndSection(&white, 0, 0, 8000, 8000, sections[0]), sections[0]);
    EXPECT_EQ(sections[0]->width, 8000) << "it may reuse the room of its own pixels";
    EXPECT_EQ(window.createsprite("large.bmp", -1, -1, -1), nullptr);
    EXPECT_NE(window.createsprite("small.bmp", -1, -1, -1), nullptr);
    window.deleteSurface(sections[0]);
    EXPECT_NE(window.createsprite("large.bmp", -1, -1, -1), nullptr)
        << "a picture refused for lack of room can be loaded later";
}

TEST_F(FramesTest, ANewBackdropAppearsOnlyWhereItIsMarkedDirty)
{
    writeBackdrop("one.bmp", '\x11');
    writeBackdrop("two.bmp", '\x22');
    constexpr std::uint32_t one = 0x201011, two = 0x201022;
    tagRECT whole{0, 0, 256, 192};
    window.setbackdrop("one.bmp", -1);
    window.frame();
    EXPECT_EQ(window.count(one), 0) << "nothing was marked";
    window.adddirtyrect(whole);
    window.frame();
    EXPECT_EQ(window.count(one), 256 * 192);

    window.setbackdrop("two.bmp", -1);
    for (const int strip : {0, 64, 128}) {
        tagRECT rect{strip, -5, strip + 10, 500};
        window.adddirtyrect(rect);
        window.frame([] {}, false); // as in a wipe: only the end of the frame shows it
        EXPECT_EQ(changedPixels(), 64 * 192) << strip;
        EXPECT_EQ(window.count(two), (strip / 64 + 1) * 10 * 192);
        EXPECT_EQ(window.at(strip + 9, 100), two);
        EXPECT_EQ(window.at(strip + 10, 100), one);
    }
    window.adddirtyrect(whole);
    window.frame();
    EXPECT_EQ(window.count(two), 256 * 192);
    window.adddirtyrect(whole);
    window.frame();
    EXPECT_EQ(changedPixels(), 0) << "the same picture everywhere";
}

TEST_F(FramesTest, ABackdropIsStretchedToTheScreenOrPlain)
{
    write("small.bmp", bmpFile(2, 1, 24, std::string("\xFF\0\xFF\0\xFF\0\0\0", 8)));
    window.setbackdrop("small.bmp", -1);
    EXPECT_EQ(window.getBackdrop()->width, 256);
    EXPECT_STREQ(window.getBackdrop()->filename, "small.bmp");
    window.redrawScreen();
    window.frame();
    EXPECT_EQ(window.at(127, 191), 0xFF00FFu) << "backdrops have no transparent colour";
    EXPECT_EQ(window.at(128, 0), 0x00FF00u);
    window.screenWidth = 300;
    window.frame();
    EXPECT_EQ(window.getScreenImage().width, 300);
    EXPECT_EQ(window.at(149, 0), 0xFF00FFu);
    EXPECT_EQ(window.at(150, 0), 0x00FF00u);

    surface* section = window.createBkgndSection(window.getBackdrop(), 298, -1, 4, 3, nullptr);
    EXPECT_EQ(section->getImage()->row(1)[1], 0xFF00FF00u);
    EXPECT_EQ(section->getImage()->row(1)[2], 0xFF000000u) << "outside the source";
    EXPECT_EQ(section->getImage()->row(0)[1], 0xFF000000u);
    EXPECT_EQ(window.createBkgndSection(window.getBackdrop(), 0, 0, 2, 2, section), section);
    EXPECT_EQ(section->getImage()->row(1)[1], 0xFFFF00FFu);
    EXPECT_EQ(window.createBkgndSection(section, 1, 1, 1, 1, section), section) << "a section of itself";
    EXPECT_EQ(section->getImage()->row(0)[0], 0xFFFF00FFu);
    EXPECT_EQ(window.createBkgndSection(nullptr, 0, 0, 2, 2, nullptr), nullptr);
    EXPECT_EQ(window.createBkgndSection(nullptr, 0, 0, 2, 2, section), section);
    EXPECT_EQ(section->width, 0) << "the old surface is empty but still exists";
    EXPECT_NE(window.createBkgndSection(window.getBackdrop(), INT_MIN, INT_MAX, INT_MAX, 1, nullptr),
              nullptr);

    EXPECT_EQ(window.createBkgndSection(window.getBackdrop(), 0, 0, INT_MAX, INT_MAX, section), section);
    EXPECT_EQ(section->width, 0);
    EXPECT_EQ(takeMessages(), std::vector<std::string>{"cannot load small.bmp"}) << "larger than any picture";

    window.setbackdrop("none.bmp", -1);
    EXPECT_EQ(takeMessages(), std::vector<std::string>{"cannot load none.bmp"});
    window.redrawScreen();
    window.frame();
    EXPECT_EQ(window.count(0), 300 * 192);
    window.setbackdrop("", -1);
}

TEST_F(FramesTest, TheLastFrameContainsAllCommandsSinceThePreviousOne)
{
    window.fillrect(1, 2, 3, 4, window.getcol(0x0000FF));
    window.frame(
        [&] { window.textout(7, 8, "text", window.getFont(0), nullptr, 1, ZnFixed::fromRaw(4096), 1); });
    window.fillrect(5, 6, 7, 8, 0);
    const auto commands = window.getLastFrame().commands();
    ASSERT_EQ(commands.size(), 4u);
    EXPECT_EQ(commands[0].op, DrawOp::FillRect);
    EXPECT_EQ(commands[0].colour, 0xFF0000u);
    EXPECT_EQ(commands[1].op, DrawOp::DrawBackdrop);
    EXPECT_EQ(window.getLastFrame().text(commands[2]), "text");
    EXPECT_EQ(commands[3].op, DrawOp::DrawScreen);
    EXPECT_EQ(window.count(0xFF0000), 0) << "the backdrop was drawn over it";
}

TEST_F(FramesTest, AKeyIsQueuedWhenItsTickEnds)
{
    class Ticker : public ddwin {
    public:
        void OnMouseAction() override
        {
            if (ends)
                ddwin::OnMouseAction();
        }
        void OnKeyInput() override { keys++; }
        bool ends = false;
        int keys = 0;
    } ticker;
    host().input().key('A', 'a');
    ticker.runTick();
    ticker.runTick();
    EXPECT_EQ(ticker.keys, 0);
    ticker.ends = true;
    ticker.runTick();
    EXPECT_EQ(ticker.keys, 1);
    EXPECT_EQ(ticker.key(), 'A');
    EXPECT_EQ(ticker.key(), 0);

    ticker.mouseX = 12; // a write moves the pointer
    ticker.runTick();
    host().input().move(30, 40); // the pointer is already there
    ticker.runTick();
    EXPECT_EQ(host().moves, (std::vector<std::pair<int, int>>{{12, 0}}));
    EXPECT_EQ(ticker.mouseX, 30);
}

} // namespace
