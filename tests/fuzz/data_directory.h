#pragma once

#include "platform/framework/datadir.h"
#include "tests/unit/support/bmp.h"

#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

/// Writes a picture that the dictionary names. A strip serves as both bitmap and border.
inline void writeBmp(const std::filesystem::path& file, int width, int height)
{
    std::string pixels(static_cast<std::size_t>((width * 3 + 3) / 4 * 4 * height), '\xFF');
    for (std::size_t i = 1; i < pixels.size(); i += 15)
        pixels[i] = 0; // some pixels have the key colour
    std::ofstream(file, std::ios::binary) << bmpFile(width, height, 24, pixels);
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
