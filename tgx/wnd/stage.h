#pragma once

#include "platform/display/ddwin.h"
#include "tgx/export.h"
#include "tgx/wnd/wndref.h"

#include <memory>

class AScreen;
class AScreenList;
class AWnd;

namespace tgx {

/// What windows need from the main window. ddwin provides the drawing operations, string lengths, screen
/// size, pointer and key fields; this class adds the screens, popups, focus and capture. AMainWin implements
/// the operations and documents them.
class TGX_API Stage : public ddwin {
public:
    Stage();
    ~Stage() override;

    AScreenList* getScreenList() const { return screenList.get(); }
    virtual AScreen* getActiveScreen() const = 0;
    virtual AWnd* getActiveWnd() const = 0;
    virtual AScreen* changeScreen(const CString& name, int closeCurrent, unsigned resource,
                                  const CString& file) = 0;

    virtual AWnd* setPopupWnd(AWnd* popup, AWnd* parent, int centre) = 0;
    virtual void deletePopupWnd() = 0;
    virtual AWnd* getPopupWnd(int index) const = 0;
    int getPopupWndCount() const { return popupWnds.GetSize(); }

    virtual AWnd* getMouseCaptureWnd(int index) const = 0;
    virtual void setMouseCaptureWnd(AWnd* wnd) = 0;
    virtual int isMouseDownInterval(int interval) const = 0;
    virtual void setMousePos(int x, int y, int jump) = 0;
    virtual int setMousePosOnWnd(AWnd* wnd, int jump) = 0;
    virtual int setMousePosOnNextTabStop(AWnd* root, AWnd* from, int backwards, int jump) = 0;

protected:
    // Here, because the drawing of every window asks for them.
    std::unique_ptr<AScreenList> screenList; // null once the exit has completed
    WndList popupWnds;                       // index 0 is the front
};

/// Returns the main window, or null while there is none. Defined in tgx/frame. Not exported: the
/// drawing of every window calls it.
Stage* stage();

} // namespace tgx
