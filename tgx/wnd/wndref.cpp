#include "tgx/wnd/wndref.h"

#include "platform/framework/exceptions.h"
#include "tgx/wnd/links.h"
#include "tgx/wnd/wnd.h"

#include <algorithm>

namespace {

void forget(std::vector<WndList*>& lists, WndList* list)
{
    lists.erase(std::remove(lists.begin(), lists.end(), list), lists.end());
}

} // namespace

void WndRef::attach(AWnd* target)
{
    wnd = target;
    if (!target)
        return;
    next = target->refs;
    if (next)
        next->link = &next;
    link = &target->refs;
    target->refs = this;
}

void WndRef::detach()
{
    if (!wnd)
        return;
    *link = next;
    if (next)
        next->link = link;
    wnd = nullptr;
}

AWnd* WndList::GetAt(int index) const
{
    if (index < 0 || index >= GetSize())
        AfxThrowInvalidArgException();
    return entries[static_cast<std::size_t>(index)];
}

void WndList::InsertAt(int index, AWnd* wnd)
{
    if (!wnd || index < 0 || index > GetSize())
        AfxThrowInvalidArgException();
    if (!contains(wnd))
        wnd->getLinks().lists.push_back(this);
    entries.insert(entries.begin() + index, wnd);
}

void WndList::RemoveAt(int index)
{
    AWnd* wnd = GetAt(index);
    entries.erase(entries.begin() + index);
    if (!contains(wnd))
        forget(wnd->getLinks().lists, this);
}

void WndList::RemoveAll()
{
    for (AWnd* wnd : entries)
        forget(wnd->getLinks().lists, this);
    entries.clear();
}

void WndList::drop(const AWnd* wnd)
{
    entries.erase(std::remove(entries.begin(), entries.end(), wnd), entries.end());
}

bool WndList::contains(const AWnd* wnd) const
{
    return find(wnd) >= 0;
}

int WndList::find(const AWnd* wnd) const
{
    const auto found = std::find(entries.begin(), entries.end(), wnd);
    return found == entries.end() ? -1 : static_cast<int>(found - entries.begin());
}
