#pragma once

#include "platform/framework/datadir.h"

#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

/// Writes a picture that the dictionary names. A strip serves as both bitmap and border.
inline void writeBmp(const std::filesystem::path& file, int width, int height)
{
    const int rowBytes = (width * 3 + 3) / 4 * 4;
    const unsigned size = 54 + static_cast<unsigned>(rowBytes * height);
    std::vector<unsigned char> bytes(size);
    const auto put = [&](std::size_t at, unsigned value) {
        for (std::size_t i = 0; i < 4; ++i)
            bytes[at + i] = static_cast<unsigned char>(value >> (8 * i));
    };
    bytes[0] = 'B';
    bytes[1] = 'M';
    put(2, size);
    put(10, 54);
    put(14, 40);
    put(18, static_cast<unsigned>(width));
    put(22, static_cast<unsigned>(height));
    put(26, 1 | 24u << 16);
    for (std::size_t i = 54; i < size; ++i)
        bytes[i] =
            static_cast<unsigned char>(i % 3 == 1 && i % 5 == 0 ? 0 : 255); // some pixels have the key colour
    std::ofstream(file, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

/// A data directory with these pictures, in use for the lifetime of the object.
struct FuzzDataDirectory {
    std::filesystem::path path;

    FuzzDataDirectory()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "tgx-fuzz-XXXXXX").string();
        path = mkdtemp(pattern.data());
        std::filesystem::create_directory(path / "uig");
        writeBmp(path / "a.bmp", 16, 16);
        writeBmp(path / "s.bmp", 71, 8);
        setDataDirectory(path.string());
    }
    ~FuzzDataDirectory() { std::filesystem::remove_all(path); }
};
