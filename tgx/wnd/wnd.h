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
/// windows and tab stops. It has no platform window behind it and draws on the main window's back buffer.
///
/// Positions and sizes are pixels, 16 bits signed when stored. Flags that an operation takes as an int use
/// its lowest bit, but for setVisible and showAllControls, which ask whether it is above 0. Answers of
/// handlers are 1 for taken, 0 for not taken.
///
/// For a class that derives from it:
///
/// - handleMouseAction hears every action that passes on its way down the tree, whatever window it is about:
///   compare wnd with this. A null wnd means all windows. The answer 1 stops nothing; it only tells the
///   caller.
/// - Keys arrive there too, as MA_KEY with x and y at -1. handleKeyInput is called for nothing but the edit
/// box
///   that is typed into.
/// - What a call of the base reaches may delete this window. Hold a WndRef to it, or ActionRefs, across the
///   call, and ask before touching a member.
/// - A window never deletes itself while an operation of its own runs. It calls update() of its screen or
/// popup
///   as the last thing that its handler does, and is deleted there; the windows on the way notice. Screens
///   and popups, which are children of the root, are deleted by AScreenList::addWndToDelete.
/// - A window that is added after its screen has opened needs a call of startup(), which loads its picture.
/// - Overriding one form of setWindowText hides the other: `using AWnd::setWindowText;` keeps both.
class TGX_API AWnd {
public:
    /// What a window is; controls are told apart by it.
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

    /// What the person did, one a tick.
    enum E_MOUSEACTION {
        MA_MOVE = 0,        // nothing; on every idle tick
        MA_LBUTTONDOWN = 1, // on every tick while held
        MA_RBUTTONDOWN = 2,
        MA_MBUTTONDOWN = 3,
        MA_LBUTTONUP = 4, // or the key Return: a click
        MA_RBUTTONUP = 5, // the dispatch makes a key of it and never sends this
        MA_MBUTTONUP = 6,
        MA_LBUTTONDBLCLK = 7,
        MA_RBUTTONDBLCLK = 8,
        MA_MBUTTONDBLCLK = 9,
        MA_WHEELUP = 10,
        MA_WHEELDOWN = 11,
        MA_KEY = 12, // x and y are -1; the key is in keyCode of the main window
    };

    enum E_TEXTJUSTIFY { TJ_LEFT = 0, TJ_CENTRE = 1, TJ_RIGHT = 2 };

    /// The id "static" gives a window no id. Nothing is loaded and nothing is linked to a parent here.
    AWnd(E_WNDTYPE type, const CString& id, int x, int y, int width, int height);
    AWnd(const AWnd&) = delete;
    AWnd& operator=(const AWnd&) = delete;

    // Virtual operations, in slot order.

    /// Deletes the children that it owns, last first, and unhooks the others. Afterwards no pointer of the
    /// toolkit leads here. The kept background is released; the bitmap stays with the display library.
    virtual ~AWnd();
    /// Paints background, bitmap, border and text, then the children, then moves on. frameStep: animation
    /// ticks that this frame stands for; 0 paints and moves nothing. A popup of this window whose movement
    /// has ended and kept its record (deleteWhenDone 0) is closed in the next frame.
    virtual void draw(int frameStep);
    /// The decimal text of value, through the text form of this operation.
    virtual void setWindowText(int value);
    virtual void setWindowText(const CString& text);
    /// Called after startup when a screen has opened for the first time, never for a popup. The base passes
    /// it on to the children, as it does the next three.
    virtual void initialise();
    /// Called when a screen or popup opens. The base puts the movement back to rest, takes the kept
    /// background again and loads the bitmap.
    virtual void startup();
    /// Called when the screen or popup is left. Bitmaps stay loaded.
    virtual void close();
    /// Called when a suspended screen is shown again, instead of startup. The base loads bitmaps that are
    /// missing.
    virtual void returned();
    /// Called for an action on its way down the tree. id and wnd: the window that the action is about, null
    /// for all; x, y: the pointer in screen pixels, or -1 for a key. The base passes it to the topmost usable
    /// child under the point, a key and everything during Esc to all children, and returns the child's
    /// answer.
    virtual int handleMouseAction(const CString& id, AWnd* wnd, int x, int y, E_MOUSEACTION action);
    /// Called for a key that is typed into an edit box. Passes it to the children, then calls its own
    /// handleMouseAction with MA_KEY.
    virtual int handleKeyInput(char key);
    /// Called on the parent of a popup for each action in it. The base calls that of its own parent first,
    /// and closes the popup on a click with one of the ids that answer a box. Returns 0.
    virtual int handlePopupAction(const CString& id, AWnd* wnd, int x, int y, E_MOUSEACTION action);
    /// Called when the pointer has left. The base does nothing and returns 0.
    virtual int handleLostFocus();
    /// Ends what runs in this window, such as a growing graph. The base passes it on to the children.
    virtual void finishAnims();
    /// Called by controls on their screen or popup after a choice by the player. The base does nothing.
    virtual void update();

