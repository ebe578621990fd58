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

class ScriptObserver;
struct ScriptPlace;
class ScriptRun;

/// The game's main window: root of the window tree, frame loop, screens and popups, input, and the interface
/// script. The game derives from it and replaces startup (to read its main script), drawscreen,
/// OnMouseAction, OnKeyInput, createNewWindow, readScriptFile, addScreen or doChangeScreenSpecial.
class TGX_API AMainWin : public tgx::ScriptStage {
public:
    /// Reads the settings. width and height in pixels; bitDepth counts where none is stored.
    AMainWin(int width, int height, int bitDepth);
    /// Deletes all windows and stores the settings.
    ~AMainWin() override;

    // Virtual operations, in slot order.

    /// Reads the dimming window "DARKWND" out of "common.tgx". 1.
    int startup() override;
    /// One frame; returns at once when the exit has completed.
    void drawscreen() override;
    /// One input tick.
    void OnMouseAction() override;
    void OnKeyInput() override;
    /// A window of the game's own class, by class name: for USERDEF lines, and for screens, where className
    /// is the id. The caller owns it. Null: none of the game's.
    AWnd* createNewWindow(const CString& id, int x, int y, int w, int h, const CString& className) override;
    /// Runs a compiled script: the file below UIG, or the resource of instance if there is no such file, or
    /// nothing. A toWindow that is not empty reads only that window's definition and answers the top-level
    /// window of that id, or null. finalRead opens the first screen.
    AWnd* readScriptFile(const CString& name, HINSTANCE instance, unsigned resourceId,
                         const CString& toWindow, int finalRead) override;
    /// Puts a screen into the list: the game's class for that id, or a plain AScreen. Owned by the list.
    AScreen* addScreen(const CString& id, int x, int y, int w, int h) override;

protected:
    /// Takes a change over when it answers a screen; carry it out with changeScreen.
    virtual AScreen* doChangeScreenSpecial(const CString& name);

public:
    /// The user wants to close the window. The base calls exitProgram. A game may ask first, and stay open by
    /// not calling it.
    virtual void onCloseRequest();

    // Frame (mainwin.cpp).

    /// Asks for the end; the next frame carries it out: the screen is closed, all windows are deleted, the
    /// window is told to close.
    void exitProgram();
    /// Deletes all windows. Nothing points at them any more; startup brings the dimming window back.
    void recreateScreenList();
    /// No input is dispatched until nextDrawDone has answered 1.
    void waitForNextDraw() { nextDrawCount = 1; }
    /// 1 on the fourth call behind waitForNextDraw.
    int nextDrawDone();
    AScreenList* getScreenList() const override { return screenList.get(); }
    AScreen* getActiveScreen() const override { return screenList ? screenList->getActiveScreen() : nullptr; }
    /// The front popup, else the active screen.
    AWnd* getActiveWnd() const override;
    AWnd* getWnd(const CString& name, int recursive);
    AWnd* getWndFromIndex(int index);
    int getFrameStep() const { return frameStep; }
    int getCurrentFPS() const { return governor.getCurrentFPS(); }
    int getTargetFPS() const { return targetFPS; }

    // Screens (screens.cpp).

    /// Asks for a change, carried out behind the fifth frame from now. closeCurrent: the present screen is
    /// closed for good, otherwise the new one can go back to it. Null. While a change waits, that one is
    /// carried out at once instead, and its screen is the answer.
    AScreen* changeScreen(const CString& name, int closeCurrent, unsigned resource,
                          const CString& file) override;
    /// Closes every open screen but the active one; they stay in the tree. 0.
    int closeAllScreensExceptCurrent();
    const CString& getPendingScreen() const { return pendingScreen; }

    // Input (input.cpp).

    AWnd* getCurFocusWnd() const { return curFocusWnd; }
    AWnd* getMouseDownWnd() const { return mouseDownWnd; }
    /// Ticks that the pointer has stayed on getCurFocusWnd.
    int getFocusWndHotTime() const { return focusWndHotTime; }
    /// Entry of the capture stack, else of the popups, else the active screen. 0 is where the next tick goes.
    AWnd* getMouseCaptureWnd(int index) const override;
    int getMouseCaptureWndCount() const { return mouseCaptureWnds.GetSize(); }
    /// Puts wnd on top of the stack; null takes the top away.
    void setMouseCaptureWnd(AWnd* wnd) override;
    /// Repeat of a held button: 1 on the first tick, and from 3 times interval on at each multiple of it. -1:
    /// 10 ticks; 0 or less otherwise: 1.
    int isMouseDownInterval(int interval) const override;
    /// With jump the previous position goes along.
    void setMousePos(int x, int y, int jump) override;
    /// Puts the pointer on the middle of wnd. 0 for a list without a row that can take it, else 1, also for
    /// null.
    int setMousePosOnWnd(AWnd* wnd, int jump) override;
    /// Puts the pointer on the next tab stop of root behind from. 1, or 0 when none could take it.
    int setMousePosOnNextTabStop(AWnd* root, AWnd* from, int backwards, int jump) override;
    int getKeepListSelection() const { return keepListSelection; }
    void setKeepListSelection(int set) { keepListSelection = set; }

    // Popups (popups.cpp).

