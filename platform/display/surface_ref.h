#pragma once

#include "platform/export.h"

class surface;

/// A pointer to a surface that owns nothing and becomes null when the surface is released. The refs to a
/// surface form an intrusive list.
class TGX_PLATFORM_API SurfaceRef {
public:
    SurfaceRef() = default;
    SurfaceRef(surface* pointee) { attach(pointee); }
    SurfaceRef(const SurfaceRef& other) { attach(other.target); }
    SurfaceRef& operator=(const SurfaceRef& other) { return *this = other.target; }
    SurfaceRef& operator=(surface* other)
    {
        if (target != other) {
            detach();
            attach(other);
        }
        return *this;
    }
    ~SurfaceRef() { detach(); }

    operator surface*() const { return target; }
    surface* operator->() const { return target; }
    surface* get() const { return target; }

private:
    friend class surface;
    void attach(surface* to);
    void detach();
    void unlink();

    surface* target = nullptr;
    SurfaceRef* next = nullptr;
    SurfaceRef** link = nullptr; // the pointer that points to this ref
};
