#pragma once

#include "platform/framework/carray.h"
#include "platform/framework/cstring.h"
#include "platform/framework/znfixed.h"
#include "tgx/export.h"
#include "tgx/wnd/anim.h"
#include "tgx/wnd/layout.h"
#include "tgx/wnd/wndref.h"

#include <memory>

class ABorder;
class AButton;
class AListBox;
class ATabStopInfo;
class bmpfont;
class surface;
struct IDirectDrawSurface;

/// Base of everything on the screen: a position and size, a bitmap strip, a text, a border, a movement, child
/// windows and tab stops. It has no platform window of its own and draws on the main window's back buffer.
///
/// Positions and sizes are in pixels and are stored as signed 16-bit values. A flag that an operation takes
/// as an int is read from the lowest bit, except in setVisible and showAllControls, which test for a value
/// above 0. Handlers return 1 if they took the action, otherwise 0.
///
/// Notes for derived classes:
///
/// - handleMouseAction is called for every action that passes this window on its way down the tree, whichever
///   window it is about: compare wnd with this. A null wnd means all windows. Returning 1 does not stop the
///   action; it only informs the caller.
/// - Keys arrive there too, as MA_KEY with x and y at -1. handleKeyInput is only called for an edit box that
///   is being typed into.
/// - A call of the base may end up deleting this window. Hold a WndRef to it, or ActionRefs, across the call,
///   and check it before touching a member.
/// - A window must not delete itself while one of its own operations runs. Instead, its handler calls
///   update() of its screen or popup as its last step, and the window is deleted there; the windows on the
///   call path notice. Screens and popups, which are children of the root, are deleted with
///   AScreenList::addWndToDelete.
/// - A window that is added after its screen has opened needs a call of startup(), which loads its picture.
/// - Overriding one form of setWindowText hides the other: `using AWnd::setWindowText;` keeps both.
class TGX_API AWnd {
public:
    /// The kind of a window; distinguishes the controls.
    enum E_WNDTYPE {
        WND_PLAIN = 0,
        WND_SCREEN = 1,
        WND_BUTTON = 2,
        WND_EDITBOX = 3,
        WND_LISTBOX = 4,
        WND_SCROLLBAR = 5,
        WND_COMBOBOX = 6,
        WND_PROGRESSBAR = 7,
        WND_RESERVED = 8,
        WND_RADIOBUTTON = 9,
        WND_TABCONTROL = 10,
        WND_GRAPH = 11,
    };

    /// What the user did. One action is dispatched per tick.
    enum E_MOUSEACTION {
        MA_MOVE = 0,        // nothing; on every idle tick
        MA_LBUTTONDOWN = 1, // on every tick while held
        MA_RBUTTONDOWN = 2,
        MA_MBUTTONDOWN = 3,
        MA_LBUTTONUP = 4, // or the key Return: a click
        MA_RBUTTONUP = 5, // never sent: the dispatch turns it into a key
        MA_MBUTTONUP = 6,
        MA_LBUTTONDBLCLK = 7,
        MA_RBUTTONDBLCLK = 8,
        MA_MBUTTONDBLCLK = 9,
        MA_WHEELUP = 10,
        MA_WHEELDOWN = 11,
        MA_KEY = 12, // x and y are -1; the key is in keyCode of the main window
    };

    enum E_TEXTJUSTIFY { TJ_LEFT = 0, TJ_CENTRE = 1, TJ_RIGHT = 2 };

    /// Creates a window without a parent; loads nothing. The id "static" gives the window no id.
    AWnd(E_WNDTYPE type, const CString& id, int x, int y, int width, int height);
    AWnd(const AWnd&) = delete;
    AWnd& operator=(const AWnd&) = delete;

    // Virtual operations, in slot order.

