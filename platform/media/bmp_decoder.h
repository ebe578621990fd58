#pragma once

#include "platform/media/image.h"

#include <string_view>

/// Reads the size of a BMP from its header. Returns false if there is no BMP header.
bool readBmpSize(std::string_view file, long long& width, long long& height);

/// Decodes a BMP of 1, 4, 8, 16, 24 or 32 bits, including the run-length forms. Returns null for a broken
/// one. The caller has checked the size against the limits, and applies key colour and coverage.
ImageRef decodeBmp(std::string_view file);
