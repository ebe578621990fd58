#include "tgx/controls/radiobutton.h"

#include "tgx/wnd/stage.h"

ARadioButton::ARadioButton(const CString& name, int x, int y, int width, int height)
    : AButton(name, x, y, width, height, WND_RADIOBUTTON)
{
    textShift = 0;
}

void ARadioButton::startup()
{
    AWnd::startup(); // a radio button has no opening run
    setSelected(getSelectedButton() == nullptr);
}

int ARadioButton::addLinkedButton(AButton* button)
{
    return button ? linkedButtons.Add(button) : -1;
}

void ARadioButton::linkNewMember(ARadioButton& member)
{
    linkedButtons.addNew(&member);
    if (&member != this)
        member.linkedButtons.addNew(this);
}

AButton* ARadioButton::getLinkedButton(int index) const
{
    return static_cast<AButton*>(linkedButtons[index]);
}

int ARadioButton::getLinkedButtonsCount(int visibleOnly) const
{
    if (!visibleOnly)
        return linkedButtons.GetSize();
    int count = 0;
    for (int i = 0; i < linkedButtons.GetSize(); ++i)
        count += linkedButtons[i]->isVisible(1);
    return count;
}

AButton* ARadioButton::getSelectedButton()
{
    if (isSelected())
        return this;
    for (int i = 0; i < linkedButtons.GetSize(); ++i)
        if (getLinkedButton(i)->isSelected())
            return getLinkedButton(i);
    return nullptr;
}

void ARadioButton::setAllNonSelected()
{
    setSelected(0);
    for (int i = 0; i < linkedButtons.GetSize(); ++i)
        getLinkedButton(i)->setSelected(0);
}

void ARadioButton::setSelectedButton(AButton* button)
{
    if (!button || button == this)
        button = this;
    else if (!linkedButtons.contains(button))
        return;
    setAllNonSelected();
    button->setSelected(1);
}

void ARadioButton::selectNextButton(int backwards)
{
    const AButton* from = getSelectedButton();
    if (!from)
        return;
    const int count = linkedButtons.GetSize();
    if (!from->isVisible(1)) {
        for (int i = 0; i < count; ++i)
            if (linkedButtons[i]->isVisible(1)) {
                setSelectedButton(getLinkedButton(i));
                return;
            }
        return;
    }

    int at = linkedButtons.find(from);
    if (at < 0)
        at = count;
    for (int steps = 0; steps < count; ++steps) {
        at += backwards ? -1 : 1;
        if (at < 0)
            at = count - 1;
        else if (at >= count)
            at = 0;
        if (linkedButtons[at]->isEnabled()) {
            setSelectedButton(getLinkedButton(at));
            return;
        }
    }
}

int ARadioButton::handleKeyInput(char key)
{
    return AWnd::handleKeyInput(key);
}

int ARadioButton::handleMouseAction(const CString& about, AWnd* wnd, int x, int y, E_MOUSEACTION action)
{
    const ActionRefs handling(this, wnd);
    AButton::handleMouseAction(about, wnd, x, y, action);
    if (!handling.canContinue() || isMeantForAnother(wnd))
        return 0;

    if (action == MA_KEY) {
        const int key = tgx::stage()->keyCode;
        const bool back = key == VK_HOME || key == VK_INSERT;
        if (back || key == VK_END || key == VK_DELETE) {
            selectNextButton(back);
            reportChoice(); // may delete this button
        }
        return 0;
    }
    if (action == MA_LBUTTONUP && isVisible(1) && buttonState != BS_DISABLED) {
        setSelected(1);
        for (int i = 0; i < linkedButtons.GetSize(); ++i)
            if (linkedButtons[i] != this)
                getLinkedButton(i)->setSelected(0);
    }
    return 0;
}

void ARadioButton::reportChoice()
{
    if (auto* holder = dynamic_cast<tgx::RadioGroupParent*>(getParent()))
        holder->radioButtonChosen(getSelectedButton());
    else if (AWnd* active = tgx::stage()->getActiveWnd())
        active->update();
}
