#pragma once

#include "tgx/wnd/wnd.h"

/// One full page of the interface, a child of the AScreenList.
class TGX_API AScreen : public AWnd {
public:
    AScreen(const CString& id, int x, int y, int width, int height);

    void draw(int frameStep) override;
    /// Opens the screen: shows the normal cursor, marks the whole screen dirty and moves the pointer to the
    /// first tab stop.
    void initialise() override;
    void startup() override;
    /// Stores the pointer's position and clears open.
    void close() override;
    /// Moves the pointer back to the stored position.
    void returned() override;
    /// Returns 1 if a click on a reserved id has left the screen.
    int handleMouseAction(const CString& id, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;

    /// Sets the id of the screen to go back to; empty: there is none.
    void setCaller(const CString& name) { caller = name; }
    const CString& getCaller() const { return caller; }
    /// Requests a change to caller that closes this screen for good. Does nothing without a caller.
    void exitScreen();
    void setBackdropName(const CString& name) { backdropName = name; }
    const CString& getBackdropName() const { return backdropName; }
    /// Stores a text for the game; the toolkit does not read it.
    void setExtraString(const CString& text) { extraString = text; }
    const CString& getExtraString() const { return extraString; }
    int isOpen() const { return open; }
    void setOpen(int set) { open = set & 1; }
    /// Sets whether a click on a reserved id may leave the screen. Initially 1; set to 0 by the first action
    /// that finds "TGX_CLOSE" disabled.
    void setCanExit(int set) { canExit = set & 1; }
    int getCanExit() const { return canExit; }

protected:
    CString extraString;
    CString backdropName;
    CString caller;
    unsigned open : 1 = 0;    // entered and not closed for good
    unsigned canExit : 1 = 1; // the reserved ids may leave the screen

private:
    void deselectOwnListBoxes();

    WndRef closeButton;                // first window "TGX_CLOSE" below this one
    std::uint64_t closeSearchedIn = 0; // TreeVersion of that search
};
