#pragma once

#include "platform/export.h"

#include <optional>
#include <string>
#include <string_view>

/// The folder below which scripts, pictures and fonts are looked for: the working directory at first.
TGX_PLATFORM_API void setDataDirectory(const std::string& path);
TGX_PLATFORM_API const std::string& dataDirectory();

/// Path of a file of the data directory. name has backslashes or slashes and any case: each component is
/// looked for exactly first, then ignoring case. Nothing for a name that finds no regular file, is absolute,
/// or leads out of the data directory, be it by "..", a drive letter or a link.
TGX_PLATFORM_API std::optional<std::string> findDataFile(std::string_view name);
