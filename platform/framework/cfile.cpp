#include "platform/framework/cfile.h"

#include "platform/framework/datadir.h"
#include "platform/limits.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

std::string_view tgx::withoutDirectory(std::string_view name)
{
    const std::size_t slash = name.find_last_of("/\\");
    return slash == std::string_view::npos ? name : name.substr(slash + 1);
}

namespace {

/// Reads to the end of the file, because the claimed size may be wrong.
std::optional<std::string> readUpToLimit(int descriptor, std::size_t claimed, bool& tooLarge)
{
    std::string bytes;
    std::size_t filled = 0;
    bytes.resize(claimed + 1); // one more byte, so that detecting the end needs no reallocation
    for (;;) {
        if (filled == bytes.size())
            bytes.resize(std::min(bytes.size() * 2, limits::fileBytes + 1));
        const ssize_t count = ::read(descriptor, bytes.data() + filled, bytes.size() - filled);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return std::nullopt;
        if (count == 0)
            break;
        filled += static_cast<std::size_t>(count);
        if (filled > limits::fileBytes) {
            tooLarge = true;
            return std::nullopt;
        }
    }
    bytes.resize(filled);
    return bytes;
}

std::optional<std::string> readRegularFile(const std::string& path, bool& tooLarge)
{
    // O_NONBLOCK, so that opening a pipe cannot block before fstat detects it. O_NOFOLLOW works because
    // findDataFile has already resolved links.
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK | O_NOFOLLOW);
    if (descriptor < 0)
        return std::nullopt;
    struct stat status;
    std::optional<std::string> bytes;
    if (::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode)) {
        tooLarge = static_cast<std::size_t>(status.st_size) > limits::fileBytes;
        if (!tooLarge)
            bytes = readUpToLimit(descriptor, static_cast<std::size_t>(status.st_size), tooLarge);
    }
    ::close(descriptor);
    return bytes;
}

} // namespace

int CFile::Open(const char* name, unsigned, void*)
{
    Close();
    tooLarge = false;
    if (!name)
        return 0;
    if (std::shared_ptr<const std::string> bytes = findMemoryFile(name)) {
        share(name, std::move(bytes));
        return 1;
    }
    const std::optional<std::string> path = findDataFile(name);
    if (!path)
        return 0;
    std::optional<std::string> read = readRegularFile(*path, tooLarge);
    if (!read)
        return 0;
    share(name, std::make_shared<const std::string>(std::move(*read)));
    return 1;
}

unsigned CFile::Seek(long offset, unsigned from)
{
    const long length = static_cast<long>(contents.size());
    const long start = from == end ? length : from == current ? static_cast<long>(position) : 0;
    // Clamped before adding, because the sum could overflow.
    position = static_cast<std::size_t>(start + std::clamp(offset, -start, length - start));
    return GetPosition();
}

unsigned CFile::Read(void* buffer, unsigned count)
{
    const std::size_t copied = std::min<std::size_t>(count, contents.size() - position);
    if (copied > 0)
        std::memcpy(buffer, contents.data() + position, copied);
    position += copied;
    return static_cast<unsigned>(copied);
}

void CFile::Close()
{
    contents = {};
    position = 0;
    storage.reset();
    fileName.Empty();
    filePath.Empty();
}

void CFile::share(const char* name, std::shared_ptr<const std::string> bytes)
{
    Close();
    filePath = CString(name ? name : "");
    fileName = CString(tgx::withoutDirectory(filePath.view()));
    storage = std::move(bytes);
    contents = storage ? std::string_view(*storage) : std::string_view();
}

void CMemFile::Attach(const unsigned char* memory, unsigned count, unsigned)
{
    Close();
    if (memory)
        contents = {reinterpret_cast<const char*>(memory), count};
}
