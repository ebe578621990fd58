#pragma once

#include "platform/media/image.h"

#include <string_view>

/// Size of a BMP as its header has it; false when there is no such header.
bool readBmpSize(std::string_view file, long long& width, long long& height);

/// Decodes a BMP of 1, 4, 8, 16, 24 or 32 bits, run-length forms included. Null for a broken one. The size is
/// known to be within limits. Key colour and coverage are left to the caller.
ImageRef decodeBmp(std::string_view file);
