#pragma once

#include "platform/media/image.h"

#include <optional>
#include <string>

namespace tgx {

/// Reads a picture from any path. Null if it is missing or cannot be read.
ImageRef readPicture(const std::string& path);

/// Where two pictures differ in their visible colours; alpha is ignored.
struct PictureDifference {
    int pixels = 0;
    int x = 0, y = 0;                             // the first different pixel, row by row
    int left = 0, top = 0, right = 0, bottom = 0; // box around all of them, ends included
    std::uint32_t expected = 0, found = 0;        // colours of the first, 0xRRGGBB
};
/// Compares two pictures of the same size. Nothing if they are equal.
std::optional<PictureDifference> findDifference(const Image& expected, const Image& found);
/// Returns the expected picture in dark grey, with the pixels that differ in red.
ImageRef showDifference(const Image& expected, const Image& found);

} // namespace tgx
