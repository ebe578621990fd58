#include "platform/display/ddwin.h"
#include "tgx/base/fixed.h"
#include "tgx/wnd/border.h"
#include "tgx/wnd/child_walk.h"
#include "tgx/wnd/inside.h"
#include "tgx/wnd/links.h"
#include "tgx/wnd/screenlist.h"
#include "tgx/wnd/stage.h"
#include "tgx/wnd/tabstops.h"
#include "tgx/wnd/wnd.h"

#include <algorithm>

namespace {

bmpfont* defaultFont()
{
    tgx::Stage* stage = tgx::stage();
    return stage ? stage->getFont(0) : nullptr;
}

/// Returns true if wnd is holder or is listed below it. A window shown in two places may be listed below
/// holder without being inside it.
bool isListedBelow(const AWnd* wnd, AWnd* holder)
{
    if (holder == wnd)
        return true;
    for (int i = 0; i < holder->getWindowCount(); ++i)
        if (AWnd* next = holder->getWndFromIndex(i, ""); next && isListedBelow(wnd, next))
            return true;
    return false;
}

} // namespace

ChildWalk* ChildWalk::innermost = nullptr;

AWnd::AWnd(E_WNDTYPE type, const CString& name, int x, int y, int width, int height)
    : wndX_(to16(x)), wndY_(to16(y)), wndWidth(to16(width)), wndHeight(to16(height)), font(defaultFont()),
      windowType(type), id(name == "static" ? CString() : name)
{}

AWnd::~AWnd()
{
    ChildWalk::end(children);
    tabStopInfo.reset();
    border.reset();
    anim.reset();
    while (children.GetSize() > 0) {
        AWnd* last = child(children.GetSize() - 1);
        children.RemoveAt(children.GetSize() - 1);
        if (!last)
            continue;
        if (last->links && last->links->listedTwice)
            unlist(last);
        if (last->owner == this) {
            last->owner = nullptr; // it need not remove itself from a list that is being deleted
            delete last;
        } else if (last->parent == this) {
            last->parent = nullptr;
            LayoutVersion::bump();
        }
    }
    if (links) {
        while (links->ownedElsewhere.GetSize() > 0) {
            AWnd* owned = links->ownedElsewhere[links->ownedElsewhere.GetSize() - 1];
            links->ownedElsewhere.RemoveAt(links->ownedElsewhere.GetSize() - 1);
            if (owned->owner == this)
                delete owned;
        }
        for (int i = 0; i < links->holders.GetSize(); ++i)
            links->holders[i]->unlist(this);
        for (WndList* list : links->lists)
            list->drop(this);
    }
    if (owner)
        owner->unlist(this);
    if (tgx::Stage* stage = tgx::stage()) {
        stage->letGo(bmp);
        stage->deleteSurface(bkgnd);
    }
    while (refs)
        refs->detach();
    LayoutVersion::bump();
    TreeVersion::bump();
}

AWnd::Links& AWnd::getLinks()
{
    if (!links)
        links = std::make_unique<Links>();
    return *links;
}

bool AWnd::lists(const AWnd* wnd) const
{
    return std::find(children.begin(), children.end(), wnd) != children.end();
}

void AWnd::unlist(AWnd* listed)
{
    TreeVersion::bump();
    for (int i = children.GetSize() - 1; i >= 0; --i)
        if (child(i) == listed) {
            children.RemoveAt(i);
            ChildWalk::removed(children, i);
        }
    // The root's children keep their index, because it stores that of the active screen.
    const tgx::Stage* stage = tgx::stage();
    if (stage && stage->getScreenList() == this)
        return;
    for (int i = 0; i < children.GetSize(); ++i)
        if (child(i) && child(i)->parent == this)
            child(i)->windowIndex = to16(i);
}

void AWnd::inheritFont()
{
    const AWnd* holder = parent;
    if (holder && holder->font && font == defaultFont())
        font = holder->font;
}