    /// Deletes the children that it owns, last first, and detaches the others. Afterwards the toolkit holds
    /// no pointer to this window. The kept background is released; the bitmap stays with the display library.
    virtual ~AWnd();
    /// Paints background, bitmap, border and text, then the children, then advances the animations by
    /// frameStep ticks; 0 only paints. A popup of this window whose movement has ended and kept its record
    /// (deleteWhenDone 0) is closed in the next frame.
    virtual void draw(int frameStep);
    /// Shows value in decimal, by calling the form that takes a text.
    virtual void setWindowText(int value);
    virtual void setWindowText(const CString& text);
    /// Called after startup when a screen is opened for the first time, never for a popup. The base passes it
    /// on to the children, as it does with the next three operations.
    virtual void initialise();
    /// Called when a screen or popup opens. The base puts the movement back to rest, takes the kept
    /// background again and loads the bitmap.
    virtual void startup();
    /// Called when the screen or popup is left. Bitmaps stay loaded.
    virtual void close();
    /// Called when a suspended screen is shown again, instead of startup. The base loads bitmaps that are
    /// missing.
    virtual void returned();
    /// Called for an action on its way down the tree. id and wnd name the window that the action is about (a
    /// null wnd: all windows); x and y are the pointer in screen pixels, or -1 for a key. The base passes the
    /// action to the topmost usable child under the point and returns that child's result; a key, and every
    /// action while Esc is handled, goes to all children.
    virtual int handleMouseAction(const CString& id, AWnd* wnd, int x, int y, E_MOUSEACTION action);
    /// Called for a key that is typed into an edit box. The base passes it to the children, then calls its
    /// own handleMouseAction with MA_KEY.
    virtual int handleKeyInput(char key);
    /// Called on the parent of a popup for each action in it. The base first calls the same operation of its
    /// own parent, and closes the popup on a click on one of the ids that close a popup. Returns 0.
    virtual int handlePopupAction(const CString& id, AWnd* wnd, int x, int y, E_MOUSEACTION action);
    /// Called when the pointer has left this window. The base does nothing and returns 0.
    virtual int handleLostFocus();
    /// Ends the animations of this window, such as the growth of a graph. The base passes it on to the
    /// children.
    virtual void finishAnims();
    /// Called by controls on their screen or popup after the player has made a choice. The base does nothing.
    virtual void update();

    // Tree (tree.cpp).

