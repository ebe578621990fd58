#pragma once

#include "platform/framework/weak_ref.h"
#include "tgx/export.h"

#include <vector>

class AWnd;

/// A non-owning pointer to a window that becomes null when the window is deleted.
using WndRef = tgx::WeakRef<AWnd>;

/// Defined in wnd.h.
template<>
inline void tgx::WeakRef<AWnd>::attach(AWnd* to);

/// Holds the window that handles an action and the window that the action is about across calls that may
/// delete either:
///
///     const ActionRefs handling(this, wnd);
///     AWnd::handleMouseAction(about, wnd, x, y, action);
///     if (!handling.canContinue())
///         return 0;
class ActionRefs {
public:
    /// A null aboutWnd means that the action is for all windows.
    ActionRefs(AWnd* handlingWnd, AWnd* aboutWnd)
        : handler(handlingWnd), subject(aboutWnd), isForAll(aboutWnd == nullptr)
    {}
    bool isHandlerAlive() const { return handler.get() != nullptr; }
    bool isSubjectAlive() const { return isForAll || subject.get() != nullptr; }
    bool canContinue() const { return isHandlerAlive() && isSubjectAlive(); }

private:
    const WndRef handler;
    const WndRef subject;
    const bool isForAll;
};

/// A list of windows that owns none of them. A window is removed from all its positions when it is deleted.
/// Indexes are checked as in CArray.
class TGX_API WndList {
public:
    WndList() = default;
    WndList(const WndList&) = delete;
    WndList& operator=(const WndList&) = delete;
    ~WndList() { RemoveAll(); }

    int GetSize() const { return static_cast<int>(entries.size()); }
    bool IsEmpty() const { return entries.empty(); }
    AWnd* GetAt(int index) const;
    AWnd* operator[](int index) const { return GetAt(index); }
    int Add(AWnd* wnd)
    {
        InsertAt(GetSize(), wnd);
        return GetSize() - 1;
    }
    /// Appends a window that the list does not contain, without searching for it first. Returns its index.
    int addNew(AWnd* wnd);
    void InsertAt(int index, AWnd* wnd);
    void RemoveAt(int index);
    void RemoveAll();
    bool contains(const AWnd* wnd) const;
    /// Returns the index of the first entry that is wnd, or -1.
    int find(const AWnd* wnd) const;

private:
    friend class AWnd;
    void drop(const AWnd* wnd); // removes every entry of a deleted window

    std::vector<AWnd*> entries;
    bool hasDoubles = false; // a window may have several entries
};
