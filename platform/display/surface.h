#pragma once

#include "platform/display/surface_ref.h"
#include "platform/export.h"
#include "platform/framework/cstring.h"
#include "platform/media/image.h"

#include <cstdint>

class ddwin;
struct DrawCommand;
enum class DrawOp : std::uint8_t;
struct IDirectDrawSurface;

/// A bitmap that the display library has loaded or built. Made by ddwin::createsprite and createBkgndSection,
/// released by ddwin::deleteSurface, never by delete. Copies share the pixels until one of them is written
/// to.
class TGX_PLATFORM_API surface {
public:
    /// An empty surface. Not owned: owner draws what blit records.
    explicit surface(ddwin* owner = nullptr);
    surface(const surface& other);
    surface& operator=(const surface& other);
    virtual ~surface();
    /// Loads the pixels anew from the file. 1, or 0 when there is no file or it cannot be read; the pixels
    /// stay then.
    virtual int reload();

    /// Records a blit: the source rectangle at srcX, srcY goes to x, y with size w, h. srcW and srcH both -1:
    /// the source has the size w, h. Otherwise it is srcW by srcH and is stretched. A source is cut to the
    /// bitmap, a target to the screen. dest is always null, the back buffer. mode -1 and 0 normal, 1 opaque,
    /// 2 half, 3 additive.
    void blit(int x, int y, int srcX, int srcY, int w, int h, int srcW, int srcH, IDirectDrawSurface* dest,
              int mode);
    /// The whole bitmap to that rectangle.
    void blit(int x, int y, int w, int h, IDirectDrawSurface* dest, int mode);
    /// A row of equal pieces of a strip.
    struct PieceRow {
        int x, y; // of the first piece
        int srcX; // the pieces' place in the strip; srcY is 0
    };
    /// Two rows of square pieces, side pixels large, each row length pixels long, the last pieces cut to it:
    /// beside each other, or with down below. As if piece after piece of the two had been drawn in turn by
    /// blit, srcW, srcH and mode -1, but recorded as one command for each row.
    void blitRows(const PieceRow& first, const PieceRow& second, int side, int length, bool down);
    /// Sets a pixel of the bitmap itself; outside it nothing happens. colour is from ddwin::getcol. The key
    /// colour makes the pixel transparent where the bitmap has no alpha channel.
    void setPixel(int x, int y, unsigned long colour);

    /// Name it was loaded from, never null; empty for what no file holds. Points into the surface.
    char* filename;
    short width = 0;  // pixels
    short height = 0; // pixels

    /// Pixels, shared; null while there are none. Loads those that were dropped.
    const ImageRef& getImage();
    /// Takes the pixels, with width and height, and names the surface and an image without a name. The pixels
    /// are the game's from now on: they are not dropped.
    void setImage(ImageRef newImage, const CString& name);

protected:
    ddwin* owner = nullptr;
    ImageRef image;
    CString name; // what filename points into

private:
    friend class ddwin;
    friend class SurfaceRef;
    friend class SurfaceStore;
    DrawCommand& record(DrawOp op);

    /// Pixels that are there cost no look at the flag, which is in another cache line.
    void fetchDropped()
    {
        if (!image && isDropped)
            loadDropped();
    }
    void loadDropped();
    /// Takes the pixels of the file of that name.
    void takeFile(ImageRef pixels, const CString& file);

    SurfaceRef* refs = nullptr; // first of those that point here
    bool isOfFile = false;      // image holds what the file of that name does
    bool isDropped = false;     // the pixels: they are loaded again when they are used
};
