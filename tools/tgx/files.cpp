#include "tools/tgx/files.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

std::string readAll(std::istream& stream)
{
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

bool writeAll(const fs::path& path, const std::string& bytes)
{
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    return file.good();
}

bool failed(const std::string& name, const std::string& reason)
{
    std::cerr << name << ": error: cannot write: " << reason << '\n';
    return false;
}

} // namespace

std::optional<std::string> readInput(const std::string& name)
{
    if (name == "-")
        return readAll(std::cin);
    std::string reason;
    std::optional<std::string> text = readFile(name, reason);
    if (!text)
        std::cerr << name << ": error: cannot read: " << reason << '\n';
    return text;
}

bool writeOutput(const std::string& name, const std::string& bytes)
{
    if (name == "-") {
        std::cout.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush();
        return std::cout.good() || failed("stdout", std::strerror(errno));
    }
    std::error_code error;
    const fs::file_status status = fs::status(name, error);
    if (fs::is_directory(status))
        return failed(name, "this is a folder, a file was expected");
    if (fs::exists(status) && !fs::is_regular_file(status)) // a device or pipe: it must not be replaced
        return writeAll(name, bytes) || failed(name, std::strerror(errno));

    // Through a link to the file itself, so that the link stays.
    const fs::path target = fs::exists(status) ? fs::canonical(name, error) : fs::path(name);
    fs::path beside = target;
    beside += ".new-" + std::to_string(getpid());
    if (!writeAll(beside, bytes)) {
        const std::string reason = std::strerror(errno);
        fs::remove(beside, error);
        return failed(name, reason);
    }
    fs::rename(beside, target, error);
    if (error) {
        const std::string reason = error.message();
        fs::remove(beside, error);
        return failed(name, reason);
    }
    return true;
}
