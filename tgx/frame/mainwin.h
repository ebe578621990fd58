#pragma once

#include "platform/display/ddwin.h"
#include "platform/framework/cfile.h"
#include "platform/limits.h"
#include "platform/system/module.h"
#include "tgx/frame/app.h"
#include "tgx/frame/governor.h"
#include "tgx/script/script_stage.h"
#include "tgx/script/token.h"
#include "tgx/wnd/screenlist.h"

#include <memory>
#include <optional>
#include <vector>

namespace tgx {
class ScriptObserver;
struct ScriptPlace;
class ScriptRun;
} // namespace tgx

/// The game's main window: root of the window tree, frame loop, screens and popups, input, and the interface
/// script. The game derives from it and overrides startup (to read its main script), drawscreen,
/// OnMouseAction, OnKeyInput, createNewWindow, readScriptFile, addScreen or doChangeScreenSpecial.
class TGX_API AMainWin : public tgx::ScriptStage {
public:
    /// Reads the settings. width and height are in pixels; bitDepth is used if the settings contain none.
    AMainWin(int width, int height, int bitDepth);
    /// Deletes all windows and stores the settings.
    ~AMainWin() override;

    // Virtual operations, in slot order.

    /// Reads the dimming window "DARKWND" from "common.tgx" and returns 1.
    int startup() override;
    /// Draws one frame. Once exitProgram has been called it completes the exit instead.
    void drawscreen() override;
    /// Handles one input tick.
    void OnMouseAction() override;
    void OnKeyInput() override;
    /// Makes a window of one of the game's own classes, for USERDEF lines, and for screens, where className
    /// is the id. The caller owns it. Returns null if className is not a class of the game.
    AWnd* createNewWindow(const CString& id, int x, int y, int w, int h, const CString& className) override;
    /// Runs a compiled script: the file below UIG or, if there is none, the resource of instance; does
    /// nothing without either. If toWindow is not empty, reads only that window's definition and returns the
    /// top-level window of that id, or null. finalRead opens the first screen.
    AWnd* readScriptFile(const CString& name, HINSTANCE instance, unsigned resourceId,
                         const CString& toWindow, int finalRead) override;
    /// Adds a screen to the list and returns it: one of the game's class for that id, or a plain AScreen.
    /// Owned by the list.
    AScreen* addScreen(const CString& id, int x, int y, int w, int h) override;

protected:
    /// Called before a pending change. Return a screen to handle the change in place of the toolkit, and
    /// carry it out with changeScreen. The base returns null.
    virtual AScreen* doChangeScreenSpecial(const CString& name);

public:
    /// Called when the user wants to close the window. The base calls exitProgram; a game that does not call
    /// it stays open, for example to ask first.
    virtual void onCloseRequest();

    // Frame (mainwin.cpp).

    /// Requests the end of the program. The next frame closes the screen, deletes all windows and closes the
    /// main window.
    void exitProgram();
    /// Deletes all windows and clears everything that refers to them. startup loads the dimming window again.
    void recreateScreenList();
    /// Suspends the dispatch of input until nextDrawDone has returned 1.
    void waitForNextDraw() { nextDrawCount = 1; }
    /// Returns 1 on the fourth call after waitForNextDraw, otherwise 0.
    int nextDrawDone();
    AScreen* getActiveScreen() const override { return screenList ? screenList->getActiveScreen() : nullptr; }
    /// Returns the front popup, or the active screen if there is none.
    AWnd* getActiveWnd() const override;
    AWnd* getWnd(const CString& name, int recursive);
    AWnd* getWndFromIndex(int index);
    int getFrameStep() const { return frameStep; }
    int getCurrentFPS() const { return governor.getCurrentFPS(); }
    int getTargetFPS() const { return targetFPS; }

    // Screens (screens.cpp).

    /// Requests a change of screen after the fifth frame from now and returns null. closeCurrent closes the
    /// current screen for good; otherwise the new one can go back to it. If a change is already pending, that
    /// one is carried out at once and its screen returned; the new request is dropped.
    AScreen* changeScreen(const CString& name, int closeCurrent, unsigned resource,
                          const CString& file) override;
    /// Closes every open screen except the active one; they stay in the tree. Returns 0.
    int closeAllScreensExceptCurrent();
    const CString& getPendingScreen() const { return pendingScreen; }

