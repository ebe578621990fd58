#pragma once

#include <cstddef>

/// What a script, picture, font or file of a stranger may take. Past a limit it is refused and reported like
/// any other fault, once, with its place.
namespace limits {

/// A file that CFile reads whole. The largest uncompressed picture that is allowed fits.
constexpr std::size_t fileBytes = 300u * 1024 * 1024;
/// Side of a picture: keeps every coordinate inside 16 bits, as windows have them.
constexpr int imageSide = 16384;
/// Pixels of a picture: 256 MiB once decoded.
constexpr long long imagePixels = 64'000'000;
/// Pixels of all pictures together, screen and backdrops among them: 1 GiB, which a machine that runs games
/// can spare. Past it a picture fails to load.
constexpr long long livePixels = 256'000'000;
/// Height of a font in pixels: its line height has to fit a signed 8-bit field.
constexpr int fontPixels = 96;
/// Entries of the font table. A script that adds more has lost its way.
constexpr int fonts = 256;
/// Pixels of the characters of all fonts of a window: 256 MiB. Past it a font fails to load.
constexpr long long glyphPixels = 64'000'000;
/// A script that a tool reads, in text form or compiled: a million short lines, which is as many as one read
/// executes. A tool keeps about a hundred bytes for each byte.
constexpr std::size_t scriptBytes = 16u * 1024 * 1024;
/// Lines that one outermost read of a script executes. GOTO chains that double at each step end here.
constexpr long scriptLines = 1'000'000;
/// What those lines may cost beyond being lines, in steps of a search through windows: a step takes some
/// nanoseconds, and so all of them some seconds. The largest scripts that make sense stay below a tenth of
/// it.
constexpr long long scriptWork = 2'000'000'000;
/// Places that one outermost read adds by showing windows a second time. Each is drawn, so a frame visits no
/// more than this and the windows themselves; windows that are shown twice inside each other would double
/// them at each level.
constexpr long sharedPlaces = 1'000'000;
/// Subroutines inside subroutines; each takes some kilobytes of the call stack.
constexpr int subroutineDepth = 64;
/// Reads inside the outermost one, by POINTER.
constexpr int readDepth = 64;
/// Windows inside windows. Drawing and input go down the tree by calls.
constexpr int windowDepth = 2000;

} // namespace limits
