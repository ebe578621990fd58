#pragma once

#include "platform/export.h"
#include "platform/media/image.h"

#include <string>
#include <string_view>

/// Decodes a picture of the data directory: BMP, PNG, JPEG, GIF or PCX, recognised by its first bytes. Its
/// size is checked against the limits before it is decoded. Returns null if it is missing, of another kind,
/// too large or broken, or if it does not fit into limits::livePixels. In the last case room, if not null,
/// receives the number of pixels that the picture needs, otherwise 0.
TGX_PLATFORM_API ImageRef loadImageFile(std::string_view name, long long* room = nullptr);

/// Writes a picture as PNG, without alpha, either completely or not at all. path is an ordinary path, not
/// relative to the data directory. Returns false on failure.
TGX_PLATFORM_API bool writePng(const Image& image, const std::string& path);
