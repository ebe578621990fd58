#pragma once

#include "platform/export.h"
#include "platform/media/image.h"

#include <string>
#include <string_view>

/// Decodes a picture of the data directory: BMP, PNG, JPEG, GIF or PCX, known by its first bytes, its size
/// checked against limits before it is decoded. Null when it is missing, of another kind, too large or
/// broken, or when there is no room for it: room, if not null, then takes the pixels that it needs, and 0
/// otherwise.
TGX_PLATFORM_API ImageRef loadImageFile(std::string_view name, long long* room = nullptr);

/// Writes a picture as PNG, without alpha, whole or not at all. path is one of the machine, not of the data
/// directory.
TGX_PLATFORM_API bool writePng(const Image& image, const std::string& path);