    // Tree (tree.cpp).

    /// Appends child and returns it. Owns child from here on. A child with the default font takes this
    /// window's font. A child that this window is inside of would close a ring: null then, and the caller
    /// keeps it.
    AWnd* addChildWindow(AWnd* child);
    /// Takes child out of this window without deleting it and returns it; the caller owns it from here on.
    /// Null for a window that is not among the children.
    AWnd* releaseChildWindow(AWnd* child);
    /// Sets the parent without listing this window there. Not owned by it: owner stays. Takes its font as
    /// above. Does nothing for a parent inside this window. A window that is its own parent counts as one
    /// without a parent.
    void setParentAndIndex(AWnd* parent, int index);
    /// Null for a window that has no parent or is its own.
    AWnd* getParent() const { return parent.get() == this ? nullptr : parent.get(); }
    AWnd* getOwner() const { return owner; }
    /// Who deletes this window from now on; it need not list it.
    void setOwner(AWnd* newOwner);
    int getWindowCount() const { return children.GetSize(); }
    int getWindowIndex() const { return windowIndex; }
    E_WNDTYPE getWindowType() const { return windowType; }
    const CString& getID() const { return id; }
    /// Stores the id unchanged, "static" too.
    void setID(const CString& newId);
    /// Whether the screen stays bright behind this popup.
    int isEasyClose() const { return easyClose; }
    void setEasyClose(int set) { easyClose = set & 1; }
    /// Whether actions in this window also go to its parent's handlePopupAction. Set when it opens as a
    /// popup.
    int getNotifyParent() const { return notifyParent; }
    void setNotifyParent(int set) { notifyParent = set & 1; }
    /// This window; the argument is not read.
    AWnd* getNextWnd(AWnd*) { return this; }
    /// Places in the tree beyond the first that show this window.
    int getPointerCount() const { return pointerCount; }
    void addPointer() { pointerCount = static_cast<short>(pointerCount + (pointerCount < 32767)); }
    /// 1 when this window or an owner on the way to the root is shown in a second place.
    int isPointer() const;
    /// Depth first, ignoring case; with recursive 0 only the direct children. The first match, or null; this
    /// window itself is not tested. An empty id matches the first window without one.
    AWnd* getWnd(const CString& id, int recursive);
    /// The same window, typed; null when it is of another class.
    AButton* getButton(const CString& id, int recursive);
    AListBox* getListBox(const CString& id, int recursive);
    /// Child at index, of this window or of the one called parentId below it. Null behind the last; a
    /// negative index raises the invalid-argument exception.
    AWnd* getWndFromIndex(int index, const CString& parentId);
    /// First direct child of that type from start on; with wrap and start above 0 then from the first to
    /// start - 1. Null if none.
    AWnd* getWndOfType(E_WNDTYPE type, int start, int wrap);
    /// Exact, whole sub-tree.
    int hasChildCalled(const CString& id) const;
    /// Exact, up the parents, this window excluded.
    int hasParentCalled(const CString& id) const;
    /// visible of each direct child: 1 for show above 0, else 0.
    void showAllControls(int show);
    /// Clears the selection of every list box below, but for except.
    void deselectAllListBoxes(AWnd* except);
    /// Opens a box with this window as its parent. 1; a box that the script has not is reported.
    int messageBox(const CString& title, const CString& text, const CString& third, const CString& id);
    int queryBox(const CString& title, const CString& text, const CString& third, const CString& id);
    /// The front popup when this window opened it, else null.
    AWnd* getPopupWnd() const;

