#pragma once

#include "player/export.h"

#include <optional>
#include <string>
#include <string_view>

namespace tgx {

/// Returns whether name, used in some folder, leads to a file below that folder.
bool staysBelow(const std::string& name);
/// Returns the content of a file, or nothing if it cannot be read or is not a regular file.
std::optional<std::string> readWhole(const std::string& path);
/// Writes a temporary file and renames it, so that the file is written whole or not at all. False if it
/// fails.
TGX_PLAYER_INTERNAL bool writeWhole(const std::string& path, std::string_view contents);
/// Creates the folders above a file. Errors are ignored: opening the file will fail.
TGX_PLAYER_INTERNAL void makeFoldersOf(const std::string& path);

} // namespace tgx
