#pragma once

#include <cstddef>

/// What a script, picture, font or file of a stranger may take. Past a limit it is refused and reported like any other
/// fault, once, with its place.
namespace limits {

/// A file that CFile reads whole. The largest uncompressed picture that is allowed fits.
constexpr std::size_t fileBytes = 300u * 1024 * 1024;
/// Side of a picture: keeps every coordinate inside 16 bits, as windows have them.
constexpr int imageSide = 16384;
/// Pixels of a picture: 256 MiB once decoded.
constexpr long long imagePixels = 64'000'000;
/// Height of a font in pixels: its line height has to fit a signed 8-bit field.
constexpr int fontPixels = 96;
/// Entries of the font table. A script that adds more has lost its way.
constexpr int fonts = 256;
/// Lines that one outermost read of a script executes. GOTO chains that double at each step end here.
constexpr long scriptLines = 1'000'000;
/// Subroutines inside subroutines; each takes some kilobytes of the call stack.
constexpr int subroutineDepth = 64;
/// Reads inside reads, by POINTER.
constexpr int readDepth = 64;
/// Windows inside windows. Drawing and input go down the tree by calls.
constexpr int windowDepth = 2000;

} // namespace limits
