#pragma once

#include <cerrno>
#include <new>

/// Detects a failed allocation inside calls of the system or of a decoder, which may report it like any other
/// failure or ignore it. Construct it before the calls and call check() after them.
class AllocationWatch {
public:
    AllocationWatch() { errno = 0; }
    /// Throws std::bad_alloc if an allocation has failed since construction.
    void check() const
    {
        if (errno == ENOMEM)
            throw std::bad_alloc();
    }
};
