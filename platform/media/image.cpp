#include "platform/media/image.h"

namespace {

std::uint32_t newId()
{
    static std::uint32_t last = 0;
    return ++last;
}

long long livePixels = 0;

// Counts the image's pixels in livePixels until it is deleted.
ImageRef counted(std::unique_ptr<Image> image)
{
    const auto pixels = static_cast<long long>(image->pixels.size());
    const auto release = [pixels](Image* released) {
        livePixels -= pixels;
        delete released;
    };
    livePixels += pixels;
    return {image.release(), release};
}

} // namespace

ImageRef makeImage(int width, int height)
{
    auto image = std::make_unique<Image>();
    image->id = newId();
    image->width = width > 0 && height > 0 ? width : 0;
    image->height = width > 0 && height > 0 ? height : 0;
    image->pitch = ((image->width + 3) & ~3) + 16;
    image->pixels.assign(static_cast<std::size_t>(image->pitch) * image->height, 0xFF000000);
    return counted(std::move(image));
}

ImageRef copyImage(const Image& image)
{
    auto copy = std::make_unique<Image>(image);
    copy->id = newId();
    copy->version = 0;
    copy->heldBy = 0;
    return counted(std::move(copy));
}

long long livePixelCount()
{
    return livePixels;
}

void determineCoverage(Image& image)
{
    image.coverage = Coverage::Opaque;
    for (int y = 0; y < image.height; y++) {
        const std::uint32_t* row = image.row(y);
        for (int x = 0; x < image.width; x++) {
            const std::uint32_t alpha = row[x] >> 24;
            if (alpha == 255)
                continue;
            if (alpha != 0) {
                image.coverage = Coverage::Alpha;
                return;
            }
            image.coverage = Coverage::Masked;
        }
    }
}
