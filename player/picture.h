#pragma once

#include "platform/media/image.h"

#include <optional>
#include <string>

/// A picture of any place of the machine. Null when it is missing or cannot be read.
ImageRef readPicture(const std::string& path);

/// Where two pictures differ in what they show; alpha does not count.
struct PictureDifference {
    int pixels = 0;
    int x = 0, y = 0;                             // the first, row by row
    int left = 0, top = 0, right = 0, bottom = 0; // around all of them, ends included
    std::uint32_t expected = 0, found = 0;        // 0xRRGGBB, of the first
};
/// Of pictures of one size. Nothing when they are equal.
std::optional<PictureDifference> findDifference(const Image& expected, const Image& found);
/// The expected picture, dark and grey, with the pixels that differ in red.
ImageRef showDifference(const Image& expected, const Image& found);
