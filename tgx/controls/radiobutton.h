#pragma once

#include "tgx/controls/button.h"

namespace tgx {

/// A parent of radio buttons that reacts by itself when a key has chosen one of them, as a tab control does.
class TGX_API RadioGroupParent {
public:
    /// selected may be null.
    virtual void radioButtonChosen(AButton* selected) = 0;

protected:
    ~RadioGroupParent() = default;
};

} // namespace tgx

/// A button that knows the others of its group: selecting one clears the others. A script makes a group of
/// adjacent RADIOBUTTON lines; each member lists itself first, then the others. They are also the tabs of an
/// ATabControl.
class TGX_API ARadioButton : public AButton {
public:
    /// Members that a script may put into one group: each knows all others.
    static constexpr int maxScriptMembers = 1000;

    ARadioButton(const CString& id, int x, int y, int width, int height);

    /// Selects this button unless another one of the group is selected; clears it otherwise.
    void startup() override;
    /// A click selects. Home and Insert select the member before, End and Delete the next. 0.
    int handleMouseAction(const CString& id, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;
    int handleKeyInput(char key) override;

    /// Not owned; drops out when it is deleted. The new entry's index, or -1 for null, which adds nothing.
    int addLinkedButton(AButton* button);
    /// addLinkedButton both ways, for two buttons that are not linked yet: saves the search for that. With
    /// this button itself once.
    void linkNewMember(ARadioButton& member);
    /// An index outside the list raises the invalid-argument exception.
    AButton* getLinkedButton(int index) const;
    int getLinkedButtonsCount(int visibleOnly) const;
    /// Null when none is selected.
    AButton* getSelectedButton();
    void setAllNonSelected();
    /// Null: this button. One that is not of the group changes nothing.
    void setSelectedButton(AButton* button);
    /// The next usable member, wrapping; from a hidden one the first that shows. Nothing when none is
    /// selected.
    void selectNextButton(int backwards);

protected:
    WndList linkedButtons;

private:
    void notifyOfChoice();
};
