#pragma once

#include <string_view>

enum class PictureKind { Unknown, Bmp, Png, Jpeg, Gif, Pcx };

/// What can be known of a picture without decoding it.
struct PictureHeader {
    PictureKind kind = PictureKind::Unknown;
    long long width = 0; // 0 when the header is broken
    long long height = 0;
    bool hasAlpha = false; // PNG, GIF: it has a channel or a colour that shows through
};

/// Reads kind and size from the first bytes; the name plays no part.
PictureHeader readPictureHeader(std::string_view file);