    // Input (input.cpp).

    AWnd* getCurFocusWnd() const { return curFocusWnd; }
    AWnd* getMouseDownWnd() const { return mouseDownWnd; }
    /// Returns how many ticks the pointer has stayed on getCurFocusWnd.
    int getFocusWndHotTime() const { return focusWndHotTime; }
    /// Returns entry index of the capture stack or, after its end, of the popups; otherwise the active
    /// screen. Entry 0 receives the input of the next tick.
    AWnd* getMouseCaptureWnd(int index) const override;
    int getMouseCaptureWndCount() const { return mouseCaptureWnds.GetSize(); }
    /// Puts wnd on top of the capture stack; null removes the top entry.
    void setMouseCaptureWnd(AWnd* wnd) override;
    /// Returns 1 if a held button repeats in this tick: on the first tick and, from 3 * interval on, on each
    /// multiple of interval. interval is in ticks; -1 means 10, any other value of 0 or less means 1.
    int isMouseDownInterval(int interval) const override;
    /// Moves the pointer to x, y in screen pixels. jump also sets the previous position, so that no movement
    /// is seen.
    void setMousePos(int x, int y, int jump) override;
    /// Moves the pointer to the centre of wnd, or to the first selectable row of a list. Returns 0 for a list
    /// without such a row, otherwise 1, also for null.
    int setMousePosOnWnd(AWnd* wnd, int jump) override;
    /// Moves the pointer to the next tab stop of root after from. Returns 1, or 0 if no tab stop could take
    /// the pointer.
    int setMousePosOnNextTabStop(AWnd* root, AWnd* from, int backwards, int jump) override;
    int getKeepListSelection() const { return keepListSelection; }
    void setKeepListSelection(int set) { keepListSelection = set; }

    // Popups (popups.cpp).

    /// Opens popup for parent and returns it: in front, or hidden at the end if parent also opened the front
    /// popup. A null popup closes the front popup, without waiting for its movement (see AWnd::draw for a
    /// popup that slides away). Calls startup() of the popup but not initialise().
    AWnd* setPopupWnd(AWnd* popup, AWnd* parent, int centre) override;
    /// Finds the window, or reads it from the script, and opens it centred.
    AWnd* setPopupWnd(const CString& name, AWnd* parent, unsigned resource, const CString& file);
    /// Closes the front popup and marks it for deletion.
    void deletePopupWnd() override;
    /// Returns the popup at index, 0 being the front, or null after the last. A negative index raises the
    /// invalid-argument exception.
    AWnd* getPopupWnd(int index) const override;
    /// Returns 1 if a popup with exactly this id is open.
    int isInPopupList(const CString& id) const;
    /// Opens the box "MESSAGEBOX" of "common.tgx". The id "messageBox" is made unique. Returns 1, or 0 if the
    /// box could not be opened.
    int messageBox(const CString& title, const CString& text, const CString& third, const CString& id,
                   AWnd* parent);
    /// Opens the box "QUERYBOX" of "common.tgx", with its buttons labelled Yes and No if yesNo is set,
    /// otherwise OK and Cancel. Returns 1, or 0 if the box could not be opened.
    int queryBox(const CString& title, const CString& text, const CString& third, const CString& id,
                 AWnd* parent, int yesNo);

    // Script (scripts.cpp).

