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

/// The drawing state of a window: the display lists of the current and the last frame, the backdrop, the
/// screen's pixels, surfaces and fonts.
class Canvas {
public:
    explicit Canvas(ddwin& window);
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    DrawCommand& record(DrawOp op) { return running->list.add(op); }
    void setText(DrawCommand& command, std::string_view text) { running->list.setText(command, text); }
    /// Keeps the image unchanged for as long as the current list can be read.
    void hold(const ImageRef& image)
    {
        if (image->heldBy == running->number)
            return;
        image->heldBy = running->number;
        running->heldImages.push_back(image);
    }
    const DisplayList& lastList() const { return last->list; }

    void setPlainBackdrop(std::uint32_t colour);
    /// Sets the backdrop. Null, for a missing picture, makes it plain with colour 0.
    void setBackdropPicture(ImageRef picture, const CString& name);
    void reloadBackdrop();
    void drawBackdrop();
    void redrawScreen();
    void markDirty(const Box& box);
    backdrop* getBackdrop();

    /// Draws what has changed and shows it.
    void present();
    /// Shows the frame unless that is already done, and begins the list of the next frame.
    void endFrame();
    const Image& getScreen();
    /// Adapts to the window's size.
    void updateSize();

    SurfaceStore surfaces;
    struct FontEntry {
        std::unique_ptr<bmpfont> font;
        std::string request; // the arguments of addNewFont; empty for a font that could not be loaded
    };
    std::vector<FontEntry> fonts;
    std::vector<FontEntry> formerFonts; // removed from the table, but something may still point to them
    IDirectDraw directDraw;
    IDirectDraw2 directDraw2;
    IDirectDrawClipper clipper;
    IDirectDrawPalette palette;
    IDirectDrawSurface primarySurface;
    IDirectDrawSurface backBuffer;
    // Last known position of the pointer, set by input or by the game.
    short knownMouseX = 0;
    short knownMouseY = 0;

private:
    struct Frame {
        DisplayList list;
        std::vector<ImageRef> heldImages;
        std::uint64_t number = 0;  // identifies this use of the list, unique in a run of the program
        std::size_t paintFrom = 0; // index after the last DrawBackdrop, which hides all earlier commands
        PaintedRange painted;      // the commands that were painted
    };
    void beginList();
    void nameBackdropSurface();

    ddwin& window;
    Frame frames[2];
    Frame* running = &frames[0];
    Frame* last = &frames[1];
    bool isPresented = false; // whether the current frame has been shown

    ImageRef screen;
    BackdropLayer layer;
    backdrop backdropSurface;
    CString backdropName;
    Damage damage;
    Rasteriser rasteriser;
    std::vector<tagRECT> changed;
};