    /// Opens popup for parent, in front, or hidden at the end when parent has the front popup too, and
    /// returns it. Null closes the front popup. The popup gets startup(), and no initialise(). One that has a
    /// movement is closed at once all the same, without waiting for it; see AWnd::draw for one that slides
    /// away.
    AWnd* setPopupWnd(AWnd* popup, AWnd* parent, int centre) override;
    /// Finds the window or reads it, and opens it centred.
    AWnd* setPopupWnd(const CString& name, AWnd* parent, unsigned resource, const CString& file);
    /// Closes the front popup and marks it for deletion.
    void deletePopupWnd() override;
    /// Null behind the end; a negative index raises the invalid-argument exception.
    AWnd* getPopupWnd(int index) const override;
    int getPopupWndCount() const override { return popupWnds.GetSize(); }
    /// Exact.
    int isInPopupList(const CString& id) const;
    /// Opens the box "MESSAGEBOX" of "common.tgx". An id of "messageBox" is made unique. 1, or 0 when there
    /// is no such box.
    int messageBox(const CString& title, const CString& text, const CString& third, const CString& id,
                   AWnd* parent);
    /// The same with "QUERYBOX", its buttons named Yes and No with yesNo, else OK and Cancel.
    int queryBox(const CString& title, const CString& text, const CString& third, const CString& id,
                 AWnd* parent, int yesNo);

    // Script (scripts.cpp).

    /// Executes one line. The change of depth, or lineFailed.
    int processLine(CFile* stream, TOKEN_INFO* tokens, int count, AWnd* current, AWnd** wndStack, int depth,
                    CArray<CFile*, CFile*>& gotoFiles);
    /// Runs the subroutine called name with parent as its window, which may be null. 1 when it was found.
    int doSubroutine(CFile* stream, const CString& name, AWnd* parent,
                     CArray<CFile*, CFile*>& gotoFiles) override;
    /// Makes file read the bytes of a resource, in place. 1, or 0 when there is none.
    int convertResourceToFile(HINSTANCE instance, unsigned resource, CMemFile* file,
                              const CString& type) override;
    /// Closes and deletes the streams and empties the array. A stream that a subroutine runs from lives until
    /// that has ended.
    void deleteAllGotoFiles(CArray<CFile*, CFile*>& gotoFiles) override;
    /// Shows observer each line that a read carries out, from now on. Not owned: remove it before it is
    /// deleted.
    void addScriptObserver(ScriptObserver& observer);
    void removeScriptObserver(ScriptObserver& observer);
    const std::vector<ScriptObserver*>& getScriptObservers() const override { return scriptObservers; }
    /// Returns the line that is being carried out, the innermost one where reads are nested; nothing between
    /// reads.
    std::optional<ScriptPlace> getScriptPlace() const;

protected:
    /// One frame of the wipe.
    void screenWipe();

    std::unique_ptr<AScreenList> screenList; // null once the exit has completed
    WndRef darkWnd;                          // dims the screen behind popups; a child of screenList
    WndList popupWnds;                       // index 0 is the front
    WndList mouseCaptureWnds;                // index 0 is the top
    WndRef prevFocusWnd;                     // of the tick before
    WndRef curFocusWnd;                      // under the pointer, inside the target
    int focusWndHotTime = 0;                 // ticks
    WndRef mouseDownWnd;                     // where the left button went down
    FrameGovernor governor;
    int targetFPS = 24;     // rate that animations are made for; a subclass may change it
    int wipeFramesLeft = 0; // frames
    int wipeEnabled = 0;    // a subclass may set it: changes wipe
    int nextDrawCount = 0;  // frames waited for; above 0 no input is dispatched
    int keepListSelection = 0;
    CString pendingScreen; // empty: no change waits
    int pendingCloseCurrent = 0;
    unsigned pendingResource = 0;
    CString pendingFile;
    std::unique_ptr<char[]> ownedBuffer;    // for a subclass
    long scriptLines = limits::scriptLines; // that one outermost read may execute; a subclass may allow fewer
    long long scriptWork = limits::scriptWork; // and what they may cost beyond being lines

private:
    void drawPopups();
    void countTowardsChange();
    /// A change of screen: what is wanted, and where it is read from if it does not exist.
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
    AWnd* inputTarget() const;
    AWnd* alive(AWnd* wnd) const;
    AWnd::E_MOUSEACTION chooseAction(AWnd* target);
    bool takeKey(AWnd* target);
    void moveFocus(AWnd* target);
    void dispatch(AWnd* to, AWnd::E_MOUSEACTION action);
    AWnd* keyWindow(AWnd* target) const;
    AWnd* findOrReadPopup(const CString& name, unsigned resource, const CString& file);
    void closePopup();
    AWnd* openBox(const CString& name, const CString& id, const CString& title, const CString& text,
                  AWnd* parent);

    int frameStep = 0; // of the running or last frame
    bool exitRequested = false;
    bool wipeSwapsBackdrop = false; // the running wipe has yet to bring the new backdrop
    bool wipeReturns = false;       // its screen was suspended: returned falls to the last frame
    std::vector<ScriptObserver*> scriptObservers;
    std::unique_ptr<ScriptRun> scriptRun; // of the outermost read that runs; null between reads
};
