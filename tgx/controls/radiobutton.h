#pragma once

#include "tgx/controls/button.h"

namespace tgx {

/// A parent of radio buttons that is notified when a key has chosen one of them, such as a tab control.
class TGX_API RadioGroupParent {
public:
    /// Called when a key has chosen a button. selected may be null.
    virtual void radioButtonChosen(AButton* selected) = 0;

protected:
    ~RadioGroupParent() = default;
};

} // namespace tgx

/// A button that knows the others of its group: selecting one clears the others. Adjacent RADIOBUTTON lines
/// of a script form a group; each member lists itself first, then the others. Radio buttons are also the tabs
/// of an ATabControl.
class TGX_API ARadioButton : public AButton {
public:
    /// Maximum number of members in a group made by a script. Each member knows all others.
    static constexpr int maxScriptMembers = 1000;

    ARadioButton(const CString& id, int x, int y, int width, int height);

    /// Selects this button if no button of the group is selected; otherwise clears it.
    void startup() override;
    /// Selects this button on a click, the previous member on Home and Insert, and the next one on End and
    /// Delete. Returns 0.
    int handleMouseAction(const CString& id, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;
    int handleKeyInput(char key) override;

    /// Appends button to the list and returns its index, or -1 for null, which adds nothing. Not owned;
    /// removed from the list when it is deleted.
    int addLinkedButton(AButton* button);
    /// Links two buttons with each other, or this button with itself once. They must not be linked yet, which
    /// is not checked.
    void linkNewMember(ARadioButton& member);
    /// Returns the button at index. An index outside the list raises the invalid-argument exception.
    AButton* getLinkedButton(int index) const;
    int getLinkedButtonsCount(int visibleOnly) const;
    /// Returns the group's selected button, or null if none is selected.
    AButton* getSelectedButton();
    void setAllNonSelected();
    /// Selects button and clears the others; null means this button. Does nothing for a button outside the
    /// group.
    void setSelectedButton(AButton* button);
    /// Selects the next usable member after the selected one, wrapping at the ends, or the first visible one
    /// if the selected one is hidden. Does nothing if none is selected.
    void selectNextButton(int backwards);

protected:
    WndList linkedButtons;

private:
    void reportChoice();
};
