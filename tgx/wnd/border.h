#pragma once

#include "platform/display/surface_ref.h"
#include "platform/framework/cstring.h"
#include "tgx/export.h"

#include <memory>

/// A frame along a window's edge, drawn from a strip of eight square pieces with a gap of 1 pixel: clockwise
/// from the top left corner. Not owned: the strip stays with the display library.
class TGX_API ABorder {
public:
    /// borderWidth: pixels that the window's bitmap stays from the edge; pieceSize: side of a piece.
    ABorder(surface* bmp, int borderWidth, int pieceSize);
    ABorder(const ABorder&) = default;
    ABorder& operator=(const ABorder&) = default;
    virtual ~ABorder() = default;

    /// One with the strip of that file; a strip that cannot be loaded is reported with "cannot load %s", and
    /// the border then draws nothing.
    static std::unique_ptr<ABorder> load(const CString& file, int borderWidth, int pieceSize);

    int getBorderWidth() const { return borderWidth; }
    int getPieceSize() const { return pieceSize; }
    surface* getBorderBmp() const { return borderBmp; }
    /// Outer corner at x, y, screen pixels. Without a strip, or with pieces of 0 or less, it draws nothing.
    void draw(int x, int y, int width, int height);

protected:
    short borderWidth;
    SurfaceRef borderBmp;
    short pieceSize;
};