    // Geometry (geometry.cpp).

    /// Relative to the parent, without animation.
    int wndX() const { return wndX_; }
    int wndY() const { return wndY_; }
    int getWndWidth() const { return wndWidth; }
    int getWndHeight() const { return wndHeight; }
    /// Corner on the screen; with noAnim without the animation of this window and all above it.
    int posX(int noAnim) const;
    int posY(int noAnim) const;
    int left() const { return layout().left; }
    int top() const { return layout().top; }
    /// Size times the animation's scale, truncated.
    int width() const;
    int height() const;
    int right() const { return left() + width(); }
    int bottom() const { return top() + height(); }
    int centreX() const { return left() + width() / 2; }
    int centreY() const { return top() + height() / 2; }
    /// A screen position as one relative to this window's corner.
    int getWndX(int screenX) const;
    int getWndY(int screenY) const;
    /// A negative width or height keeps the old one.
    void setWndPos(int x, int y, int w, int h);
    /// Centres on the screen, or with inParent in the parent; a screen, or a window without a parent, stays
    /// then.
    void setWndPosCentred(int horizontal, int vertical, int inParent);
    /// Both far edges are inside: 10 pixels wide at 0 holds the points 0 to 10.
    int pointInside(int x, int y) const;
    /// The topmost usable child under the point, or the deepest with recursive; never this window. A disabled
    /// child lets the point through to what lies below.
    AWnd* getWndAtPos(int x, int y, int recursive);
    /// Its own flag, or with withParents whether all above it show too.
    int isVisible(int withParents) const;
    void setVisible(int show);
    /// Whether it and all above it are visible and enabled.
    int isEnabled() const;
    /// Its own flag.
    int getEnabled() const { return enabled; }
    void setEnabled(int set);

    // Bitmap (bitmap.cpp).

