#pragma once

#include "platform/export.h"

#include <optional>
#include <string>
#include <string_view>

namespace tgx {

/// Replaces a file by writing a temporary file beside it and renaming that, so that a reader finds either the
/// old file or the complete new one. A temporary file that is never renamed is removed.
class TGX_PLATFORM_API NewFile {
public:
    enum class Care { Usual, OnDisk }; // OnDisk: the bytes survive a loss of power after putInPlace

    NewFile() = default;
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;
    ~NewFile();

    /// Writes the bytes to a temporary file beside path. If path is a link, the file that it points to will
    /// be replaced. The file's permissions are kept. Returns false and sets reason on failure; nothing has
    /// changed then.
    bool prepare(const std::string& path, std::string_view bytes, std::string& reason,
                 Care care = Care::Usual);
    /// Renames the temporary file to the target. Returns false and sets reason on failure.
    bool putInPlace(std::string& reason);

private:
    void clearTemporary();

    std::string target;
    std::string temporary; // path of the temporary file, empty if there is none
};

/// Replaces a file in one step, as NewFile does. Writes directly to a device or a pipe. Returns false and
/// sets reason on failure.
TGX_PLATFORM_API bool writeWholeFile(const std::string& path, std::string_view bytes, std::string& reason,
                                     NewFile::Care care = NewFile::Care::Usual);

/// Returns all bytes of a file, or of standard input for "-". Returns nothing and sets reason if it cannot be
/// read to its end or has more than maxBytes bytes.
TGX_PLATFORM_API std::optional<std::string> readWholeFile(const std::string& path, std::size_t maxBytes,
                                                          std::string& reason);

/// Flushes std::cout and returns whether everything written to it has arrived. Call it before a program ends.
/// Returns false on a full disk, for example, and prints a message to stderr that begins with the program's
/// name.
TGX_PLATFORM_API bool hasWrittenStdout(const std::string& program);

/// Installs handlers for SIGINT, SIGTERM and SIGHUP that remove the temporary files of NewFile and then end
/// the program as the signal would have. For a program's main. A signal that is ignored stays ignored.
TGX_PLATFORM_API void removeNewFilesOnSignals();

} // namespace tgx
