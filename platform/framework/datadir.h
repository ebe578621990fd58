#pragma once

#include "platform/export.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Sets the folder that contains scripts, pictures and fonts. By default, and with "", files are looked for
/// in the working directory and then in the folder of the executable, so a game finds its data wherever it is
/// started from.
TGX_PLATFORM_API void setDataDirectory(const std::string& path);
/// Returns the folder that was set, or ".".
TGX_PLATFORM_API const std::string& dataDirectory();
/// Returns all folders in which files are looked for, in search order.
TGX_PLATFORM_API const std::vector<std::string>& dataDirectories();

/// Makes another folder the data directory for the lifetime of the object.
class TGX_PLATFORM_API OtherDataDirectory {
public:
    explicit OtherDataDirectory(const std::string& path);
    ~OtherDataDirectory();
    OtherDataDirectory(const OtherDataDirectory&) = delete;
    OtherDataDirectory& operator=(const OtherDataDirectory&) = delete;

private:
    std::vector<std::string> before;
};

/// Returns the path of a file in the data directory. name may have backslashes or slashes and be in any case:
/// each component is looked up exactly first, then ignoring case. Returns nothing for a name that finds no
/// regular file, is absolute, or leads out of the data directory, whether by "..", a drive letter or a link.
TGX_PLATFORM_API std::optional<std::string> findDataFile(std::string_view name);

/// If a folder in the name is missing, returns a message such as "no folder art in /games/tide", otherwise
/// "".
TGX_PLATFORM_API std::string missingDataFolder(std::string_view name);
/// Returns why the file was not found, with the folder that was searched, such as "no file menu.tgx in
/// /games/tide/UIG". Returns "" for a file that exists, and for a name that is refused.
TGX_PLATFORM_API std::string whyNoDataFile(std::string_view name);

/// Adds a file that exists only in memory to the data directory; CFile finds it before files on disk. It
/// stays, even when another folder becomes the data directory, until the call is repeated with null bytes.
/// Returns false for a name that findDataFile would refuse.
TGX_PLATFORM_API bool setMemoryFile(std::string_view name, std::shared_ptr<const std::string> bytes);
/// Returns the bytes of a file added by setMemoryFile, or null. The name is compared ignoring case.
TGX_PLATFORM_API std::shared_ptr<const std::string> findMemoryFile(std::string_view name);
