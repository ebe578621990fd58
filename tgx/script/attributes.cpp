// Statements that set an attribute of any window and need more than one of its setters.

#include "tgx/controls/listbox/listbox.h"
#include "tgx/script/run.h"
#include "tgx/script/statements.h"
#include "tgx/wnd/tabstops.h"

namespace tgx {

bool appendWnds(AWnd& target, const ScriptLine& line, WndList ATabStopInfo::*list)
{
    for (int i = 1; i < line.count; ++i) {
        AWnd* wnd = line.run.findByIndex(target, line.text(i));
        if (!wnd)
            return false;
        (target.getTabStopInfo(1)->*list).Add(wnd);
    }
    return true;
}

bool justificationOf(const TOKEN_INFO& token, AWnd::E_TEXTJUSTIFY& justify)
{
    switch (token.id) {
    case keyword::left:
        justify = AWnd::TJ_LEFT;
        return true;
    case keyword::centre:
        justify = AWnd::TJ_CENTRE;
        return true;
    case keyword::right:
        justify = AWnd::TJ_RIGHT;
        return true;
    default:
        return false;
    }
}

void bmpFile(AWnd& target, const ScriptLine& line)
{
    target.setBmpFilename(line.text(1), -1, -1);
}

// Token 4 is the hot border of a list box; for any other window it is not used.
void border(AWnd& target, const ScriptLine& line)
{
    target.setBorder(line.text(1), line.number(2), line.number(3));
    if (auto* list = line.count == 5 ? windowAs<AListBox>(&target) : nullptr)
        list->setHotBorder(line.text(4), line.number(2), line.number(3));
}

bool font(AWnd& target, const ScriptLine& line)
{
    bmpfont* entry = line.window.getFont(line.number(1));
    if (!entry)
        return false;
    target.setFont(entry);
    return true;
}

// Any argument other than a justification changes nothing and is not an error.
void justify(AWnd& target, const ScriptLine& line)
{
    AWnd::E_TEXTJUSTIFY chosen;
    if (justificationOf(line.tokens[1], chosen))
        target.setTextJustify(chosen);
}

void text(AWnd& target, const ScriptLine& line)
{
    target.setWindowText(line.text(1));
}

} // namespace tgx
