#pragma once

#include <cstddef>
#include <cstdint>

/// The inner loops over pixels. Arguments are already clipped and within bounds. Pixels of the target are
/// opaque, 0xFFRRGGBB, before and after.

struct PixelBlock {
    std::uint32_t* to;
    std::ptrdiff_t toPitch; // pixels
    const std::uint32_t* from;
    std::ptrdiff_t fromPitch; // pixels; 0 repeats one row
    int width;
    int height;
};

/// Copies the source, which must be opaque.
void copyPixels(const PixelBlock& block);
/// Copies the source's colours and ignores its alphas.
void copyColours(const PixelBlock& block);
/// Copies the pixels whose alpha is 255. All other alphas must be 0.
void selectPixels(const PixelBlock& block);
/// Blends by the source's alpha, rounding to the nearest value: 255 gives the source, 0 keeps the target.
void blendPixels(const PixelBlock& block);
/// Blends the average of source and target into the target, by the source's alpha.
void averagePixels(const PixelBlock& block);
/// Adds the source multiplied by its alpha, saturating at 255.
void addPixels(const PixelBlock& block);
/// Blends a source with premultiplied alpha. Fastest if the width is a multiple of 8.
void layPixels(const PixelBlock& block);

void fillPixels(std::uint32_t* to, std::ptrdiff_t toPitch, int width, int height, std::uint32_t pixel);
/// Sets to[i] to from[columns[i]].
void gatherPixels(std::uint32_t* to, const std::uint32_t* from, const std::int32_t* columns, int width);
