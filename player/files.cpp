#include "player/files.h"

#include "platform/limits.h"
#include "platform/system/whole_file.h"

#include <filesystem>

namespace fs = std::filesystem;

namespace tgx {

bool staysBelow(const std::string& name)
{
    const fs::path relative = fs::path(name).lexically_normal();
    const bool hasZero = name.find('\0') != std::string::npos; // the system would cut the name there
    return !hasZero && relative.has_filename() && !relative.is_absolute() && *relative.begin() != "..";
}

std::optional<std::string> readWhole(const std::string& path)
{
    std::error_code error;
    if (!fs::is_regular_file(path, error))
        return std::nullopt;
    std::string reason;
    return readWholeFile(path, limits::fileBytes, reason);
}

bool writeWhole(const std::string& path, std::string_view contents)
{
    std::string reason;
    return writeWholeFile(path, contents, reason);
}

void makeFoldersOf(const std::string& path)
{
    std::error_code ignored;
    const fs::path folder = fs::path(path).parent_path();
    if (!folder.empty())
        fs::create_directories(folder, ignored);
}

} // namespace tgx
