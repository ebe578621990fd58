#pragma once

#include "tgx/export.h"

#include <cstdint>

/// Counts every change of a position, movement, visibility, enablement or parent anywhere in the tree.
class TGX_API LayoutVersion {
public:
    static std::uint64_t get() { return value; }
    static void bump() { ++value; }

private:
    static std::uint64_t value; // from 1, so that a fresh window's layout counts as stale
};

/// Counts every change of who is listed where, and of ids: what a search by id has found holds until the
/// next.
class TGX_API TreeVersion {
public:
    static std::uint64_t get() { return value; }
    static void bump() { ++value; }

private:
    static std::uint64_t value; // from 1, so that what was never searched counts as stale
};

/// What a window's place in the tree makes of it. Kept in the window and worked out anew, from the parent's,
/// when anything in the tree has changed since: asking costs the same at every depth.
struct Layout {
    std::uint64_t version = 0;
    int left = 0; // screen pixels, with all animation
    int top = 0;
    bool visible = false; // it and all above it
    bool enabled = false; // and enabled, each of them
};