    /// Executes one line. Returns the change of depth, or lineFailed.
    int processLine(CFile* stream, TOKEN_INFO* tokens, int count, AWnd* current, AWnd** wndStack, int depth,
                    CArray<CFile*, CFile*>& gotoFiles);
    /// Runs the subroutine called name with parent, which may be null, as its window. Returns 1 if it was
    /// run, otherwise 0.
    int doSubroutine(CFile* stream, const CString& name, AWnd* parent,
                     CArray<CFile*, CFile*>& gotoFiles) override;
    /// Makes file read the bytes of a resource without copying them. Returns 1, or 0 if there is no such
    /// resource.
    int convertResourceToFile(HINSTANCE instance, unsigned resource, CMemFile* file,
                              const CString& type) override;
    /// Closes and deletes the streams and empties the array. A stream that a subroutine runs from is kept
    /// until the subroutine has ended.
    void deleteAllGotoFiles(CArray<CFile*, CFile*>& gotoFiles) override;
    /// Calls observer for each line that is carried out from now on. Not owned: remove it before it is
    /// deleted.
    void addScriptObserver(tgx::ScriptObserver& observer);
    void removeScriptObserver(tgx::ScriptObserver& observer);
    const std::vector<tgx::ScriptObserver*>& getScriptObservers() const override { return scriptObservers; }
    /// Returns the line that is being carried out, in the innermost read if reads are nested; nothing between
    /// reads.
    std::optional<tgx::ScriptPlace> getScriptPlace() const;

protected:
    /// Draws one frame of the wipe.
    void screenWipe();

    WndRef darkWnd;           // dims the screen below the popups; a child of screenList
    WndList mouseCaptureWnds; // index 0 is the top
    WndRef prevFocusWnd;      // curFocusWnd of the previous tick
    WndRef curFocusWnd;       // window under the pointer inside the input target
    int focusWndHotTime = 0;  // ticks
    WndRef mouseDownWnd;      // window on which the left button went down
    FrameGovernor governor;
    int targetFPS = 24;     // frames per second that animations are designed for; a subclass may change it
    int wipeFramesLeft = 0; // frames
    int wipeEnabled = 0;    // 1: changes of screen wipe; a subclass may set it
    int nextDrawCount = 0;  // frames counted so far; while above 0 no input is dispatched
    int keepListSelection = 0;
    CString pendingScreen; // empty: no change is pending
    int pendingCloseCurrent = 0;
    unsigned pendingResource = 0;
    CString pendingFile;
    std::unique_ptr<char[]> ownedBuffer;       // for use by a subclass
    long scriptLines = limits::scriptLines;    // limit for one outermost read; a subclass may lower it
    long long scriptWork = limits::scriptWork; // limit for the work of these lines beyond their number

private:
    void drawPopups();
    void advancePendingChange();
    /// A change of screen: the wanted screen, and the script from which it is read if it does not exist.
    struct ScreenRequest {
        CString name;
        bool closesCurrent;
        unsigned resource;
        CString file;
    };
    AScreen* doChangeScreen();
    AScreen* enterScreen(AScreen& screen, const ScreenRequest& request);
    AScreen* usableScreen(AWnd* wnd, bool closesCurrent) const;
    AScreen* findOrReadScreen(const ScreenRequest& request);
    void reportMissingScreen(const ScreenRequest& request);
    void showBackdropOf(const AScreen& screen);
    bool openFirstScreen();
    AWnd* lastTopLevelWnd(const CString& name) const;
    void completeExit();
    void loseFocus();
    void dropLostInput();
    void endTypingByClick();
    bool activeScreenTakesInput() const;
    void followUp(AWnd::E_MOUSEACTION action, const WndRef& target, const WndRef& screen);
    AWnd* inputTarget() const;
    AWnd* aliveOrNull(AWnd* wnd) const;
    AWnd::E_MOUSEACTION chooseAction(AWnd* target);
    bool takeKey(AWnd* target);
    void moveFocus(AWnd* target);
    void dispatch(AWnd* to, AWnd::E_MOUSEACTION action);
    AWnd* keyWindow(AWnd* target) const;
    AWnd* findOrReadPopup(const CString& name, unsigned resource, const CString& file);
    void closePopup();
    AWnd* openBox(const CString& name, const CString& id, const CString& title, const CString& text,
                  AWnd* parent);

    int frameStep = 0; // animation ticks of the current or last frame
    bool exitRequested = false;
    bool wipeSwapsBackdrop = false; // the running wipe has not shown the new backdrop yet
    bool wipeReturns = false; // the running wipe leads to a suspended screen; its last frame calls returned
    std::vector<tgx::ScriptObserver*> scriptObservers;
    std::unique_ptr<tgx::ScriptRun> scriptRun; // belongs to the outermost read; null between reads
};
