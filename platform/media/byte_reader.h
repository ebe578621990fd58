#pragma once

#include <cstdint>
#include <string_view>

/// Reads numbers from a file in memory. Bytes past the end read as 0.
struct ByteReader {
    std::string_view bytes;

    std::uint32_t u8(std::size_t at) const
    {
        return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0;
    }
    std::uint32_t u16(std::size_t at) const { return u8(at) | u8(at + 1) << 8; }
    std::uint32_t u32(std::size_t at) const { return u16(at) | u16(at + 2) << 16; }
    std::uint32_t u16Big(std::size_t at) const { return u8(at) << 8 | u8(at + 1); }
    std::uint32_t u32Big(std::size_t at) const { return u16Big(at) << 16 | u16Big(at + 2); }
};
