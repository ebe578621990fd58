#include "platform/system/whole_file.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <iostream>
#include <sys/stat.h>
#include <unistd.h>

namespace tgx {

namespace {

namespace fs = std::filesystem;

/// Names of the temporary files, for the signal handler, which may only read plain memory. No command has
/// more outputs than this at a time; a signal would not remove any further ones.
std::array<std::atomic<const char*>, 16> unfinished{};

void addUnfinished(const char* name)
{
    for (auto& place : unfinished) {
        const char* none = nullptr;
        if (place.compare_exchange_strong(none, name))
            return;
    }
}

void removeFromUnfinished(const char* name)
{
    for (auto& place : unfinished) {
        const char* found = name;
        if (place.compare_exchange_strong(found, nullptr))
            return;
    }
}

void deleteUnfinishedFiles(int signal)
{
    for (auto& place : unfinished)
        if (const char* name = place.load())
            ::unlink(name);
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

bool writeAll(int descriptor, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

/// Reads the next bytes. Returns their number, 0 at the end, or a negative value, with errno set, on failure.
ssize_t readSome(int descriptor, char* to, std::size_t size)
{
    ssize_t count = 0;
    do
        count = ::read(descriptor, to, size);
    while (count < 0 && errno == EINTR);
    return count;
}

/// Writes the bytes and closes the descriptor; closing may be what reports a full disk. Sets errno on
/// failure.
bool writeAndClose(int descriptor, std::string_view bytes, NewFile::Care care)
{
    bool isWritten = writeAll(descriptor, bytes);
    isWritten = isWritten && (care == NewFile::Care::Usual || ::fsync(descriptor) == 0);
    const int failure = errno;
    if (::close(descriptor) != 0)
        return false;
    errno = failure;
    return isWritten;
}

} // namespace

NewFile::~NewFile()
{
    if (temporary.empty())
        return;
    ::unlink(temporary.c_str());
    clearTemporary();
}

void NewFile::clearTemporary()
{
    removeFromUnfinished(temporary.c_str());
    temporary.clear();
}

bool NewFile::prepare(const std::string& path, std::string_view bytes, std::string& reason, Care care)
{
    std::error_code none;
    if (fs::is_directory(path, none)) {
        reason = "this is a folder, a file was expected";
        return false;
    }
    // Follows a link to the file itself, so that the link is kept.
    target = fs::exists(path, none) ? fs::canonical(path, none).string() : path;
    temporary = target + ".new-" + std::to_string(::getpid());
    addUnfinished(temporary.c_str());
    const int descriptor = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (descriptor < 0) {
        reason = std::strerror(errno);
        clearTemporary();
        return false;
    }
    struct stat replaced;
    if (::stat(target.c_str(), &replaced) == 0)
        ::fchmod(descriptor, replaced.st_mode & 07777);
    if (writeAndClose(descriptor, bytes, care))
        return true;
    reason = std::strerror(errno);
    ::unlink(temporary.c_str());
    clearTemporary();
    return false;
}

bool NewFile::putInPlace(std::string& reason)
{
    if (::rename(temporary.c_str(), target.c_str()) != 0) {
        reason = std::strerror(errno);
        return false;
    }
    clearTemporary();
    return true;
}

bool writeWholeFile(const std::string& path, std::string_view bytes, std::string& reason, NewFile::Care care)
{
    std::error_code none;
    const fs::file_status status = fs::status(path, none);
    if (fs::exists(status) && !fs::is_regular_file(status) && !fs::is_directory(status)) {
        const int descriptor = ::open(path.c_str(), O_WRONLY | O_CLOEXEC);
        if (descriptor >= 0 && writeAndClose(descriptor, bytes, NewFile::Care::Usual))
            return true;
        reason = std::strerror(errno);
        return false;
    }
    NewFile file;
    return file.prepare(path, bytes, reason, care) && file.putInPlace(reason);
}

std::optional<std::string> readWholeFile(const std::string& path, std::size_t maxBytes, std::string& reason)
{
    const bool isStdin = path == "-";
    std::error_code none;
    if (!isStdin && fs::is_directory(path, none)) {
        reason = "this is a folder, a file was expected";
        return std::nullopt;
    }
    const int descriptor = isStdin ? STDIN_FILENO : ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) {
        reason = std::strerror(errno);
        return std::nullopt;
    }
    constexpr std::size_t step = 64 * 1024;
    std::string bytes;
    ssize_t count = 0;
    do {
        const std::size_t before = bytes.size();
        bytes.resize(before + step);
        count = readSome(descriptor, bytes.data() + before, step);
        bytes.resize(before + static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    } while (count > 0 && bytes.size() <= maxBytes);
    const int failure = errno;
    if (!isStdin)
        ::close(descriptor);
    if (count < 0)
        reason = std::strerror(failure);
    else if (bytes.size() > maxBytes)
        reason = "it has more than " + std::to_string(maxBytes) + " bytes, which is the limit";
    else
        return bytes;
    return std::nullopt;
}

bool hasWrittenStdout(const std::string& program)
{
    errno = 0;
    if (std::cout.flush() && std::fflush(stdout) == 0)
        return true;
    std::cerr << program << ": cannot write to standard output"
              << (errno != 0 ? std::string(": ") + std::strerror(errno) : "") << '\n';
    return false;
}

void removeNewFilesOnSignals()
{
    for (int signal : {SIGINT, SIGTERM, SIGHUP})
        if (std::signal(signal, deleteUnfinishedFiles) == SIG_IGN)
            std::signal(signal, SIG_IGN);
}

} // namespace tgx