    /// Takes over the surface and releases the one before. Null drops the bitmap and leaves the name.
    void setBmp(surface* newBmp);
    /// Loads by name, unless that is the one loaded; reports "cannot load %s". An empty name does nothing.
    void setBmp(const CString& name);
    void loadBmp() { setBmp(bmpFilename); }
    /// Releases the bitmap, unless the window is shown in a second place. The name stays.
    void deleteBmp();
    surface* getBmp() const { return bmp; }
    const CString& getBmpFilename() const { return bmpFilename; }
    /// Loads nothing. Sizes of one frame in pixels; 0 or less: worked out when the bitmap is loaded.
    void setBmpFilename(const CString& name, int width, int height);
    /// Size of a frame, ticks a frame (0 or less: no animation), frames.
    void setBmpInfo(int width, int height, int delay, int count);
    /// Pixels by which the bitmap is moved inside the window.
    void setBmpOffset(int x, int y);
    /// Pixel of the bitmap that the first frame begins at.
    void setBmpSourceInfo(int x, int y);
    int getBmpOffsetX() const { return bmpOffsetX; }
    int getBmpOffsetY() const { return bmpOffsetY; }
    int getBmpSourceX() const { return bmpSourceX; }
    int getBmpSourceY() const { return bmpSourceY; }
    int getBmpBlitMode() const { return bmpBlitMode; }
    /// Low 8 bits. 0 normal, 1 opaque, 2 half, 3 additive.
    void setBmpBlitMode(int mode) { bmpBlitMode = static_cast<unsigned char>(mode); }
    /// Whether a frame is stretched to the window; 1 at first.
    int getBmpStretch() const { return bmpStretch; }
    void setBmpStretch(int set) { bmpStretch = set & 1; }
    /// Whether a frame is repeated all over the window. Beats stretching.
    int getBmpTile() const { return bmpTile; }
    void setBmpTile(int set) { bmpTile = set & 1; }
    int getFrameWidth() const { return frameWidth; }
    int getFrameHeight() const { return frameHeight; }
    int getCurrentFrame() const { return currentFrame; }
    /// Of the whole strip. With a frameCount of 1 it also becomes the first frame, so that a still window
    /// keeps it.
    void setCurrentFrame(int frame);
    int getFirstFrame() const { return firstFrame; }
    /// Frames of the running strip.
    int getFrameCount() const { return frameCount; }
    void setFrameCount(int count) { frameCount = static_cast<short>(count); }
    /// Animation ticks for a frame; 0 or less: the strip does not run.
    int getFrameDelay() const { return frameDelay; }
    /// Whether the strip starts again after its last frame.
    int getLoop() const { return loop; }
    void setLoop(int set) { loop = set & 1; }
    /// Counts frameStep ticks; 1 when the next frame is due.
    int doNextFrame(int frameStep);
    /// Corner of a frame of that size in a strip that runs on in rows.
    void getStartPosForFrame(int frame, surface* strip, int width, int height, int& x, int& y);
    /// Keeps that part of source, a backdrop, which lies under this window; darken: a checkerboard of black
    /// over it.
    void createBkgnd(surface* source, int darken);
    /// Releases the kept background.
    void deleteBkgnd();
    int hasBkgnd() const { return bkgnd != nullptr; }
    /// Takes every background that this window and those below keep from the present backdrop again.
    void renewBkgnds();
    /// Blackens every second pixel of the kept background; right and bottom excluded. 0 without one, else 1.
    int darkenRect(int left, int top, int right, int bottom);

    // Text (text.cpp).

    /// Writes text into the box, in screen pixels: whole where textRaw is set, on one line cut to the width,
    /// or wrapped. scale and mode are those of ddwin::textout and count on one line only.
    void textOut(int x, int y, int width, int height, const CString& text, E_TEXTJUSTIFY justify, int wrap,
                 ZnFixed scale, int mode, IDirectDrawSurface* dest);
    /// The text's buffer; valid until the text changes.
    char* getWindowText() { return windowText.GetBuffer(); }
    const CString& getText() const { return windowText; }
    /// Not owned: fonts live in the main window's table.
    void setFont(bmpfont* newFont) { font = newFont; }
    bmpfont* getFont() const { return font; }
    /// Pixels by which the text is moved inside the window; the right and lower edges stay.
    void setTextOffset(int x, int y);
    int getTextOffsetX() const { return textOffsetX; }
    int getTextOffsetY() const { return textOffsetY; }
    void setTextJustify(E_TEXTJUSTIFY justify) { textJustify = justify; }
    E_TEXTJUSTIFY getTextJustify() const { return textJustify; }
    /// Whether the text is drawn unchanged, line breaks included, and not cut at the window's edge.
    int getTextRaw() const { return textRaw; }
    void setTextRaw(int set) { textRaw = set & 1; }
    /// Whether a text of one line is centred vertically.
    int getTextCentreV() const { return textCentreV; }
    void setTextCentreV(int set) { textCentreV = set & 1; }
    /// Whether the text is broken into lines at the window's width.
    int getTextWrap() const { return textWrap; }
    void setTextWrap(int set) { textWrap = set & 1; }

    // Border (border.cpp).

    /// Frames the window with that strip; one that cannot be loaded is reported with "cannot load %s" and not
    /// drawn. Owned by this window; the one before is deleted.
    ABorder* setBorder(const CString& name, int borderWidth, int pieceSize);
    ABorder* getBorder() const { return border.get(); }

    // Movement (anim.cpp).

