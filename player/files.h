#pragma once

#include "player/export.h"

#include <optional>
#include <string>
#include <string_view>

/// Whether name leads to a file below the folder that it is used in.
bool staysBelow(const std::string& name);
/// Nothing for what cannot be read or is no regular file.
std::optional<std::string> readWhole(const std::string& path);
/// Writes beside the file, then renames: whole or not at all. False when it cannot be written.
TGX_PLAYER_INTERNAL bool writeWhole(const std::string& path, std::string_view contents);
/// Makes the folders above a file. One that cannot be made shows when the file is opened.
TGX_PLAYER_INTERNAL void makeFoldersOf(const std::string& path);