    /// Appends child and returns it. Owns child from here on. A child with the default font takes this
    /// window's font. Returns null, and leaves child with the caller, if this window is inside child, because
    /// that would form a cycle.
    AWnd* addChildWindow(AWnd* child);
    /// Removes child from this window without deleting it and returns it; the caller owns it from here on.
    /// Returns null for a window that is not among the children.
    AWnd* releaseChildWindow(AWnd* child);
    /// Sets the parent without adding this window to the parent's children; the owner does not change. Takes
    /// the parent's font as addChildWindow does. Does nothing for a parent inside this window. A window that
    /// is its own parent counts as having no parent.
    void setParentAndIndex(AWnd* parent, int index);
    /// Returns the parent, or null for a window that has none or is its own parent.
    AWnd* getParent() const { return parent.get() == this ? nullptr : parent.get(); }
    AWnd* getOwner() const { return owner; }
    /// Sets the window that deletes this one from now on; this window need not be among its children.
    void setOwner(AWnd* newOwner);
    int getWindowCount() const { return children.GetSize(); }
    int getWindowIndex() const { return windowIndex; }
    E_WNDTYPE getWindowType() const { return windowType; }
    const CString& getID() const { return id; }
    /// Stores the id unchanged, even "static".
    void setID(const CString& newId);
    /// Returns 1 if the screen is not dimmed behind this popup.
    int isEasyClose() const { return easyClose; }
    void setEasyClose(int set) { easyClose = set & 1; }
    /// Returns 1 if actions in this window are also passed to its parent's handlePopupAction. Set when the
    /// window is opened as a popup.
    int getNotifyParent() const { return notifyParent; }
    void setNotifyParent(int set) { notifyParent = set & 1; }
    /// Returns this window; the argument is not used.
    AWnd* getNextWnd(AWnd*) { return this; }
    /// Returns the number of places in the tree, beyond the first, that show this window.
    int getPointerCount() const { return pointerCount; }
    void addPointer() { pointerCount = static_cast<short>(pointerCount + (pointerCount < 32767)); }
    /// Returns 1 if this window, or one of the owners above it, is shown in a second place.
    int isPointer() const;
    /// Searches the windows below this one, depth first and ignoring case, or only the direct children if
    /// recursive is 0. Returns the first match, or null; this window itself is not tested. An empty id
    /// matches the first window without an id.
    AWnd* getWnd(const CString& id, int recursive);
    /// Returns the window that getWnd finds, or null if it is of another class.
    AButton* getButton(const CString& id, int recursive);
    AListBox* getListBox(const CString& id, int recursive);
    /// Returns the child at index of this window, or of the window below it whose id is parentId. Returns
    /// null after the last child; a negative index raises the invalid-argument exception.
    AWnd* getWndFromIndex(int index, const CString& parentId);
    /// Returns the first direct child of that type at index start or later; with wrap the search continues
    /// from the first child to start - 1. Returns null if there is none.
    AWnd* getWndOfType(E_WNDTYPE type, int start, int wrap);
    /// Returns 1 if a window below this one, at any depth, has exactly this id.
    int hasChildCalled(const CString& id) const;
    /// Returns 1 if a parent at any level has exactly this id.
    int hasParentCalled(const CString& id) const;
    /// Shows every direct child if show is above 0, otherwise hides it.
    void showAllControls(int show);
    /// Clears the selection of every list box below this window, except that of except.
    void deselectAllListBoxes(AWnd* except);
    /// Opens the message box with this window as its parent, and always returns 1. A box that the script does
    /// not define is reported.
    int messageBox(const CString& title, const CString& text, const CString& third, const CString& id);
    int queryBox(const CString& title, const CString& text, const CString& third, const CString& id);
    /// Returns the front popup if this window opened it, otherwise null.
    AWnd* getPopupWnd() const;

    // Geometry (geometry.cpp).

    /// Returns the position relative to the parent's corner, in pixels, without animation.
    int wndX() const { return wndX_; }
    int wndY() const { return wndY_; }
    int getWndWidth() const { return wndWidth; }
    int getWndHeight() const { return wndHeight; }
    /// Returns the corner in screen pixels; noAnim leaves out the animation of this window and of those above
    /// it.
    int posX(int noAnim) const;
    int posY(int noAnim) const;
    int left() const { return layout().left; }
    int top() const { return layout().top; }
    /// Returns the size in pixels times the animation's scale, truncated.
    int width() const;
    int height() const;
    int right() const { return left() + width(); }
    int bottom() const { return top() + height(); }
    int centreX() const { return left() + width() / 2; }
    int centreY() const { return top() + height() / 2; }
    /// Converts a screen position to one relative to this window's corner.
    int getWndX(int screenX) const;
    int getWndY(int screenY) const;
    /// Sets position and size in pixels. A negative width or height keeps the old one.
    void setWndPos(int x, int y, int w, int h);
    /// Centres the window on the screen, or in its parent if inParent is set; in that case a screen, or a
    /// window without a parent, stays where it is.
    void setWndPosCentred(int horizontal, int vertical, int inParent);
    /// Returns 1 if the point is inside. The right and lower edges count: a window at 0 with a width of 10
    /// contains 0 to 10.
    int pointInside(int x, int y) const;
    /// Returns the topmost usable child under the point, or with recursive the deepest window, but never this
    /// window. The point passes through a disabled child to the window below.
    AWnd* getWndAtPos(int x, int y, int recursive);
    /// Returns the window's own flag, or with withParents whether all windows above it are visible too.
    int isVisible(int withParents) const;
    void setVisible(int show);
    /// Returns 1 if this window and all above it are visible and enabled.
    int isEnabled() const;
    /// Returns the window's own flag.
    int getEnabled() const { return enabled; }
    void setEnabled(int set);

