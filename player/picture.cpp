#include "player/picture.h"

#include "platform/framework/datadir.h"
#include "platform/media/image_file.h"

#include <algorithm>
#include <filesystem>

namespace fs = std::filesystem;

namespace tgx {

namespace {

constexpr std::uint32_t opaque = 0xFF000000;
constexpr std::uint32_t differs = 0xFF0000; // red

std::uint32_t shownColour(std::uint32_t pixel)
{
    return pixel & 0xFFFFFF;
}

std::uint32_t darkGrey(std::uint32_t pixel)
{
    const std::uint32_t sum = (pixel >> 16 & 255) + (pixel >> 8 & 255) + (pixel & 255);
    return sum / 9 * 0x010101; // a third of the mean of red, green and blue
}

} // namespace

ImageRef readPicture(const std::string& path)
{
    // Pictures are read from the data directory, so make this picture's folder the data directory meanwhile.
    const fs::path folder = fs::path(path).parent_path();
    const OtherDataDirectory beside(folder.empty() ? "." : folder.string());
    return loadImageFile(fs::path(path).filename().string());
}

std::optional<PictureDifference> findDifference(const Image& expected, const Image& found)
{
    PictureDifference all;
    for (int y = 0; y < expected.height; ++y) {
        for (int x = 0; x < expected.width; ++x) {
            const std::uint32_t wanted = shownColour(expected.row(y)[x]);
            const std::uint32_t shown = shownColour(found.row(y)[x]);
            if (wanted == shown)
                continue;
            if (all.pixels++ == 0)
                all = {1, x, y, x, y, x, y, wanted, shown};
            all.left = std::min(all.left, x);
            all.right = std::max(all.right, x);
            all.bottom = y;
        }
    }
    if (all.pixels == 0)
        return std::nullopt;
    return all;
}

ImageRef showDifference(const Image& expected, const Image& found)
{
    ImageRef picture = makeImage(expected.width, expected.height);
    for (int y = 0; y < expected.height; ++y) {
        for (int x = 0; x < expected.width; ++x) {
            const std::uint32_t wanted = shownColour(expected.row(y)[x]);
            const bool isSame = wanted == shownColour(found.row(y)[x]);
            picture->row(y)[x] = opaque | (isSame ? darkGrey(wanted) : differs);
        }
    }
    return picture;
}

} // namespace tgx