AWnd* AWnd::addChildWindow(AWnd* added)
{
    if (!added || tgx::isInside(this, added) || isListedBelow(this, added))
        return nullptr;
    if (added->owner == this || (added->links && added->links->holders.contains(this)))
        added->getLinks().listedTwice = true;

    children.Add(added);
    added->windowIndex = to16(children.GetSize() - 1);
    added->parent = this;
    added->inheritFont();
    if (added->owner != this) {
        added->leaveOwner();
        added->owner = this;
    }
    LayoutVersion::bump();
    TreeVersion::bump();
    return added;
}

AWnd* AWnd::releaseChildWindow(AWnd* released)
{
    if (!released || !lists(released))
        return nullptr;
    unlist(released);
    if (released->owner == this)
        released->owner = nullptr;
    if (released->parent == this)
        released->parent = nullptr;
    if (released->links) {
        released->links->listedTwice = false;
        WndList& holders = released->links->holders;
        if (const int at = holders.find(this); at >= 0)
            holders.RemoveAt(at);
    }
    LayoutVersion::bump();
    return released;
}

void AWnd::setParentAndIndex(AWnd* newParent, int index)
{
    // A window that is its own parent counts as having no parent.
    if (newParent != this && tgx::isInside(newParent, this))
        return;
    parent = newParent;
    windowIndex = to16(index);
    inheritFont();
    LayoutVersion::bump();
}

// A window that lists this one without owning it must still be notified when this one is deleted.
void AWnd::leaveOwner()
{
    if (owner && owner->lists(this) && !getLinks().holders.contains(owner))
        links->holders.Add(owner);
    owner = nullptr;
}

void AWnd::setOwner(AWnd* newOwner)
{
    if (owner == newOwner)
        return;
    leaveOwner();
    owner = newOwner;
    if (newOwner && !newOwner->lists(this))
        newOwner->getLinks().ownedElsewhere.Add(this);
}

void AWnd::setID(const CString& newId)
{
    id = newId;
    TreeVersion::bump();
}

int AWnd::isPointer() const
{
    const tgx::Stage* stage = tgx::stage();
    const AWnd* root = stage ? stage->getScreenList() : nullptr;
    for (const AWnd* wnd = this; wnd && wnd != root; wnd = wnd->owner)
        if (wnd->pointerCount > 0)
            return 1;
    return 0;
}

AWnd* AWnd::getWnd(const CString& name, int recursive)
{
    for (int i = 0; i < children.GetSize(); ++i) {
        AWnd* candidate = child(i);
        if (!candidate)
            continue;
        if (CString::equalNoCase(candidate->id.view(), name.view()))
            return candidate;
        if (recursive && candidate->children.GetSize() > 0)
            if (AWnd* deeper = candidate->getWnd(name, recursive))
                return deeper;
    }
    return nullptr;
}

AWnd* AWnd::getWndFromIndex(int index, const CString& parentId)
{
    AWnd* holder = parentId.IsEmpty() ? this : getWnd(parentId, 1);
    if (!holder || index >= holder->children.GetSize())
        return nullptr;
    return holder->children.GetAt(index);
}

AWnd* AWnd::getWndOfType(E_WNDTYPE type, int start, int wrap)
{
    const int count = children.GetSize();
    const auto firstOfType = [&](int from, int end) -> AWnd* {
        for (int i = from; i < end; ++i) {
            AWnd* candidate = children.GetAt(i);
            if (candidate && candidate->windowType == type)
                return candidate;
        }
        return nullptr;
    };
    AWnd* found = firstOfType(start, count);
    if (!found && wrap && start > 0)
        found = firstOfType(0, std::min(start, count));
    return found;
}

int AWnd::hasChildCalled(const CString& name) const
{
    for (const AWnd* candidate : children)
        if (candidate && (candidate->id == name || candidate->hasChildCalled(name)))
            return 1;
    return 0;
}

int AWnd::hasParentCalled(const CString& name) const
{
    for (const AWnd* wnd = getParent(); wnd; wnd = wnd->getParent())
        if (wnd->id == name)
            return 1;
    return 0;
}

void AWnd::showAllControls(int show)
{
    for (AWnd* control : children)
        if (control)
            control->setVisible(show);
}

void AWnd::setSavedMousePos(int x, int y)
{
    savedMouseX = to16(x);
    savedMouseY = to16(y);
}