    /// As in APhysicalAnim; the record is made if there is none.
    void setMoveAnimation(int startX, int startY, int endX, int endY, ZnFixed incX, ZnFixed incY,
                          int deleteWhenDone);
    /// Makes the record and stores nothing.
    void setScaleAnimation(ZnFixed, ZnFixed, ZnFixed, ZnFixed);
    /// Slides by half its size to the lower right, at speed pixels a tick, and is at rest again when done.
    /// The size stays.
    void setShrinkAnimation(ZnFixed speed);
    /// Slides from half its size at the lower right back to rest.
    void setGrowAnimation(ZnFixed speed);
    /// 1 also when there is no movement.
    int isWndAnimFinished() const { return anim ? anim->isWndAnimFinished() : 1; }
    /// 1 when there is a record, even a finished one.
    int hasWndAnimData() const { return anim != nullptr; }
    /// Null when there is none. Owned by this window.
    APhysicalAnim* getAnim() const { return anim.get(); }

    // Tab stops (tabstops.cpp).

    /// An empty record in place of the one before. Owned by this window.
    ATabStopInfo* createTabStopInfo();
    /// Null when there is none and create is 0.
    ATabStopInfo* getTabStopInfo(int create);
    /// The next usable stop behind from, wrapping; from the first on when from is not in the list. Null if
    /// none. list is not read.
    AWnd* getNextTabStop(AWnd* from, int backwards, CArray<AWnd*, AWnd*>* list);

    /// Where the pointer goes when this popup closes, screen pixels.
    int getSavedMouseX() const { return savedMouseX; }
    int getSavedMouseY() const { return savedMouseY; }
    void setSavedMousePos(int x, int y);

protected:
    /// To be called by a class that writes parent, wndX_, wndY_, visible, enabled or anim (or the offsets in
    /// it) itself instead of through the operations above: positions and visibility are kept until then.
    static void layoutChanged() { LayoutVersion::bump(); }

    // What the drawing of a window without text reads stands together, in two cache lines: thousands are
    // drawn each frame.
private:
    mutable Layout place;

protected:
    short wndX_, wndY_; // pixels, from the parent's corner, before any animation
    short wndWidth, wndHeight;
    std::unique_ptr<APhysicalAnim> anim;
    surface* bmp = nullptr; // of the display library; the strip of frames, 1 pixel between neighbours
    std::unique_ptr<ABorder> border;
    surface* bkgnd = nullptr; // of the display library
    unsigned visible : 1 = 1;
    unsigned enabled : 1 = 1;
    unsigned easyClose : 1 = 0;
    unsigned notifyParent : 1 = 0;
    unsigned bmpStretch : 1 = 1;
    unsigned bmpTile : 1 = 0; // beats bmpStretch
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
    short currentFrame = 0;        // of the whole strip
    short firstFrame = 0;          // of the running sequence
    short frameCount = 1;          // in the running sequence
    short frameTimer = 0;          // ticks towards frameDelay
    short frameDelay = 0;          // ticks
    CArray<AWnd*, AWnd*> children; // drawing order
    CString windowText;

    short textOffsetX = 0;
    short textOffsetY = 0;
    E_TEXTJUSTIFY textJustify = TJ_LEFT;
    bmpfont* font; // of the main window's table
    E_WNDTYPE windowType;
    short windowIndex = 0; // place in the holder's children when it was added
    short pointerCount = 0;
    WndRef parent; // position, visibility and enablement come from it
    WndRef owner;  // deletes this window
    CString id;
    CString bmpFilename;
    std::unique_ptr<ATabStopInfo> tabStopInfo;
    short savedMouseX = 0;
    short savedMouseY = 0;

private:
    friend WndRef;
    friend class WndList;
    struct Links; // what few windows have: lists that name it, further holders, windows owned elsewhere

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
    void fetchAhead(int index) const;
    void advanceFrame(int frameStep);
    Links& getLinks();
    void leaveOwner();
    void unlist(AWnd* listed);
    bool lists(const AWnd* wnd) const;

    WndRef* refs = nullptr; // first of the refs that point here
    std::unique_ptr<Links> links;
};

template<>
inline void tgx::WeakRef<AWnd>::attach(AWnd* to)
{
    if (to)
        link(to, to->refs);
}
