#include "tgx/wnd/wndref.h"

#include "platform/framework/exceptions.h"
#include "tgx/wnd/links.h"
#include "tgx/wnd/wnd.h"

#include <algorithm>
#include <iterator>

namespace {

/// Removes the last entry of value from values. The search begins at the back, because the newest entry is
/// often the first to be removed.
template<class T>
void eraseLast(std::vector<T*>& values, const T* value)
{
    const auto found = std::find(values.rbegin(), values.rend(), value);
    if (found != values.rend())
        values.erase(std::next(found).base());
}

} // namespace

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
    auto& lists = wnd->getLinks().lists;
    const bool isDouble = lists.size() < entries.size()
                              ? std::find(lists.begin(), lists.end(), this) != lists.end()
                              : contains(wnd);
    if (!isDouble)
        lists.push_back(this);
    hasDoubles = hasDoubles || isDouble;
    entries.insert(entries.begin() + index, wnd);
}

int WndList::addNew(AWnd* wnd)
{
    wnd->getLinks().lists.push_back(this);
    entries.push_back(wnd);
    return GetSize() - 1;
}

void WndList::RemoveAt(int index)
{
    AWnd* wnd = GetAt(index);
    entries.erase(entries.begin() + index);
    if (!hasDoubles || !contains(wnd))
        eraseLast<WndList>(wnd->getLinks().lists, this);
}

void WndList::RemoveAll()
{
    for (AWnd* wnd : entries)
        eraseLast<WndList>(wnd->getLinks().lists, this);
    entries.clear();
    hasDoubles = false;
}

void WndList::drop(const AWnd* wnd)
{
    if (hasDoubles)
        entries.erase(std::remove(entries.begin(), entries.end(), wnd), entries.end());
    else
        eraseLast<AWnd>(entries, wnd);
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
