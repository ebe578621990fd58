#pragma once

#include <cstdint>

/// Returns the Unicode value of a character of code page 1252, or 0 for the five bytes that have none.
constexpr std::uint32_t unicodeOf(unsigned char character)
{
    constexpr std::uint16_t high[32] = {
        0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
        0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
        0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178,
    };
    return character >= 0x80 && character < 0xA0 ? high[character - 0x80] : character;
}
