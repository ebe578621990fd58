#pragma once

#include "platform/export.h"

#include <optional>
#include <string>
#include <string_view>

namespace tgx {

/// A file that is written beside the one that it replaces and then renamed, so that a reader finds the old
/// file or the new one, never half of it. One that never gets into place is removed.
class TGX_PLATFORM_API NewFile {
public:
    enum class Care { Usual, OnDisk }; // OnDisk: the bytes survive a loss of power after putInPlace

    NewFile() = default;
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;
    ~NewFile();

    /// Writes the bytes beside path, which may be a link: the file that it leads to is replaced then, and
    /// keeps its permissions. False with a reason when that fails; nothing has changed then.
    bool prepare(const std::string& path, std::string_view bytes, std::string& reason,
                 Care care = Care::Usual);
    /// Renames. False with a reason when that fails.
    bool putInPlace(std::string& reason);

private:
    void forget();

    std::string target;
    std::string beside; // empty while there is none
};

/// Replaces a file at once, as NewFile does. A device or a pipe is written to as it is.
TGX_PLATFORM_API bool writeWholeFile(const std::string& path, std::string_view bytes, std::string& reason,
                                     NewFile::Care care = NewFile::Care::Usual);

/// All bytes of a file, "-" for standard input. Nothing, with a reason, when it cannot be read to its end or
/// has more than that many bytes.
TGX_PLATFORM_API std::optional<std::string> readWholeFile(const std::string& path, std::size_t most,
                                                          std::string& reason);

/// Whether all that was written to std::cout has arrived, as a last look before a program ends. False on a
/// full disk, with a message on stderr that begins with the program's name.
TGX_PLATFORM_API bool hasWrittenStdout(const std::string& program);

/// For a program's main: SIGINT, SIGTERM and SIGHUP remove what NewFile has not put into place yet, then end
/// the program as they would have. A signal that is ignored stays ignored.
TGX_PLATFORM_API void removeNewFilesOnSignals();

} // namespace tgx
