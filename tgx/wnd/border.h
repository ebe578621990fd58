#pragma once

#include "platform/display/surface_ref.h"
#include "platform/framework/cstring.h"
#include "tgx/export.h"

#include <memory>

/// A frame along a window's edge, drawn from a strip of eight square pieces with a gap of 1 pixel, clockwise
/// from the top left corner. The strip is not owned; it stays with the display library.
class TGX_API ABorder {
public:
    /// borderWidth is the distance in pixels between the window's bitmap and its edge, pieceSize the side of
    /// a piece in pixels.
    ABorder(surface* bmp, int borderWidth, int pieceSize);
    ABorder(const ABorder&) = default;
    ABorder& operator=(const ABorder&) = default;
    virtual ~ABorder() = default;

    /// Returns a border with the strip from file. A strip that cannot be loaded is reported with "cannot load
    /// %s", and the border then draws nothing.
    static std::unique_ptr<ABorder> load(const CString& file, int borderWidth, int pieceSize);

    int getBorderWidth() const { return borderWidth; }
    int getPieceSize() const { return pieceSize; }
    surface* getBorderBmp() const { return borderBmp; }
    /// Draws the border with its outer corner at x, y, in screen pixels. Draws nothing without a strip or
    /// with a piece size of 0 or less.
    void draw(int x, int y, int width, int height);

protected:
    short borderWidth;
    SurfaceRef borderBmp;
    short pieceSize;
};
