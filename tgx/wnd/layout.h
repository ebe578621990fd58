#pragma once

#include "tgx/export.h"

#include <cstdint>

/// Counts every change of a position, movement, visibility, enablement or parent anywhere in the tree.
class TGX_API LayoutVersion {
public:
    static std::uint64_t get() { return value; }
    static void bump() { ++value; }

private:
    static std::uint64_t value; // starts at 1, so that the layout of a new window counts as stale
};

/// Counts every change of the lists of children and of ids: the result of a search by id is valid until the
/// next change.
class TGX_API TreeVersion {
public:
    static std::uint64_t get() { return value; }
    static void bump() { ++value; }

private:
    static std::uint64_t value; // starts at 1, so that a search that was never made counts as stale
};

/// What a window derives from its place in the tree. Cached in the window and computed from the parent's
/// layout again when anything in the tree has changed since, so a query costs the same at every depth.
struct Layout {
    std::uint64_t version = 0;
    int left = 0; // screen pixels, with all animation
    int top = 0;
    bool visible = false; // this window and all above it are
    bool enabled = false; // and all of them are enabled too
};
