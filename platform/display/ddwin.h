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

/// The game's only window: screen, surfaces, fonts, backdrop and raw input. Every drawing operation records a
/// command in the frame's display list; the end of the frame draws what has changed and shows it. Everything
/// runs on one thread.
class TGX_PLATFORM_API ddwin : public CWnd {
public:
    ddwin();
    ~ddwin() override;

    // Called by the host, never nested. The order of the declarations fixes the slots in the virtual table.

    /// Runs once, before the first frame. Returns 1.
    virtual int startup();
    /// Draws one frame. The base records the end of the frame and shows it.
    virtual void drawscreen();
    virtual void restoresurfaces();
    /// Calls reload on every surface that was loaded from a file.
    virtual void reloadsurfaces();
    /// Runs one input tick, at a steady rate. The base ends the tick, so that the next one takes new input.
    virtual void OnMouseAction();
    /// Runs after each tick with a key, for the game.
    virtual void OnKeyInput();

    // Drawing on the back buffer, in screen pixels.

    /// Copies what was marked dirty since the last call into the shown backdrop.
    void drawbackdrop();
    /// Marks the whole screen dirty, so that the next frame redraws all of it.
    void redrawScreen();
    void adddirtyrect(tagRECT& rect);
    /// Fills the rectangle from x1, y1 to x2, y2, which are exclusive. Draws nothing if x2 or y2 is not
    /// greater. Returns 1.
    int fillrect(int x1, int y1, int x2, int y2, unsigned long colour);
    /// Draws the outline, one pixel wide, of the rectangle that fillrect would fill.
    void rectangle(int x1, int y1, int x2, int y2, unsigned long colour);
    /// Converts a colour with red in the low byte to the pixel form, 0xRRGGBB.
    unsigned long getcol(unsigned long colour);
    /// Draws a line of text with its top left corner at x, y. mode 1 draws the share scale of it from the
    /// left, all of it from 1.0 on; mode 0 draws it at scale times its size. If raw is not 0, line feeds and
    /// the two characters \n begin a new line. A null text or font draws nothing. dest is null.
    void textout(int x, int y, const char* text, bmpfont* font, IDirectDrawSurface* dest, int raw,
                 ZnFixed scale, int mode);
    /// Returns the width in pixels at scale 1.0, or 0 for a null text or font.
    int getStringLength(const char* text, bmpfont* font);
    void setCursor(HICON cursor);

    // Backdrops.

    /// Sets a plain backdrop. colour is in the form that getcol takes.
    void setbackdrop(unsigned long colour);
    /// Loads the new backdrop. A picture that cannot be loaded is reported and becomes a plain backdrop of
    /// colour 0; an empty name does the same without a report. param is -1.
    void setbackdrop(const char* name, long param);
    /// Called after each setbackdrop with a name. A display with a palette would set the picture's palette
    /// here.
    void createspecific(const char* name, long param);

    // Surfaces. Owned by this window until deleteSurface.

    /// Loads a picture. Returns null if it cannot be loaded. a, b and c are -1.
    surface* createsprite(const char* name, int a, int b, long c);
    /// Returns a surface with a copy of that rectangle of source, black outside source. old, if not null, is
    /// reused and returned. A null source, or a rectangle that is too large, which is reported, makes old
    /// empty, 0 by 0, or returns null without old.
    surface* createBkgndSection(surface* source, int x, int y, int w, int h, surface* old);
    /// Releases a surface of this window. Returns 1, or 0 for null and for a surface of another window.
    int deleteSurface(surface* released);
    /// Marks a surface as no longer shown. If it was loaded from a file, its pixels may be dropped at the end
    /// of the frame; they are loaded again when it is used. Null and surfaces of another window are ignored.
    void letGo(surface* unused);
    int getSurfaceCount() const;
    /// Returns the names of all pictures requested by surfaces and backdrops since the window was made,
    /// whether found or not.
    std::vector<std::string> getPictureNames() const;

    // Fonts. The table owns them; they live as long as the window.

    /// Loads a font and appends it to the table. style: see FontStyle; size: height in pixels, 1 to
    /// limits::fontPixels; spacing: extra pixels between characters. A font that cannot be loaded is reported
    /// and replaced by a copy of the default font. Returns the index, or -1 if the table is full.
    int addNewFont(CString file, CString style, int size, int spacing);
    /// Removes all fonts but entry 0 from the table, before an interface is read again. Windows keep their
    /// fonts: a removed font stays in memory and returns to the table when the same font is requested.
    void beginFontsAnew();
    /// Returns null for an index outside the table.
    bmpfont* getFont(int index);
    int getFontCount() const;
    /// Returns the index of font in the table, or -1.
    int getFontIndex(const bmpfont* font) const;

    // Input.

    /// Lets the host process pending system events. That runs neither a frame nor a tick.
    void flushMessages();
    /// Returns keyCode and sets it to 0.
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

    // For hosts, players and tests.

    /// Takes new input if the last tick has ended, then runs OnMouseAction, and after a tick with a key also
    /// OnKeyInput.
    void runTick();
    /// Runs drawscreen and shows the frame, even if drawscreen did not call the base.
    void runFrame();
    /// Returns the display list of the last completed frame.
    const DisplayList& getLastFrame() const;
    /// Returns the pixels on the screen, 0xFFRRGGBB, screenWidth x screenHeight. Valid until the next frame
    /// ends.
    const Image& getScreenImage() const;
    /// Records a line of that width in pixels, including both ends. colour is in pixel form.
    void drawLine(int x1, int y1, int x2, int y2, int width, std::uint32_t colour);

    // Fields that all windows of the tree read. The toolkit writes them only where the documentation of an
    // operation says so.

    int fullScreen = 0;
    int topMost = 0;
    short screenWidth = 0; // pixels
    short screenHeight = 0;
    unsigned short bitDepth = 0; // stored only: pixels are always 32 bits

    unsigned char keyDown[256] = {}; // by virtual key code, nonzero while held
    unsigned char keyCode = 0;       // virtual key code of this tick's key event, 0 for none
    unsigned char keyCode2 = 0;      // a second key code; key() does not clear it
    char keyChar = 0;                // the character that the key typed, 0 for none

    short mouseX = 0; // screen pixels; writing moves the pointer
    short mouseY = 0;
    short prevMouseX = 0;
    short prevMouseY = 0;

    int lButtonDown = 0; // while held
    int lButtonUp = 0;   // for one tick; the other buttons likewise
    int lButtonDblClk = 0;
    int rButtonDown = 0;
    int rButtonUp = 0;
    int rButtonDblClk = 0;
    int mButtonDown = 0;
    int mButtonUp = 0;
    int mButtonDblClk = 0;
    int wheelUp = 0;
    int wheelDown = 0;
    int pressCancelled = 0; // the left button was released without a click; its handler clears this
    int mouseDownCount = 0; // number of ticks that the left button has been held, 1 on the first

    int appActive = 1;
    HICON normalCursor;
    HICON waitCursor;
    IDirectDrawSurface* primarySurface;
    int running = 1; // 0 ends the main loop: no further frame is run

private:
    friend class surface;
    const AFX_MSGMAP* GetMessageMap() const override;
    void followPointer(); // moves the host's pointer after a write to mouseX or mouseY

    std::unique_ptr<Canvas> canvas; // display list, backdrop, rasteriser, surfaces, fonts
    bool tickEnded = true;          // set by the base OnMouseAction
};
