#include "player/files.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace fs = std::filesystem;

bool staysBelow(const std::string& name)
{
    const fs::path relative = fs::path(name).lexically_normal();
    const bool hasZero = name.find('\0') != std::string::npos; // the system would end the name there
    return !hasZero && relative.has_filename() && !relative.is_absolute() && *relative.begin() != "..";
}

std::optional<std::string> readWhole(const std::string& path)
{
    std::error_code error;
    if (!fs::is_regular_file(path, error))
        return std::nullopt;
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(file), {});
}

bool writeWhole(const std::string& path, std::string_view contents)
{
    const std::string temporary = path + ".new";
    std::ofstream file(temporary, std::ios::binary);
    file << contents;
    file.close();
    std::error_code error;
    if (file)
        fs::rename(temporary, path, error);
    if (file && !error)
        return true;
    fs::remove(temporary, error);
    return false;
}

void makeFoldersOf(const std::string& path)
{
    std::error_code ignored;
    const fs::path folder = fs::path(path).parent_path();
    if (!folder.empty())
        fs::create_directories(folder, ignored);
}
