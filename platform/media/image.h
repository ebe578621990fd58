#pragma once

#include "platform/export.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

/// How the normal blit mode draws an image's pixels. Determined once, when the image is made.
enum class Coverage : std::uint8_t {
    Opaque, // every alpha is 255: rows are copied
    Masked, // alphas are 0 or 255: pixels are selected
    Alpha,  // any alpha: pixels are blended
};

/// A picture in memory, 0xAARRGGBB with straight alpha. A pixel of the key colour keeps its colour and has
/// alpha 0. An image is immutable while a display list refers to it: a writer copies it first. Display lists
/// identify an image by id and version, never by its address.
struct Image {
    std::uint32_t id = 0;      // unique in a run of the program
    std::uint32_t version = 0; // counts the writes
    int width = 0;
    int height = 0;
    int pitch =
        0; // pixels from one row to the next, padded so that rows do not compete for the same cache sets
    Coverage coverage = Coverage::Opaque;
    bool hasAlphaChannel = false; // the picture has its own, so there is no key colour
    std::uint64_t heldBy =
        0; // number of the display list that last took a reference, so that each list takes only one
    std::string name; // file name of the surface; empty if the pixels come from no file
    std::vector<std::uint32_t> pixels;

    const std::uint32_t* row(int y) const { return pixels.data() + static_cast<std::size_t>(y) * pitch; }
    std::uint32_t* row(int y) { return pixels.data() + static_cast<std::size_t>(y) * pitch; }
};

using ImageRef = std::shared_ptr<Image>;

/// The transparent colour in a picture without an alpha channel.
constexpr std::uint32_t keyColour = 0xFF00FF;

/// Makes an image of that size with a new id, all pixels opaque black. It is empty if width or height is 0 or
/// less.
TGX_PLATFORM_API ImageRef makeImage(int width, int height);
/// Returns a copy with a new id.
TGX_PLATFORM_API ImageRef copyImage(const Image& image);
/// Returns the number of pixels in all existing images made by makeImage and copyImage.
TGX_PLATFORM_API long long livePixelCount();
/// Sets coverage according to the alphas of the pixels.
TGX_PLATFORM_API void determineCoverage(Image& image);
