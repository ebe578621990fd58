#pragma once

#include "platform/display/backdrop.h"
#include "platform/display/directdraw.h"
#include "platform/display/display_list.h"
#include "platform/display/keys.h"
#include "platform/display/surface.h"
#include "platform/export.h"
#include "platform/framework/cstring.h"
#include "platform/framework/cwnd.h"
#include "platform/framework/znfixed.h"
#include "platform/media/bmpfont.h"

#include <memory>
#include <string>
#include <vector>

class Canvas;

using HICON = const struct Cursor*;

struct tagRECT {
    int left = 0;
    int top = 0;
    int right = 0;  // exclusive
    int bottom = 0; // exclusive
};
using RECT = tagRECT;

/// The game's one window: screen, surfaces, fonts, backdrop and raw input. All drawing operations record a
/// command in the frame's display list; the end of a frame draws what has changed and shows it. Everything
/// runs on one thread.
class TGX_PLATFORM_API ddwin : public CWnd {
public:
    ddwin();
    ~ddwin() override;

    // What the host calls, in slot order. Never nested.

    /// Once, before the first frame. 1.
    virtual int startup();
    /// One frame. The base records the end of the frame and shows it.
    virtual void drawscreen();
    virtual void restoresurfaces();
    /// Calls reload on every surface that a file holds.
    virtual void reloadsurfaces();
    /// One input tick, at a steady rate. The base ends the tick: the next one takes new input.
    virtual void OnMouseAction();
    /// Behind each key's tick, for the game.
    virtual void OnKeyInput();

    // Drawing, in screen pixels, on the back buffer.

    /// Restores the backdrop: what was marked dirty since the last call is copied into the shown backdrop.
    void drawbackdrop();
    /// Marks the whole screen dirty: all of it is drawn anew by the next frame.
    void redrawScreen();
    void adddirtyrect(tagRECT& rect);
    /// Fills x1, y1 to x2, y2, the second corner excluded. Corners the wrong way round draw nothing. 1.
    int fillrect(int x1, int y1, int x2, int y2, unsigned long colour);
    /// The outline, one pixel wide, of the rectangle that fillrect would fill.
    void rectangle(int x1, int y1, int x2, int y2, unsigned long colour);
    /// A colour with red in the low byte to 0xRRGGBB, the pixel form.
    unsigned long getcol(unsigned long colour);
    /// One line of text, its top left corner at x, y. mode 1 reveals the share scale of it from the left,
    /// complete from 1.0 on; mode 0 draws it at scale times its size. raw draws it as it stands, line breaks
    /// included. A null text or font draws nothing. dest is null.
    void textout(int x, int y, const char* text, bmpfont* font, IDirectDrawSurface* dest, int raw,
                 ZnFixed scale, int mode);
    /// Width in pixels at scale 1.0; 0 for a null text or font.
    int getStringLength(const char* text, bmpfont* font);
    void setCursor(HICON cursor);

    // Backdrops.

    /// A plain backdrop. colour as getcol takes it.
    void setbackdrop(unsigned long colour);
    /// Loads the picture to come. One that cannot be loaded is reported and is plain, colour 0; an empty name
    /// is plain without a word. param is -1.
    void setbackdrop(const char* name, long param);
    /// Called behind each setbackdrop by name; here the picture's palette would be made.
    void createspecific(const char* name, long param);

    // Surfaces. Owned by this window until deleteSurface.

    /// Null when the picture cannot be loaded. The other arguments are -1.
    surface* createsprite(const char* name, int a, int b, long c);
    /// A surface that holds a copy of that rectangle of source; what lies outside source is black. old, if
    /// not null, is reused and returned. For a null source, or a section that is too large, which is
    /// reported, old is empty, 0 by 0; without old the result is null.
    surface* createBkgndSection(surface* source, int x, int y, int w, int h, surface* old);
    /// Releases a surface of this window; null and foreign ones are passed over. 1, or 0 for those.
    int deleteSurface(surface* released);
    /// Says that a window no longer shows a surface. One of a file may drop its pixels with the frame; they
    /// are loaded again when it is used. Null and foreign ones are passed over.
    void letGo(surface* unused);
    int getSurfaceCount() const;
    /// The pictures that surfaces and backdrops have asked for since the window was made, found or not, as
    /// they were named.
    std::vector<std::string> getPictureNames() const;

