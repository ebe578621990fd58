#include "language/text/read_file.h"

#include "platform/limits.h"
#include "platform/system/whole_file.h"

#include <filesystem>

namespace fs = std::filesystem;

std::optional<std::string> tgx::readFile(const std::string& name, std::string& reason)
{
    return tgx::readWholeFile(name, limits::scriptBytes, reason);
}

std::optional<std::string> tgx::readIncluded(const std::string& name, std::string& reason)
{
    std::error_code ignored;
    const fs::file_status status = fs::status(name, ignored);
    if (fs::exists(status) && !fs::is_regular_file(status) && !fs::is_directory(status)) {
        reason = "this is a device or a pipe, a file was expected";
        return std::nullopt;
    }
    return readFile(name, reason);
}
