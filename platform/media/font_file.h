#pragma once

#include "platform/export.h"
#include "platform/media/bmpfont.h"

/// Renders a TrueType or bitmap font file of the data directory at a height of size pixels, with spacing
/// extra pixels between characters. Returns null if it cannot be loaded.
TGX_PLATFORM_API std::unique_ptr<bmpfont> loadFontFile(std::string_view name, const FontStyle& style,
                                                       int size, int spacing);