    // Bitmap (bitmap.cpp).

    /// Takes over the surface and releases the previous one. Null removes the bitmap and keeps the name.
    void setBmp(surface* newBmp);
    /// Loads the bitmap of that name unless it is already loaded; a failure is reported with "cannot load
    /// %s". An empty name does nothing.
    void setBmp(const CString& name);
    void loadBmp() { setBmp(bmpFilename); }
    /// Releases the bitmap, unless the window is shown in a second place. The name stays.
    void deleteBmp();
    surface* getBmp() const { return bmp; }
    const CString& getBmpFilename() const { return bmpFilename; }
    /// Stores the name without loading it. width and height are those of one frame in pixels; 0 or less:
    /// derived from the bitmap when it is loaded.
    void setBmpFilename(const CString& name, int width, int height);
    /// Sets the size of a frame in pixels, the ticks per frame (0 or less: no animation) and the number of
    /// frames.
    void setBmpInfo(int width, int height, int delay, int count);
    /// Moves the bitmap inside the window by x and y pixels.
    void setBmpOffset(int x, int y);
    /// Sets the pixel of the bitmap where the first frame begins.
    void setBmpSourceInfo(int x, int y);
    int getBmpOffsetX() const { return bmpOffsetX; }
    int getBmpOffsetY() const { return bmpOffsetY; }
    int getBmpSourceX() const { return bmpSourceX; }
    int getBmpSourceY() const { return bmpSourceY; }
    int getBmpBlitMode() const { return bmpBlitMode; }
    /// Sets how the bitmap is blended: 0 normal, 1 opaque, 2 half, 3 additive. Only the low 8 bits are
    /// stored.
    void setBmpBlitMode(int mode) { bmpBlitMode = static_cast<unsigned char>(mode); }
    /// Returns 1 if a frame is stretched to the window, the default.
    int getBmpStretch() const { return bmpStretch; }
    void setBmpStretch(int set) { bmpStretch = set & 1; }
    /// Returns 1 if a frame is repeated over the whole window. Takes precedence over stretching.
    int getBmpTile() const { return bmpTile; }
    void setBmpTile(int set) { bmpTile = set & 1; }
    int getFrameWidth() const { return frameWidth; }
    int getFrameHeight() const { return frameHeight; }
    int getCurrentFrame() const { return currentFrame; }
    /// Shows frame, counted over the whole strip. With a frameCount of 1 it also becomes the first frame, so
    /// that a window without animation keeps it.
    void setCurrentFrame(int frame);
    int getFirstFrame() const { return firstFrame; }
    /// Returns the number of frames in the running sequence.
    int getFrameCount() const { return frameCount; }
    void setFrameCount(int count) { frameCount = static_cast<short>(count); }
    /// Returns the animation ticks per frame; at 0 or less the strip does not run.
    int getFrameDelay() const { return frameDelay; }
    /// Returns 1 if the strip starts again after its last frame.
    int getLoop() const { return loop; }
    void setLoop(int set) { loop = set & 1; }
    /// Counts frameStep ticks and returns 1 if the next frame is due.
    int doNextFrame(int frameStep);
    /// Stores in x and y the corner of a frame in a strip whose frames have that size and continue in rows.
    void getStartPosForFrame(int frame, surface* strip, int width, int height, int& x, int& y);
    /// Keeps a copy of the part of source, a backdrop, that is under this window. darken blackens every
    /// second pixel of it.
    void createBkgnd(surface* source, int darken);
    /// Releases the kept background.
    void deleteBkgnd();
    int hasBkgnd() const { return bkgnd != nullptr; }
    /// Copies the backgrounds that this window and those below it keep from the current backdrop again.
    void renewBkgnds();
    /// Blackens every second pixel of a rectangle of the kept background; right and bottom are excluded.
    /// Returns 0 if there is no background, otherwise 1.
    int darkenRect(int left, int top, int right, int bottom);

