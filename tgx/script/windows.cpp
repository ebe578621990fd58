// Statements that make windows. Id and box are in tokens 1 to 5.

#include "platform/display/msgbox.h"
#include "tgx/script/run.h"
#include "tgx/script/statements.h"
#include "tgx/wnd/screenlist.h"

namespace tgx {

namespace {

/// Makes a plain window with the line's id and box. The caller owns it.
AWnd* makePlain(const ScriptLine& line)
{
    return new AWnd(AWnd::WND_PLAIN, line.text(1), line.number(2), line.number(3), line.number(4),
                    line.number(5));
}

} // namespace

/// Applies text, text offset and bitmap.
void applyTextForm(AWnd& wnd, const ScriptLine& line)
{
    wnd.setWindowText(line.text(6));
    wnd.setTextOffset(line.number(7), line.number(8));
    if (line.count == 10)
        wnd.setBmpFilename(line.text(9), -1, -1);
}

AWnd* window(AWnd& target, const ScriptLine& line)
{
    return target.addChildWindow(makePlain(line));
}

AWnd* bitmap(AWnd& target, const ScriptLine& line)
{
    AWnd* wnd = target.addChildWindow(makePlain(line));
    wnd->setBmpFilename(line.text(6), -1, -1);
    if (line.count == 11)
        wnd->setBmpInfo(line.number(7), line.number(8), line.number(9), line.number(10));
    else
        wnd->setBmpInfo(line.number(4), line.number(5), 1, 1); // one frame of the window's size
    return wnd;
}

AWnd* textWnd(AWnd& target, const ScriptLine& line)
{
    AWnd* wnd = target.addChildWindow(makePlain(line));
    applyTextForm(*wnd, line);
    return wnd;
}

/// Makes a child of the root, wherever the line is.
AWnd* screen(AWnd&, const ScriptLine& line)
{
    AScreen* made =
        line.window.addScreen(line.text(1), line.number(2), line.number(3), line.number(4), line.number(5));
    if (!made)
        return nullptr;
    made->setBackdropName(line.text(6));
    if (line.count == 8)
        made->setExtraString(line.text(7));
    return made;
}

AWnd* userDef(AWnd& target, const ScriptLine& line)
{
    const WndRef place(&target); // the game's code may delete it during the call
    const CString& className = line.text(line.count == 7 ? 6 : 1);
    AWnd* wnd = line.window.createNewWindow(line.text(1), line.number(2), line.number(3), line.number(4),
                                            line.number(5), className);
    if (!wnd) {
        MsgBox("Cannot find source code for userdef window %screating default AWnd instead",
               static_cast<const char*>(line.text(1)));
        wnd = makePlain(line);
    }
    if (!place) {
        delete wnd;
        return nullptr;
    }
    return place->addChildWindow(wnd);
}

AWnd* pointer(AWnd& target, const ScriptLine& line)
{
    const WndRef place(&target); // as above
    const CString& name = line.text(1);
    line.window.deleteAllGotoFiles(line.gotoFiles);

    AWnd* wnd = line.run.findBelow(*line.window.getScreenList(), name);
    if (!wnd) {
        line.window.readScriptFile(line.text(2), GetModuleHandleA(nullptr), mainScriptResource, name, 0);
        AWnd* root = line.window.getScreenList();
        wnd = root ? line.run.findBelow(*root, name) : nullptr;
    }
    AWnd* root = line.window.getScreenList();
    if (!wnd || !place || !line.run.mayShow(*root, *place, *wnd))
        return nullptr;
    if (!place->addChildWindow(wnd))
        return nullptr;
    wnd->addPointer();
    wnd->setOwner(root); // it outlives the screen that shows it
    return wnd;
}

} // namespace tgx
