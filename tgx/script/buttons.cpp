// Statements that make check boxes, radio buttons and the parts of controls, and forms that several
// statements share.

#include "tgx/controls/combobox.h"
#include "tgx/controls/radiobutton.h"
#include "tgx/script/run.h"
#include "tgx/script/statements.h"
#include "tgx/wnd/reserved.h"

namespace tgx {

namespace {

/// Returns the number of radio buttons at the end of target's children, up to limit.
int lastRadioButtons(AWnd& target, int limit)
{
    int count = 0;
    for (int i = target.getWindowCount() - 1; i >= 0 && count < limit; --i, ++count) {
        if (!windowAs<ARadioButton>(target.getWndFromIndex(i, "")))
            break;
    }
    return count;
}

} // namespace

/// Applies text, text offset and bitmap, frame size and delay, and frames of the states; groups may be left
/// out from the end.
void applyButtonForm(AButton& button, const ScriptLine& line)
{
    button.setWindowText(line.text(6));
    if (line.count >= 10) {
        button.setTextOffset(line.number(7), line.number(8));
        button.setBmpFilename(line.text(9), -1, -1);
    }
    if (line.count >= 13) {
        const int width = line.number(10) < 0 ? button.width() : line.number(10);
        const int height = line.number(11) < 0 ? button.height() : line.number(11);
        const int delay = line.number(12) < 0 ? 1 : line.number(12);
        button.setBmpInfo(width, height, delay, 1);
        button.setButtonAnimFPS(delay, delay, delay, delay, delay);
    } else {
        button.setBmpInfo(line.number(4), line.number(5), 1, 1);
    }
    if (line.count >= 17)
        button.setButtonAnimFrames(line.number(13), line.number(14), line.number(15), line.number(16),
                                   line.number(17));
}

AWnd* addStateButton(const char* name, AWnd& target, const ScriptLine& line)
{
    auto* button = new AButton(name, line.number(1), line.number(2), line.number(3), line.number(4));
    target.addChildWindow(button);
    button->setBmpFilename(line.text(5), -1, -1);
    button->setBmpInfo(line.number(6), line.number(7), line.number(8), 1);
    if (line.count >= 13)
        button->setButtonAnimFrames(line.number(9), line.number(10), line.number(11), line.number(12),
                                    line.number(13));
    return button;
}

void applyBarForm(AWnd& bar, const ScriptLine& line)
{
    bar.setBmpFilename(line.text(6), -1, -1);
    bar.setBmpInfo(line.number(7), line.number(8), 1, 1);
}

AWnd* checkBox(AWnd& target, const ScriptLine& line)
{
    AButton* made = addButton<AButton>(target, line);
    made->setCheckBox(1);
    return made;
}

// The radio buttons directly before it form its group; each of them is linked with all others.
AWnd* radioButton(AWnd& target, const ScriptLine& line)
{
    const int others = lastRadioButtons(target, ARadioButton::maxScriptMembers);
    line.run.countLinked(others);
    if (others >= ARadioButton::maxScriptMembers)
        return nullptr;
    const int place = target.getWindowCount();
    auto* made = addButton<ARadioButton>(target, line);
    made->linkNewMember(*made);
    for (int i = place - 1; i >= place - others; --i) {
        auto* member = static_cast<ARadioButton*>(target.getWndFromIndex(i, ""));
        if (member->getPointerCount() == 0) {
            made->linkNewMember(*member);
        } else { // it may be here a second time
            made->addLinkedButton(member);
            member->addLinkedButton(made);
        }
    }
    return made;
}

AWnd* comboMenu(AWnd& target, const ScriptLine& line)
{
    auto* menu =
        new AFloatingMenu(part::comboMenu, line.number(1), line.number(2), line.number(3), line.number(4));
    target.addChildWindow(menu);
    menu->setBmpFilename(line.text(5), -1, -1);
    menu->setVisible(0);
    return menu;
}

} // namespace tgx
