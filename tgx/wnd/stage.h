#pragma once

#include "platform/display/ddwin.h"
#include "tgx/export.h"

class AScreen;
class AScreenList;
class AWnd;

namespace tgx {

/// What windows need from the main window. ddwin provides the drawing operations, string lengths, screen
/// size, pointer and key fields; this class adds the screens, popups, focus and capture. AMainWin implements
/// it and documents the operations.
class TGX_API Stage : public ddwin {
public:
    virtual AScreenList* getScreenList() const = 0;
    virtual AScreen* getActiveScreen() const = 0;
    virtual AWnd* getActiveWnd() const = 0;
    virtual AScreen* changeScreen(const CString& name, int closeCurrent, unsigned resource,
                                  const CString& file) = 0;

    virtual AWnd* setPopupWnd(AWnd* popup, AWnd* parent, int centre) = 0;
    virtual void deletePopupWnd() = 0;
    virtual AWnd* getPopupWnd(int index) const = 0;
    virtual int getPopupWndCount() const = 0;

    virtual AWnd* getMouseCaptureWnd(int index) const = 0;
    virtual void setMouseCaptureWnd(AWnd* wnd) = 0;
    virtual int isMouseDownInterval(int interval) const = 0;
    virtual void setMousePos(int x, int y, int jump) = 0;
    virtual int setMousePosOnWnd(AWnd* wnd, int jump) = 0;
    virtual int setMousePosOnNextTabStop(AWnd* root, AWnd* from, int backwards, int jump) = 0;
};

/// Returns the main window, or null while there is none. Defined in tgx/frame.
TGX_API Stage* stage();

} // namespace tgx
