#pragma once

#include <string_view>

enum class PictureKind { Unknown, Bmp, Png, Jpeg, Gif, Pcx };

/// The properties of a picture that are known without decoding it.
struct PictureHeader {
    PictureKind kind = PictureKind::Unknown;
    long long width = 0; // 0 when the header is broken
    long long height = 0;
    bool hasAlpha = false; // PNG, GIF: has an alpha channel or a transparent colour
};

/// Reads kind and size from the first bytes. The file's name does not matter.
PictureHeader readPictureHeader(std::string_view file);
