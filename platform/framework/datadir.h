#pragma once

#include "platform/export.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The folder in which scripts, pictures and fonts are looked for. Until one is set, and with "", there are
/// two: the working directory, and then the folder of the executable, so that a game finds its data wherever
/// it is started from.
TGX_PLATFORM_API void setDataDirectory(const std::string& path);
/// The one that was set, or ".".
TGX_PLATFORM_API const std::string& dataDirectory();
/// All folders in which files are looked for, in that order.
TGX_PLATFORM_API const std::vector<std::string>& dataDirectories();

/// Another folder is the data directory for as long as this lives.
class TGX_PLATFORM_API OtherDataDirectory {
public:
    explicit OtherDataDirectory(const std::string& path);
    ~OtherDataDirectory();
    OtherDataDirectory(const OtherDataDirectory&) = delete;
    OtherDataDirectory& operator=(const OtherDataDirectory&) = delete;

private:
    std::vector<std::string> before;
};

/// Path of a file of the data directory. name has backslashes or slashes and any case: each component is
/// looked for exactly first, then ignoring case. Nothing for a name that finds no regular file, is absolute,
/// or leads out of the data directory, be it by "..", a drive letter or a link.
TGX_PLATFORM_API std::optional<std::string> findDataFile(std::string_view name);

/// Why no file of that name can be found, if a folder of it is missing: "no folder art in /games/tide". Else
/// "".
TGX_PLATFORM_API std::string missingDataFolder(std::string_view name);
/// Why no file of that name is found, with the folder that it was looked for in: "no file menu.tgx in
/// /games/tide/UIG". "" for one that is there, and for a name that is refused.
TGX_PLATFORM_API std::string whyNoDataFile(std::string_view name);

/// Puts a file into the data directory that is in memory alone: CFile finds it before those on disk. It
/// stays, also when another folder becomes the data directory, until bytes is null for its name. False for a
/// name that findDataFile would refuse.
TGX_PLATFORM_API bool setMemoryFile(std::string_view name, std::shared_ptr<const std::string> bytes);
/// Its bytes, or null. The name is compared ignoring case.
TGX_PLATFORM_API std::shared_ptr<const std::string> findMemoryFile(std::string_view name);