    // Text (text.cpp).

    /// Writes text into a box in screen pixels: uncut if textRaw is set, otherwise wrapped, or on one line
    /// cut to the width. scale and mode are those of ddwin::textout and apply to a single line only.
    void textOut(int x, int y, int width, int height, const CString& text, E_TEXTJUSTIFY justify, int wrap,
                 ZnFixed scale, int mode, IDirectDrawSurface* dest);
    /// Returns the text's buffer, which is valid until the text changes.
    char* getWindowText() { return windowText.GetBuffer(); }
    const CString& getText() const { return windowText; }
    /// Sets the font. Not owned: fonts belong to the main window's table.
    void setFont(bmpfont* newFont) { font = newFont; }
    bmpfont* getFont() const { return font; }
    /// Moves the left and upper edges of the text's box by x and y pixels; the right and lower edges stay.
    void setTextOffset(int x, int y);
    int getTextOffsetX() const { return textOffsetX; }
    int getTextOffsetY() const { return textOffsetY; }
    void setTextJustify(E_TEXTJUSTIFY justify) { textJustify = justify; }
    E_TEXTJUSTIFY getTextJustify() const { return textJustify; }
    /// Returns 1 if the text is drawn unchanged, including line breaks, and is not cut at the window's edge.
    int getTextRaw() const { return textRaw; }
    void setTextRaw(int set) { textRaw = set & 1; }
    /// Returns 1 if a text of one line is centred vertically.
    int getTextCentreV() const { return textCentreV; }
    void setTextCentreV(int set) { textCentreV = set & 1; }
    /// Returns 1 if the text is broken into lines at the window's width.
    int getTextWrap() const { return textWrap; }
    void setTextWrap(int set) { textWrap = set & 1; }

    // Border (border.cpp).

    /// Draws a border from the strip called name, replaces the previous border, and returns the new one. A
    /// strip that cannot be loaded is reported with "cannot load %s" and not drawn. Owned by this window.
    ABorder* setBorder(const CString& name, int borderWidth, int pieceSize);
    ABorder* getBorder() const { return border.get(); }

    // Movement (anim.cpp).

    /// Starts a movement as APhysicalAnim::setMoveAnimation does; creates the record if there is none.
    void setMoveAnimation(int startX, int startY, int endX, int endY, ZnFixed incX, ZnFixed incY,
                          int deleteWhenDone);
    /// Creates the record if there is none and stores nothing.
    void setScaleAnimation(ZnFixed, ZnFixed, ZnFixed, ZnFixed);
    /// Slides the window by half its size to the lower right, at speed pixels per tick; at the end it is back
    /// at rest. Its size does not change.
    void setShrinkAnimation(ZnFixed speed);
    /// Slides the window back to rest from half its size to the lower right, at speed pixels per tick.
    void setGrowAnimation(ZnFixed speed);
    /// Returns 1 if the movement has finished or there is none.
    int isWndAnimFinished() const { return anim ? anim->isWndAnimFinished() : 1; }
    /// Returns 1 if there is a record, even of a finished movement.
    int hasWndAnimData() const { return anim != nullptr; }
    /// Returns the movement's record, or null if there is none. Owned by this window.
    APhysicalAnim* getAnim() const { return anim.get(); }

    // Tab stops (tabstops.cpp).

    /// Replaces the record with an empty one and returns it. Owned by this window.
    ATabStopInfo* createTabStopInfo();
    /// Returns the record. Without one, creates it if create is set, otherwise returns null. Owned by this
    /// window.
    ATabStopInfo* getTabStopInfo(int create);
    /// Returns the next usable stop after from, wrapping at the end, or the first usable one if from is not
    /// in the list. Returns null if there is none. list is not used.
    AWnd* getNextTabStop(AWnd* from, int backwards, CArray<AWnd*, AWnd*>* list);

