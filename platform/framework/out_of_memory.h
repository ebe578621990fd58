#pragma once

#include <cerrno>
#include <new>

/// For calls of the system and of decoders, which answer a failed allocation like any other failure, or go on
/// with less: made before them, asked after them.
class AllocationWatch {
public:
    AllocationWatch() { errno = 0; }
    /// Throws std::bad_alloc when memory was refused since.
    void check() const
    {
        if (errno == ENOMEM)
            throw std::bad_alloc();
    }
};
