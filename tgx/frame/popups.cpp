#include "platform/display/host.h"
#include "tgx/base/numtext.h"
#include "tgx/frame/mainwin.h"
#include "tgx/script/run.h"
#include "tgx/wnd/inside.h"

AWnd* AMainWin::setPopupWnd(AWnd* popup, AWnd* parent, int centre)
{
    if (!popup) {
        closePopup();
        return nullptr;
    }
    // A popup that would become its own ancestor gets no parent, so that the parents form no cycle.
    popup->setParentAndIndex(tgx::isInside(parent, popup) ? nullptr : parent, 0);
    popup->setNotifyParent(1);
    if (centre)
        popup->setWndPosCentred(1, 1, 0);
    const WndRef opened = popup;
    popup->startup();
    if (!opened)
        return nullptr;

    const int count = popupWnds.GetSize();
    const bool sameParent = count > 0 && popupWnds[0]->getParent() == popup->getParent();
    bool queued = false;
    if (count == 0 || (popupWnds[0] != popup && popupWnds[count - 1] != popup)) {
        popupWnds.InsertAt(sameParent ? count : 0, popup);
        queued = sameParent;
    }
    popup->setSavedMousePos(mouseX, mouseY);
    setMousePosOnNextTabStop(popup, nullptr, 0, 0);
    if (!opened)
        return nullptr;

    if (popupWnds.GetSize() > 1 && sameParent) {
        // The popup in front keeps the pointer. When the popup before the last closes, the pointer goes to
        // the last one's tab stop; the last one takes over that popup's saved position.
        AWnd* last = popupWnds[popupWnds.GetSize() - 1];
        AWnd* before = popupWnds[popupWnds.GetSize() - 2];
        const int x = last->getSavedMouseX();
        const int y = last->getSavedMouseY();
        last->setSavedMousePos(before->getSavedMouseX(), before->getSavedMouseY());
        before->setSavedMousePos(mouseX, mouseY);
        mouseX = static_cast<short>(x);
        mouseY = static_cast<short>(y);
    }
    if (queued)
        popup->setVisible(0);
    mouseDownWnd = nullptr;
    return popup;
}

AWnd* AMainWin::setPopupWnd(const CString& name, AWnd* parent, unsigned resource, const CString& file)
{
    return setPopupWnd(findOrReadPopup(name, resource, file), parent, 1);
}

AWnd* AMainWin::findOrReadPopup(const CString& name, unsigned resource, const CString& file)
{
    if (!screenList)
        return nullptr;
    AWnd* found = screenList->getWnd(name, 1);
    if (!found || screenList->isWndToBeDeleted(found))
        found = readScriptFile(file, GetModuleHandleA(nullptr), resource, name, 0);
    return found;
}

void AMainWin::closePopup()
{
    if (popupWnds.GetSize() > 0) {
        const WndRef front = popupWnds[0];
        if (APhysicalAnim* anim = front->getAnim())
            anim->reset();
        front->close();
        if (front) {
            setMousePos(front->getSavedMouseX(), front->getSavedMouseY(), 0);
            const int place = popupWnds.find(front);
            if (place >= 0)
                popupWnds.RemoveAt(place);
        }
        // Shows the next popup if it was queued.
        if (popupWnds.GetSize() > 0 && !popupWnds[0]->isVisible(1))
            popupWnds[0]->setVisible(1);
    }
    mouseDownWnd = nullptr;
}

void AMainWin::deletePopupWnd()
{
    if (popupWnds.GetSize() == 0)
        return;
    const WndRef front = popupWnds[0];
    closePopup();
    if (screenList)
        screenList->addWndToDelete(front);
}

AWnd* AMainWin::getPopupWnd(int index) const
{
    return index >= popupWnds.GetSize() ? nullptr : popupWnds[index];
}

int AMainWin::isInPopupList(const CString& id) const
{
    for (int i = 0; i < popupWnds.GetSize(); ++i)
        if (popupWnds[i]->getID() == id)
            return 1;
    return 0;
}

/// Opens the box called name. Returns null if the script does not define it; that is reported, and open
/// popups do not change.
AWnd* AMainWin::openBox(const CString& name, const CString& id, const CString& title, const CString& text,
                        AWnd* parent)
{
    AWnd* found = findOrReadPopup(name, noResource, commonScriptFile);
    if (!found) {
        displayhost::current().showFailure(
            CString(std::string("cannot load ") + static_cast<const char*>(name)),
            tgx::whyNoScript(commonScriptFile, GetModuleHandleA(nullptr), noResource));
        return nullptr;
    }
    AWnd* box = setPopupWnd(found, parent, 1);
    if (!box)
        return nullptr;
    box->setID(id);
    if (AWnd* titleWnd = box->getWnd("MESSAGEBOXTITLE", 1))
        titleWnd->setWindowText(title);
    if (AWnd* textWnd = box->getWnd("MESSAGEBOXTEXT", 1))
        textWnd->setWindowText(text);
    return box;
}

int AMainWin::messageBox(const CString& title, const CString& text, const CString&, const CString& id,
                         AWnd* parent)
{
    CString boxId = id;
    if (boxId == "messageBox") {
        // The numbers accumulate: messageBox1, messageBox12, messageBox123.
        int n = 0;
        do
            boxId += intToString(++n, 0, 0);
        while (getWnd(boxId, 1));
    }
    return openBox("MESSAGEBOX", boxId, title, text, parent) != nullptr;
}

int AMainWin::queryBox(const CString& title, const CString& text, const CString&, const CString& id,
                       AWnd* parent, int yesNo)
{
    if (!openBox("QUERYBOX", id, title, text, parent))
        return 0;
    const auto label = [this](const char* first, const char* second, const char* words) {
        AWnd* button = getWnd(first, 1);
        if (!button)
            button = getWnd(second, 1);
        if (button)
            button->setWindowText(CString(words));
    };
    label("TGX_YES", "TGX_OK", yesNo ? "Yes" : "OK");
    label("TGX_NO", "TGX_CANCEL", yesNo ? "No" : "Cancel");
    return 1;
}

int AWnd::messageBox(const CString& title, const CString& text, const CString& third, const CString& name)
{
    AMainWin* main = getMainWin();
    if (main)
        main->messageBox(title, text, third, name, this);
    return 1;
}

int AWnd::queryBox(const CString& title, const CString& text, const CString& third, const CString& name)
{
    AMainWin* main = getMainWin();
    if (main)
        main->queryBox(title, text, third, name, this, 0);
    return 1;
}
