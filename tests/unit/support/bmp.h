#pragma once

#include <cstdint>
#include <string>

/// Returns a number as that many bytes, lowest first.
inline std::string le(std::uint32_t value, int bytes)
{
    std::string text;
    for (int i = 0; i < bytes; i++)
        text += static_cast<char>(i < 4 ? value >> 8 * i : 0);
    return text;
}

/// Makes a BMP. palette: four bytes per entry.
inline std::string bmpFile(int width, int height, int bits, const std::string& pixels,
                           const std::string& palette = "", std::uint32_t compression = 0)
{
    const auto start = static_cast<std::uint32_t>(54 + palette.size());
    return "BM" + le(0, 8) + le(start, 4) + le(40, 4) + le(static_cast<std::uint32_t>(width), 4) +
           le(static_cast<std::uint32_t>(height), 4) + le(1, 2) + le(static_cast<std::uint32_t>(bits), 2) +
           le(compression, 4) + le(0, 12) + le(static_cast<std::uint32_t>(palette.size() / 4), 4) + le(0, 4) +
           palette + pixels;
}
