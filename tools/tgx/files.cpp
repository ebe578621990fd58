#include "tools/tgx/files.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <deque>
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

/// False for stdout, devices and pipes, which are written as they are.
bool isReplaced(const std::string& name)
{
    std::error_code none;
    const fs::file_status status = fs::status(name, none);
    return name != "-" && (!fs::exists(status) || fs::is_regular_file(status) || fs::is_directory(status));
}

bool writeThrough(const Output& output)
{
    if (output.name != "-")
        return writeAll(output.name, output.bytes) || failed(output.name, std::strerror(errno));
    std::cout.write(output.bytes.data(), static_cast<std::streamsize>(output.bytes.size())).flush();
    return std::cout.good() || failed("stdout", std::strerror(errno));
}

/// A file that is written beside the one that it is to replace; unless it gets there, it goes away.
class NewFile {
public:
    NewFile() = default;
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;
    ~NewFile()
    {
        std::error_code none;
        if (!beside.empty())
            fs::remove(beside, none);
    }

    bool prepare(const Output& output)
    {
        name = output.name;
        std::error_code none;
        if (fs::is_directory(name, none))
            return failed(name, "this is a folder, a file was expected");
        // Through a link to the file itself, so that the link stays.
        target = fs::exists(name, none) ? fs::canonical(name, none) : fs::path(name);
        beside = target;
        beside += ".new-" + std::to_string(getpid());
        return writeAll(beside, output.bytes) || failed(name, std::strerror(errno));
    }
    bool putInPlace()
    {
        std::error_code error;
        fs::rename(beside, target, error);
        if (error)
            return failed(name, error.message());
        beside.clear();
        return true;
    }

private:
    std::string name; // as messages give it
    fs::path target;
    fs::path beside; // empty when there is none
};

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

bool writeOutputs(const std::vector<Output>& outputs)
{
    std::deque<NewFile> files;
    for (const Output& each : outputs)
        if (isReplaced(each.name) && !files.emplace_back().prepare(each))
            return false;
    for (const Output& each : outputs)
        if (!isReplaced(each.name) && !writeThrough(each))
            return false;
    return std::all_of(files.begin(), files.end(), [](NewFile& each) { return each.putInPlace(); });
}

bool isSameFile(const std::string& a, const std::string& b)
{
    std::error_code none;
    return !a.empty() && !b.empty() &&
           (a == b || fs::equivalent(a, b, none) ||
            fs::weakly_canonical(a, none) == fs::weakly_canonical(b, none));
}
