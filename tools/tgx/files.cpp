#include "tools/tgx/files.h"

#include "platform/system/whole_file.h"

#include <cerrno>
#include <cstring>
#include <deque>
#include <filesystem>
#include <iostream>

namespace fs = std::filesystem;

namespace tgx {

namespace {

bool failed(const std::string& name, const std::string& reason)
{
    std::cerr << name << ": error: cannot write: " << reason << '\n';
    return false;
}

/// Returns false for stdout, devices and pipes, which are written directly.
bool isReplaced(const std::string& name)
{
    std::error_code none;
    const fs::file_status status = fs::status(name, none);
    return name != "-" && (!fs::exists(status) || fs::is_regular_file(status) || fs::is_directory(status));
}

bool writeThrough(const Output& output)
{
    std::string reason;
    if (output.name != "-")
        return writeWholeFile(output.name, output.bytes, reason) || failed(output.name, reason);
    std::cout.write(output.bytes.data(), static_cast<std::streamsize>(output.bytes.size())).flush();
    return std::cout.good() || failed("stdout", std::strerror(errno));
}

} // namespace

std::optional<std::string> readInput(const std::string& name)
{
    std::string reason;
    std::optional<std::string> text = readFile(name, reason);
    if (!text)
        std::cerr << (name == "-" ? "stdin" : name) << ": error: cannot read: " << reason << '\n';
    return text;
}

bool writeOutputs(const std::vector<Output>& outputs)
{
    std::deque<NewFile> files;
    std::string reason;
    std::vector<const Output*> replaced;
    for (const Output& each : outputs) {
        if (!isReplaced(each.name))
            continue;
        if (!files.emplace_back().prepare(each.name, each.bytes, reason))
            return failed(each.name, reason);
        replaced.push_back(&each);
    }
    for (const Output& each : outputs)
        if (!isReplaced(each.name) && !writeThrough(each))
            return false;
    for (std::size_t i = 0; i < files.size(); ++i)
        if (!files[i].putInPlace(reason))
            return failed(replaced[i]->name, reason);
    return true;
}

bool isSameFile(const std::string& a, const std::string& b)
{
    std::error_code none;
    return !a.empty() && !b.empty() &&
           (a == b || fs::equivalent(a, b, none) ||
            fs::weakly_canonical(a, none) == fs::weakly_canonical(b, none));
}

} // namespace tgx
