#pragma once

#include "platform/display/backdrop.h"
#include "platform/display/backdrop_layer.h"
#include "platform/display/damage.h"
#include "platform/display/directdraw.h"
#include "platform/display/display_list.h"
#include "platform/display/rasteriser.h"
#include "platform/display/surface_store.h"
#include "platform/media/bmpfont.h"

#include <string>

struct tagRECT;

/// What a window draws with: the lists of the running and the last frame, the backdrop, the screen's pixels,
/// surfaces and fonts.
class Canvas {
public:
    explicit Canvas(ddwin& window);
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    DrawCommand& record(DrawOp op) { return running->list.add(op); }
    void setText(DrawCommand& command, std::string_view text) { running->list.setText(command, text); }
    /// Keeps the pixels, as they are, for as long as the running list can be read.
    void hold(const ImageRef& image)
    {
        if (image->heldBy == running->number)
            return;
        image->heldBy = running->number;
        running->held.push_back(image);
    }
    const DisplayList& lastList() const { return last->list; }

    void setPlainBackdrop(std::uint32_t colour);
    /// Null for a picture that is not there: plain, colour 0.
    void setBackdropPicture(ImageRef picture, const CString& name);
    void reloadBackdrop();
    void drawBackdrop();
    void redrawScreen();
    void markDirty(const Box& box);
    backdrop* getBackdrop();

    /// Draws what differs from the screen and shows it.
    void present();
    /// Shows the frame if nothing has done so yet, and begins the next one's list.
    void endFrame();
    const Image& getScreen();
    /// Follows the window's size.
    void settleSize();

    SurfaceStore surfaces;
    struct FontEntry {
        std::unique_ptr<bmpfont> font;
        std::string request; // what addNewFont was given; empty for one that could not be loaded
    };
    std::vector<FontEntry> fonts;
    std::vector<FontEntry> formerFonts; // taken out of the table; something may still point to them
    IDirectDraw directDraw;
    IDirectDraw2 directDraw2;
    IDirectDrawClipper clipper;
    IDirectDrawPalette palette;
    IDirectDrawSurface primarySurface;
    IDirectDrawSurface backBuffer;
    // Where the pointer was put last, by input or by a write.
    short knownMouseX = 0;
    short knownMouseY = 0;

private:
    struct Frame {
        DisplayList list;
        std::vector<ImageRef> held;
        std::uint64_t number = 0;  // of this use of the list, unique in the run
        std::size_t paintFrom = 0; // behind the last DrawBackdrop: what stands before it is painted over
        PaintedRange painted;      // as shown
    };
    void beginList();
    void nameBackdropSurface();

    ddwin& window;
    Frame frames[2];
    Frame* running = &frames[0];
    Frame* last = &frames[1];
    bool isPresented = false; // the running frame

    ImageRef screen;
    BackdropLayer layer;
    backdrop backdropSurface;
    CString backdropName;
    Damage damage;
    Rasteriser rasteriser;
    std::vector<tagRECT> changed;
};
