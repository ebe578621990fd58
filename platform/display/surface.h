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
/// released by ddwin::deleteSurface, never by delete. Copies share the pixels until one of them is modified.
class TGX_PLATFORM_API surface {
public:
    /// Makes an empty surface. owner, which draws what blit records, is not owned.
    explicit surface(ddwin* owner = nullptr);
    surface(const surface& other);
    surface& operator=(const surface& other);
    virtual ~surface();
    /// Loads the pixels again from the file. Returns 1, or 0 if there is no file or it cannot be read; the
    /// pixels are unchanged then.
    virtual int reload();

    /// Records a blit of the source rectangle at srcX, srcY to x, y with size w, h. If srcW and srcH are both
    /// -1, the source has the size w, h. Otherwise it is srcW by srcH and is stretched. The source is clipped
    /// to the bitmap, the target to the screen. dest is always null, which means the back buffer. mode: -1
    /// and 0 normal, 1 opaque, 2 half, 3 additive.
    void blit(int x, int y, int srcX, int srcY, int w, int h, int srcW, int srcH, IDirectDrawSurface* dest,
              int mode);
    /// Records a blit of the whole bitmap to that rectangle.
    void blit(int x, int y, int w, int h, IDirectDrawSurface* dest, int mode);
    /// A row of equal pieces of a strip.
    struct PieceRow {
        int x, y; // position of the first piece
        int srcX; // position of the pieces in the strip; srcY is 0
    };
    /// Records two rows of square pieces. side is the size of a piece and length the length of a row, in
    /// pixels; the last pieces are cut off. down selects vertical rows. The result is the same as drawing the
    /// pieces of the two rows alternately with blit, with srcW, srcH and mode -1, but takes only one command
    /// for each row.
    void blitRows(const PieceRow& first, const PieceRow& second, int side, int length, bool down);
    /// Sets a pixel of the bitmap. Does nothing outside it. colour is a result of ddwin::getcol. The key
    /// colour makes the pixel transparent if the bitmap has no alpha channel.
    void setPixel(int x, int y, unsigned long colour);

    /// Name of the file it was loaded from, empty if there is none, never null. Points into the surface.
    char* filename;
    short width = 0;  // pixels
    short height = 0; // pixels

    /// Returns the shared pixels, or null if there are none. Reloads dropped pixels.
    const ImageRef& getImage();
    /// Sets the pixels with width and height, and names the surface, and the image too if it has no name.
    /// These pixels are never dropped.
    void setImage(ImageRef newImage, const CString& name);

protected:
    ddwin* owner = nullptr;
    ImageRef image;
    CString name; // what filename points into

private:
    friend class ddwin;
    friend SurfaceRef;
    friend class SurfaceStore;
    DrawCommand& record(DrawOp op);

    /// Checks image first, because the flag is in another cache line.
    void fetchDropped()
    {
        if (!image && isDropped)
            loadDropped();
    }
    void loadDropped();
    /// Sets pixels loaded from that file, which may be dropped and reloaded.
    void takeFile(ImageRef pixels, const CString& file);

    SurfaceRef* refs = nullptr; // head of the list of refs to this surface
    bool isOfFile = false;      // whether image was loaded from the file called name
    bool isDropped = false;     // whether the pixels were dropped; they are reloaded when used
};
