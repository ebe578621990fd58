#pragma once

#include <cstddef>
#include <cstdint>

/// The inner loops: what they are given is clipped and lies in bounds. Pixels of the target are 0xFFRRGGBB
/// and stay so.

struct PixelBlock {
    std::uint32_t* to;
    std::ptrdiff_t toPitch; // pixels
    const std::uint32_t* from;
    std::ptrdiff_t fromPitch; // pixels; 0 repeats one row
    int width;
    int height;
};

/// Takes the source as it is; it has to be opaque.
void copyPixels(const PixelBlock& block);
/// Takes the source's colours, whatever its alphas.
void copyColours(const PixelBlock& block);
/// Takes the pixels whose alpha is 255; the others have to be 0.
void selectPixels(const PixelBlock& block);
/// Mixes by the source's alpha, rounded to the nearest value: 255 gives the source, 0 leaves the target.
void blendPixels(const PixelBlock& block);
/// Mixes the average of source and target into the target, by the source's alpha.
void averagePixels(const PixelBlock& block);
/// Adds the source times its alpha, up to white.
void addPixels(const PixelBlock& block);
/// Mixes a source whose colours are multiplied by its alpha. At its best where the width is a multiple of 8.
void layPixels(const PixelBlock& block);

void fillPixels(std::uint32_t* to, std::ptrdiff_t toPitch, int width, int height, std::uint32_t pixel);
/// to[i] = from[columns[i]].
void gatherPixels(std::uint32_t* to, const std::uint32_t* from, const std::int32_t* columns, int width);
