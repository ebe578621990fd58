#pragma once

#include <cstddef>

/// Limits on the memory and time that an untrusted script, picture, font or file may use. What exceeds a
/// limit is refused and reported once, with its place, like any other fault.
namespace limits {

/// Size of a file that CFile reads, in bytes. Large enough for the largest uncompressed picture allowed.
constexpr std::size_t fileBytes = 300u * 1024 * 1024;
/// Width or height of a picture in pixels. Keeps every coordinate within the 16 bits that windows use.
constexpr int imageSide = 16384;
/// Number of pixels in a picture: 256 MiB once decoded.
constexpr long long imagePixels = 64'000'000;
/// Number of pixels in all pictures together, including the screen and backdrops: 1 GiB. Beyond it, pictures
/// fail to load.
constexpr long long livePixels = 256'000'000;
/// Height of a font in pixels: its line height has to fit a signed 8-bit field.
constexpr int fontPixels = 96;
/// Number of entries in the font table. Only a faulty script adds more.
constexpr int fonts = 256;
/// Number of pixels in the characters of all fonts of a window: 256 MiB. Beyond it, fonts fail to load.
constexpr long long glyphPixels = 64'000'000;
/// Size in bytes of a script that a tool reads, in text form or compiled. It has room for a million short
/// lines, as many as scriptLines allows. A tool needs about a hundred bytes of memory for each byte of
/// script.
constexpr std::size_t scriptBytes = 16u * 1024 * 1024;
/// Number of lines that one outermost read of a script executes. This stops GOTO chains that double at each
/// step.
constexpr long scriptLines = 1'000'000;
/// Work that those lines may cause, counted in steps of a search through windows. A step takes a few
/// nanoseconds, so all of them take a few seconds. The largest sensible scripts need less than a tenth of
/// this.
constexpr long long scriptWork = 2'000'000'000;
/// Number of extra places that one outermost read adds by showing windows a second time. Each place is drawn
/// in every frame, and windows that are shown twice inside each other double the number at each level.
constexpr long sharedPlaces = 1'000'000;
/// Nesting depth of subroutines. Each level takes a few kilobytes of the call stack.
constexpr int subroutineDepth = 64;
/// Nesting depth of the reads that POINTER starts inside the outermost one.
constexpr int readDepth = 64;
/// Nesting depth of windows. Drawing and input descend the tree recursively.
constexpr int windowDepth = 2000;

} // namespace limits
