#pragma once

#include "tgx/wnd/wnd.h"

/// One full page of the interface, a child of the AScreenList.
class TGX_API AScreen : public AWnd {
public:
    AScreen(const CString& id, int x, int y, int width, int height);

    void draw(int frameStep) override;
    /// Opens the screen: normal cursor, the whole screen dirty, the pointer on the first tab stop.
    void initialise() override;
    void startup() override;
    /// Keeps the pointer's position and clears open.
    void close() override;
    /// Puts the pointer back where it was.
    void returned() override;
    /// 1 when a click on a reserved id has left the screen.
    int handleMouseAction(const CString& id, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;

    /// Id of the screen to go back to; empty: there is no way back.
    void setCaller(const CString& name) { caller = name; }
    const CString& getCaller() const { return caller; }
    /// Asks for a change to caller that closes this screen for good. Does nothing without one.
    void exitScreen();
    void setBackdropName(const CString& name) { backdropName = name; }
    const CString& getBackdropName() const { return backdropName; }
    /// For the game; the toolkit does not read it.
    void setExtraString(const CString& text) { extraString = text; }
    const CString& getExtraString() const { return extraString; }
    int isOpen() const { return open; }
    void setOpen(int set) { open = set & 1; }
    /// Whether a click on a reserved id may leave the screen. 1 at first; 0 from the first
    /// action on that finds "TGX_CLOSE" disabled.
    void setCanExit(int set) { canExit = set & 1; }
    int getCanExit() const { return canExit; }

protected:
    CString extraString;
    CString backdropName;
    CString caller;
    unsigned open : 1 = 0;    // entered, and not closed for good
    unsigned canExit : 1 = 1; // the reserved ids may leave the screen

private:
    void deselectOwnListBoxes();

    WndRef closeButton; // the first window "TGX_CLOSE" below, as of that version of the tree
    std::uint64_t closeSearchedIn = 0;
};
