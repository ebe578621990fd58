#pragma once

#include "tgx/wnd/wnd.h"

/// A window whose bitmap strip holds a run of frames for each of five states, and whose state follows the
/// pointer. With checkBox a click flips it. The game learns of a click from the id passed along with the
/// action; the button only changes its looks.
///
/// The strip contains the runs in the order startup, normal, hot, pressed, disabled, which is also the order
/// of the arguments below.
class TGX_API AButton : public AWnd {
public:
    enum E_BUTTON_STATE {
        BS_NORMAL = 0,
        BS_PRESSED = 1, // held down, or selected
        BS_HOT = 2,     // under the pointer
        BS_STARTUP = 3, // during the opening run, without text
        BS_DISABLED = 4,
    };

    AButton(const CString& id, int x, int y, int width, int height, E_WNDTYPE type = WND_BUTTON);

    void draw(int frameStep) override;
    /// Starts the opening run.
    void startup() override;
    int handleMouseAction(const CString& id, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;
    /// Returns the button to BS_NORMAL, unless it is disabled or in its opening run. Returns 1.
    int handleLostFocus() override;

    /// Returns true if the window type of wnd is that of a button, radio button or combo box.
    static bool isButton(const AWnd* wnd);

    E_BUTTON_STATE getButtonState() const { return buttonState; }
    /// Changes to state and shows it from its first frame. A selected button shows BS_PRESSED in place of
    /// normal and hot. BS_DISABLED also disables the window; leaving it enables the window.
    void setButtonState(E_BUTTON_STATE state);
    /// Returns 1 if the button, or its state window if it has one, is selected.
    int isSelected();
    /// Returns the button's own flag.
    int getSelected() const { return selected; }
    /// Selects the button, or its state window if it has one, by the lowest bit of select. Does nothing while
    /// that is disabled.
    void setSelected(int select);
    /// Sets the number of frames of each run. A state with 0 frames leaves the current picture unchanged.
    void setButtonAnimFrames(int startup, int normal, int hot, int pressed, int disabled);
    /// Sets whether each run starts again at its end.
    void setButtonAnimLoop(int startup, int normal, int hot, int pressed, int disabled);
    /// Sets the ticks per frame of each run (not frames per second).
    void setButtonAnimFPS(int startup, int normal, int hot, int pressed, int disabled);
    /// Sets whether a pressed button moves its text by one pixel, by the lowest bit of set.
    void setTextShift(int set) { textShift = set & 1; }
    int getTextShift() const { return textShift; }
    /// Sets whether a click flips the selection, by the lowest bit of set.
    void setCheckBox(int set) { checkBox = set & 1; }
    int getCheckBox() const { return checkBox; }

protected:
    static constexpr int stateCount = 5;

    /// Returns the child button called "RadioState" or "CheckboxState", which stores the selection and
    /// mirrors the state, or null if there is none.
    AButton* getStateWnd();
    bool isMeantForAnother(const AWnd* wnd) const { return wnd && wnd->getID() != id; }

    E_BUTTON_STATE buttonState = BS_STARTUP;
    unsigned selected : 1 = 0;
    unsigned textShifted : 1 = 0;                    // the text is drawn 1 pixel to the right and down
    short stateFrames[stateCount] = {1, 1, 1, 0, 0}; // by state value
    short stateDelay[stateCount] = {1, 1, 1, 1, 1};  // ticks per frame
    int stateLoop[stateCount] = {1, 1, 1, 0, 1};
    unsigned textShift : 1 = 1;
    unsigned checkBox : 1 = 0;

private:
    int firstFrameOf(E_BUTTON_STATE state) const;
    bool isOpeningRunOver() const;
};
