#include "devtools/script_text/read_file.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace fs = std::filesystem;

std::optional<std::string> readFile(const std::string& name, std::string& reason)
{
    std::error_code ignored;
    if (fs::is_directory(name, ignored)) {
        reason = "this is a folder, a file was expected";
        return std::nullopt;
    }
    std::ifstream file(name, std::ios::binary);
    if (!file) {
        reason = std::strerror(errno);
        return std::nullopt;
    }
    return std::string{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::optional<std::string> readIncluded(const std::string& name, std::string& reason)
{
    std::error_code ignored;
    const fs::file_status status = fs::status(name, ignored);
    if (fs::exists(status) && !fs::is_regular_file(status) && !fs::is_directory(status)) {
        reason = "this is a device or a pipe, a file was expected";
        return std::nullopt;
    }
    return readFile(name, reason);
}