    // Fonts. The table owns them; they live as long as the window.

    /// Loads a font and enters it behind the others. style: FontStyle; size: height in pixels, 1 to
    /// limits::fontPixels; spacing: extra pixels between characters. One that cannot be loaded is reported,
    /// and a copy of the default font takes its place. Its index, or -1 when the table is full.
    int addNewFont(CString file, CString style, int size, int spacing);
    /// Empties the table but for entry 0, for an interface that is read anew. Windows that have one of those
    /// fonts keep it: it lives on, and comes back into the table when the same one is asked for.
    void beginFontsAnew();
    /// Null for an index outside the table.
    bmpfont* getFont(int index);
    int getFontCount() const;
    /// Place of font in the table, or -1.
    int getFontIndex(const bmpfont* font) const;

    // Input.

    /// Lets the host look at what has arrived; handlers run by it call neither frame nor tick.
    void flushMessages();
    /// keyCode, once: it is 0 afterwards.
    unsigned char key();
    int getAppactive();

    // Direct access for the game.

    IDirectDraw* getDD();
    IDirectDraw2* getDD2();
    IDirectDrawSurface* getBackBuffer();
    IDirectDrawClipper* getBackClipper();
    IDirectDrawPalette* getDDPal();
    backdrop* getBackdrop();
    long setpalette(IDirectDrawPalette* palette);
    long restorepalette();

    // What hosts, players and tests use.

    /// Takes new input if the last tick has ended, then runs OnMouseAction, and OnKeyInput behind a key's
    /// tick.
    void runTick();
    /// Runs drawscreen and shows the frame, also one that ended without the base drawscreen.
    void runFrame();
    /// What was drawn from the end of the frame before to the end of the last one.
    const DisplayList& getLastFrame() const;
    /// Pixels of the screen as shown, 0xFFRRGGBB, screenWidth x screenHeight; valid until the next frame
    /// ends.
    const Image& getScreenImage() const;
    /// Records a line of that width in pixels, both ends drawn. colour in pixel form.
    void drawLine(int x1, int y1, int x2, int y2, int width, std::uint32_t colour);

    // Fields that windows all over the tree read, and TGX writes where its operations say so.

    int fullScreen = 0;
    int topMost = 0;
    short screenWidth = 0; // pixels
    short screenHeight = 0;
    unsigned short bitDepth = 0; // kept, but pixels are always 32 bits

    unsigned char keyDown[256] = {}; // by virtual key code, nonzero while held
    unsigned char keyCode = 0;       // key event of this tick, 0 for none
    unsigned char keyCode2 = 0;      // a second one; key() does not clear it
    char keyChar = 0;                // the character that it typed, 0 for none

    short mouseX = 0; // screen pixels; a write moves the pointer
    short mouseY = 0;
    short prevMouseX = 0;
    short prevMouseY = 0;

    int lButtonDown = 0; // while held
    int lButtonUp = 0;   // for one tick, and so on
    int lButtonDblClk = 0;
    int rButtonDown = 0;
    int rButtonUp = 0;
    int rButtonDblClk = 0;
    int mButtonDown = 0;
    int mButtonUp = 0;
    int mButtonDblClk = 0;
    int wheelUp = 0;
    int wheelDown = 0;
    int pressCancelled = 0; // the left button was let go of without a click; whoever has taken note clears it
    int mouseDownCount = 0; // ticks that the first button has been held, 1 on the first

    int appActive = 1;
    HICON normalCursor;
    HICON waitCursor;
    IDirectDrawSurface* primarySurface;
    int running = 1; // 0: no frame may follow

private:
    friend class surface;
    const AFX_MSGMAP* GetMessageMap() const override;
    void followPointer(); // tells the host where a write to mouseX and mouseY has put the pointer

    std::unique_ptr<Canvas> canvas; // display list, backdrop, rasteriser, surfaces, fonts
    bool tickEnded = true;          // by the base OnMouseAction
};
