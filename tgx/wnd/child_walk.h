#pragma once

#include "platform/framework/carray.h"

class AWnd;

/// Visits a window's children in order while what is done to one of them may add or delete others, or the
/// window itself. Each child that is there when its turn comes is visited once.
///
///     for (ChildWalk walk(children); walk.mayGoOn();)
///         if (AWnd* next = walk.next())
///             next->close();
///
/// Lives on the stack and allocates nothing: running walks are linked through themselves, and whoever removes
/// a child tells them.
class ChildWalk {
public:
    using Children = CArray<AWnd*, AWnd*>;

    explicit ChildWalk(const Children& walked) : children(&walked), outer(innermost) { innermost = this; }
    ChildWalk(const ChildWalk&) = delete;
    ChildWalk& operator=(const ChildWalk&) = delete;
    ~ChildWalk() { innermost = outer; }

    bool mayGoOn() const { return children && index < children->GetSize(); }
    /// Null for an empty place. Only while the walk may go on.
    AWnd* next() { return children->GetData()[index++]; }
    /// Place of the child that next will return.
    int getIndex() const { return index; }
    bool isHolderAlive() const { return children != nullptr; }

    /// The child at removedIndex has been removed from changed.
    static void removed(const Children& changed, int removedIndex)
    {
        for (ChildWalk* walk = innermost; walk; walk = walk->outer)
            if (walk->children == &changed && removedIndex < walk->index)
                --walk->index;
    }
    /// The window that holds ended is being deleted.
    static void end(const Children& ended)
    {
        for (ChildWalk* walk = innermost; walk; walk = walk->outer)
            if (walk->children == &ended)
                walk->children = nullptr;
    }

private:
    static ChildWalk* innermost; // in tree.cpp

    const Children* children; // null once the window is deleted
    ChildWalk* outer;
    int index = 0; // of the next child
};
