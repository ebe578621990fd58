#pragma once

#include "platform/framework/carray.h"

class AWnd;

/// Visits a window's children in order, even if handling one of them adds or deletes others, or the window
/// itself. Each child that exists when its turn comes is visited once.
///
///     for (ChildWalk walk(children); walk.canContinue();)
///         if (AWnd* next = walk.next())
///             next->close();
///
/// Lives on the stack and allocates nothing: running walks form a linked list, and code that removes a child
/// notifies them.
class ChildWalk {
public:
    using Children = CArray<AWnd*, AWnd*>;

    explicit ChildWalk(const Children& walked) : children(&walked), outer(innermost) { innermost = this; }
    ChildWalk(const ChildWalk&) = delete;
    ChildWalk& operator=(const ChildWalk&) = delete;
    ~ChildWalk() { innermost = outer; }

    bool canContinue() const { return children && index < children->GetSize(); }
    /// Returns the next child, or null for an empty entry. Call it only while canContinue returns true.
    AWnd* next() { return children->GetData()[index++]; }
    /// Returns the index of the child that next will return.
    int getIndex() const { return index; }
    bool isHolderAlive() const { return children != nullptr; }

    /// Notifies the running walks that the child at removedIndex has been removed from changed.
    static void removed(const Children& changed, int removedIndex)
    {
        for (ChildWalk* walk = innermost; walk; walk = walk->outer)
            if (walk->children == &changed && removedIndex < walk->index)
                --walk->index;
    }
    /// Ends the running walks over ended, whose window is being deleted.
    static void end(const Children& ended)
    {
        for (ChildWalk* walk = innermost; walk; walk = walk->outer)
            if (walk->children == &ended)
                walk->children = nullptr;
    }

private:
    static ChildWalk* innermost; // defined in tree.cpp

    const Children* children; // null once the window is deleted
    ChildWalk* outer;
    int index = 0; // of the next child
};
