#include "player/calls.h"
#include "tgx/controls/editbox.h"
#include "tgx/controls/radiobutton.h"
#include "tgx/controls/scrollbar.h"
#include "tgx/controls/tabcontrol.h"

namespace tgx {

namespace {

constexpr Operation rows[] = {
    operation<&ARadioButton::addLinkedButton>("addLinkedButton"),
    operation<&ARadioButton::getLinkedButton>("getLinkedButton"),
    operation<&ARadioButton::getLinkedButtonsCount>("getLinkedButtonsCount"),
    operation<&ARadioButton::getSelectedButton>("getSelectedButton"),
    operation<&ARadioButton::setAllNonSelected>("setAllNonSelected"),
    operation<&ARadioButton::setSelectedButton>("setSelectedButton"),
    operation<&ARadioButton::selectNextButton>("selectNextButton"),

    operation<&AButton::getButtonState>("getButtonState"),
    operation<&AButton::setButtonState>("setButtonState"),
    operation<&AButton::isSelected>("isSelected"),
    operation<&AButton::getSelected>("getSelected"),
    operation<&AButton::setSelected>("setSelected"),
    operation<&AButton::setButtonAnimFrames>("setButtonAnimFrames"),
    operation<&AButton::setButtonAnimLoop>("setButtonAnimLoop"),
    operation<&AButton::setButtonAnimFPS>("setButtonAnimFPS"),
    operation<&AButton::setTextShift>("setTextShift"),
    operation<&AButton::getTextShift>("getTextShift"),
    operation<&AButton::setCheckBox>("setCheckBox"),
    operation<&AButton::getCheckBox>("getCheckBox"),

    operation<&ATabControl::getActiveWnd>("getActiveWnd"),
    operation<&ATabControl::setActiveWnd>("setActiveWnd"),
    operation<&ATabControl::getTabCount>("getTabCount"),

    operation<&AScrollBar::setPercentage>("setPercentage"),
    operation<&AScrollBar::getPercentage>("getPercentage"),
    operation<&AScrollBar::setStep>("setStep"),
    operation<&AScrollBar::getStep>("getStep"),
    operation<&AScrollBar::getLeverHeld>("getLeverHeld"),
    operation<&AScrollBar::setHorizontal>("setHorizontal"),
    operation<&AScrollBar::getHorizontal>("getHorizontal"),

    operation<&AEditBox::getCursorPos>("getCursorPos"),
    operation<&AEditBox::getCaretColour>("getCaretColour"),
    operation<&AEditBox::setCaretColour>("setCaretColour"),
    operation<&AEditBox::getOnEnterWnd>("getOnEnterWnd"),
    operation<&AEditBox::setOnEnterWnd>("setOnEnterWnd"),
    operation<&AEditBox::getLeaveWnd>("getLeaveWnd"),
    operation<&AEditBox::setLeaveWnd>("setLeaveWnd"),
    operation<&AEditBox::getIsPassword>("getIsPassword"),
    operation<&AEditBox::setIsPassword>("setIsPassword"),
    operation<&AEditBox::getForceUpper>("getForceUpper"),
    operation<&AEditBox::setForceUpper>("setForceUpper"),
    operation<&AEditBox::getMaxLength>("getMaxLength"),
    operation<&AEditBox::setMaxLength>("setMaxLength"),
    operation<&AEditBox::getFullWnd>("getFullWnd"),
    operation<&AEditBox::setFullWnd>("setFullWnd"),
};

} // namespace

const std::span<const Operation> controlOperations = rows;

} // namespace tgx
