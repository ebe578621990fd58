#pragma once

#include "tgx/wnd/wnd.h"

/// A window whose bitmap strip holds a run of frames for each of five states, and whose state follows the
/// pointer. With checkBox a click flips it. The game hears of a click by the id that travels with it; the
/// button only changes its looks.
///
/// The runs lie in the strip in this order: startup, normal, hot, pressed, disabled; so do the arguments
/// below.
class TGX_API AButton : public AWnd {
public:
    enum E_BUTTON_STATE {
        BS_NORMAL = 0,
        BS_PRESSED = 1, // held down, or selected
        BS_HOT = 2,     // under the pointer
        BS_STARTUP = 3, // the opening run; no text meanwhile
        BS_DISABLED = 4,
    };

    AButton(const CString& id, int x, int y, int width, int height, E_WNDTYPE type = WND_BUTTON);

    void draw(int frameStep) override;
    /// Begins the opening run.
    void startup() override;
    int handleMouseAction(const CString& id, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;
    /// Back to rest, but for a button that is disabled or opening. 1.
    int handleLostFocus() override;

    /// Whether wnd is an AButton, by its type.
    static bool isButton(const AWnd* wnd);

    E_BUTTON_STATE getButtonState() const { return buttonState; }
    /// Shows another state from its first frame on. A selected button shows BS_PRESSED for normal and hot;
    /// disabling and enabling go along with BS_DISABLED.
    void setButtonState(E_BUTTON_STATE state);
    /// Of the state window if there is one.
    int isSelected();
    /// Its own flag.
    int getSelected() const { return selected; }
    /// Lowest bit. Nothing while disabled.
    void setSelected(int select);
    /// Frames of each run; 0: the state has none, and the button goes on showing what it showed.
    void setButtonAnimFrames(int startup, int normal, int hot, int pressed, int disabled);
    /// Whether each run starts again at its end.
    void setButtonAnimLoop(int startup, int normal, int hot, int pressed, int disabled);
    /// Ticks a frame of each run (not frames a second).
    void setButtonAnimFPS(int startup, int normal, int hot, int pressed, int disabled);
    /// Whether a pressed button moves its text by a pixel. Lowest bit.
    void setTextShift(int set) { textShift = set & 1; }
    int getTextShift() const { return textShift; }
    /// Whether a click flips the selection. Lowest bit.
    void setCheckBox(int set) { checkBox = set & 1; }
    int getCheckBox() const { return checkBox; }

protected:
    static constexpr int stateCount = 5;

    /// A child button called "RadioState" or "CheckboxState" carries the selection and mirrors the state.
    /// Null if none.
    AButton* getStateWnd();
    bool isMeantForAnother(const AWnd* wnd) const { return wnd && wnd->getID() != id; }

    E_BUTTON_STATE buttonState = BS_STARTUP;
    unsigned selected : 1 = 0;
    unsigned textShifted : 1 = 0;                    // the text stands 1 pixel right and down
    short stateFrames[stateCount] = {1, 1, 1, 0, 0}; // by state value
    short stateDelay[stateCount] = {1, 1, 1, 1, 1};  // ticks a frame
    int stateLoop[stateCount] = {1, 1, 1, 0, 1};
    unsigned textShift : 1 = 1;
    unsigned checkBox : 1 = 0;

private:
    int firstFrameOf(E_BUTTON_STATE state) const;
    bool openingRunIsOver() const;
};
