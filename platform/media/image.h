#pragma once

#include "platform/export.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

/// How an image's pixels are laid over what is there in the normal blit mode. Chosen once, when the image is
/// made.
enum class Coverage : std::uint8_t {
    Opaque, // every alpha is 255: rows are copied
    Masked, // alphas are 0 or 255: pixels are selected
    Alpha,  // anything between: pixels are mixed
};

/// Pixels, 0xAARRGGBB with straight alpha; a pixel of the key colour keeps its colour and has alpha 0.
/// Immutable while a display list refers to it: who writes to such an image works on a copy. Identity in a
/// list is id and version, never the address.
struct Image {
    std::uint32_t id = 0;      // never used twice in a run
    std::uint32_t version = 0; // counts the writes
    int width = 0;
    int height = 0;
    int pitch =
        0; // pixels from one row to the next: padded by 64 bytes, so that rows do not share cache lines' sets
    Coverage coverage = Coverage::Opaque;
    bool hasAlphaChannel = false; // the picture brought its own; no key colour then
    std::uint64_t heldBy = 0;     // number of the list that took a reference last: one is enough for a list
    std::string name;             // file name of the surface; empty for what no file holds
    std::vector<std::uint32_t> pixels;

    const std::uint32_t* row(int y) const { return pixels.data() + static_cast<std::size_t>(y) * pitch; }
    std::uint32_t* row(int y) { return pixels.data() + static_cast<std::size_t>(y) * pitch; }
};

using ImageRef = std::shared_ptr<Image>;

/// The colour that shows nothing in a picture without an alpha channel.
constexpr std::uint32_t keyColour = 0xFF00FF;

/// An image of that size with a fresh id, all pixels opaque black. Sides of 0 or less are 0.
TGX_PLATFORM_API ImageRef makeImage(int width, int height);
/// A copy with a fresh id.
TGX_PLATFORM_API ImageRef copyImage(const Image& image);
/// Pixels of all images that makeImage and copyImage have given out and that are still there.
TGX_PLATFORM_API long long livePixelCount();
/// Works out coverage from the alphas.
TGX_PLATFORM_API void settleCoverage(Image& image);
