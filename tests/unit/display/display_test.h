#pragma once

#include "platform/display/ddwin.h"
#include "platform/framework/datadir.h"
#include "platform/host/headless/headless_host.h"
#include "tests/unit/support/bmp.h"

#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <unistd.h>

/// Records what the window shows and reports.
class SpyHost : public HeadlessHost {
public:
    void show(const Image&, std::span<const tagRECT> rects) override
    {
        changed.assign(rects.begin(), rects.end());
    }
    void showMessage(const CString& text) override { messages.push_back(text.str()); }
    void movePointer(int x, int y) override { moves.emplace_back(x, y); }

    std::vector<tagRECT> changed; // rectangles changed by the last frame
    std::vector<std::string> messages;
    std::vector<std::pair<int, int>> moves;
};

class Scene : public ddwin {
public:
    Scene(int width, int height)
    {
        screenWidth = static_cast<short>(width);
        screenHeight = static_cast<short>(height);
    }
    /// Runs a frame: draws the backdrop, then calls paint. showsItself: calls the base drawscreen, as all
    /// frames but those of a wipe do.
    void frame(
        std::function<void()> paint = [] {}, bool showsItself = true)
    {
        painting = [=, this] {
            drawbackdrop();
            paint();
            if (showsItself)
                ddwin::drawscreen();
        };
        runFrame();
    }
    void drawscreen() override { painting(); }
    /// Returns a pixel of the screen as 0xRRGGBB.
    std::uint32_t at(int x, int y) const { return getScreenImage().row(y)[x] & 0xFFFFFF; }
    /// Returns the number of pixels with that colour.
    int count(std::uint32_t colour) const
    {
        int found = 0;
        for (int y = 0; y < screenHeight; y++)
            for (int x = 0; x < screenWidth; x++)
                found += at(x, y) == colour;
        return found;
    }

    std::function<void()> painting;
};

class DisplayTest : public testing::Test {
protected:
    DisplayTest() : previousHost(displayhost::use(std::make_unique<SpyHost>()))
    {
        folder = std::filesystem::temp_directory_path() / ("tgx_display_" + std::to_string(getpid()));
        std::filesystem::create_directories(folder);
        setDataDirectory(folder.string());
    }
    ~DisplayTest() override
    {
        EXPECT_EQ(host().messages, std::vector<std::string>()) << "a message that the test did not expect";
        displayhost::use(std::move(previousHost));
        setDataDirectory(".");
        std::filesystem::remove_all(folder);
    }
    static SpyHost& host() { return static_cast<SpyHost&>(displayhost::current()); }
    std::vector<std::string> takeMessages() { return std::exchange(host().messages, {}); }
    void write(const std::string& name, const std::string& bytes)
    {
        std::ofstream(folder / name, std::ios::binary) << bytes;
    }

    std::filesystem::path folder;

private:
    std::unique_ptr<displayhost> previousHost;
};

/// Makes an image with the pixels returned by pixelAt(x, y), 0xAARRGGBB.
template<class PixelAt>
ImageRef imageOf(int width, int height, PixelAt pixelAt)
{
    ImageRef image = makeImage(width, height);
    for (int y = 0; y < height; y++)
        for (int x = 0; x < width; x++)
            image->row(y)[x] = pixelAt(x, y);
    determineCoverage(*image);
    return image;
}