    /// Returns where the pointer goes when this popup closes, in screen pixels.
    int getSavedMouseX() const { return savedMouseX; }
    int getSavedMouseY() const { return savedMouseY; }
    void setSavedMousePos(int x, int y);

protected:
    /// Discards the cached positions and visibility of all windows. A class that writes parent, wndX_, wndY_,
    /// visible, enabled or anim (or its offsets) directly, not through the operations above, must call this.
    static void layoutChanged() { LayoutVersion::bump(); }

    // The fields read to draw a window without text are kept together, in two cache lines: thousands of
    // windows are drawn each frame.
private:
    mutable Layout place;

protected:
    short wndX_, wndY_; // pixels, from the parent's corner, before any animation
    short wndWidth, wndHeight;
    std::unique_ptr<APhysicalAnim> anim;
    surface* bmp = nullptr; // strip of frames with a gap of 1 pixel; owned by the display library
    std::unique_ptr<ABorder> border;
    surface* bkgnd = nullptr; // kept background; owned by the display library
    unsigned visible : 1 = 1;
    unsigned enabled : 1 = 1;
    unsigned easyClose : 1 = 0;
    unsigned notifyParent : 1 = 0;
    unsigned bmpStretch : 1 = 1;
    unsigned bmpTile : 1 = 0; // takes precedence over bmpStretch
    unsigned loop : 1 = 1;
    unsigned textRaw : 1 = 0;
    unsigned textCentreV : 1 = 1;
    unsigned textWrap : 1 = 0;
    unsigned char bmpBlitMode = 0;
    short bmpOffsetX = 0;
    short bmpOffsetY = 0;
    short bmpSourceX = 0;
    short bmpSourceY = 0;
    short frameWidth = 0;
    short frameHeight = 0;
    short currentFrame = 0;        // counted over the whole strip
    short firstFrame = 0;          // of the running sequence
    short frameCount = 1;          // in the running sequence
    short frameTimer = 0;          // ticks counted towards frameDelay
    short frameDelay = 0;          // ticks
    CArray<AWnd*, AWnd*> children; // in drawing order
    CString windowText;

    short textOffsetX = 0;
    short textOffsetY = 0;
    E_TEXTJUSTIFY textJustify = TJ_LEFT;
    bmpfont* font; // owned by the main window's table
    E_WNDTYPE windowType;
    short windowIndex = 0; // index among the holder's children when it was added
    short pointerCount = 0;
    WndRef parent; // determines position, visibility and enablement
    WndRef owner;  // deletes this window
    CString id;
    CString bmpFilename;
    std::unique_ptr<ATabStopInfo> tabStopInfo;
    short savedMouseX = 0;
    short savedMouseY = 0;

private:
    friend WndRef;
    friend class WndList;
    struct Links; // needed by few windows: lists that contain it, further holders, windows owned elsewhere

    AWnd* child(int index) const { return children.GetData()[index]; }
    int animX() const { return anim ? anim->getAnimOffsetX() : 0; }
    int animY() const { return anim ? anim->getAnimOffsetY() : 0; }
    APhysicalAnim& makeAnim();
    const Layout& layout() const { return place.version == LayoutVersion::get() ? place : refreshedLayout(); }
    const Layout& refreshedLayout() const;
    void putPointerOnCancel();
    void inheritFont();
    void paintBitmap(int atLeft, int atTop);
    void paintTiles(int srcX, int srcY, int x, int y, int w, int h);
    void prefetchChildren(int index) const;
    void advanceFrame(int frameStep);
    Links& getLinks();
    void leaveOwner();
    void unlist(AWnd* listed);
    bool lists(const AWnd* wnd) const;

    WndRef* refs = nullptr; // first of the refs to this window
    std::unique_ptr<Links> links;
};

template<>
inline void tgx::WeakRef<AWnd>::attach(AWnd* to)
{
    if (to)
        link(to, to->refs);
}
