#pragma once

#include "platform/display/pen.h"
#include "platform/export.h"

class ddwin;

/// The interfaces that ddwin returns. They are placeholders: only the back buffer's device context does any
/// work.
struct IDirectDraw {};
struct IDirectDraw2 {};
struct IDirectDrawClipper {};
struct IDirectDrawPalette {};

/// A surface of the display: the back buffer or the primary surface.
struct TGX_PLATFORM_API IDirectDrawSurface {
    explicit IDirectDrawSurface(ddwin* owner = nullptr);
    ~IDirectDrawSurface();
    IDirectDrawSurface(const IDirectDrawSurface&) = delete;
    IDirectDrawSurface& operator=(const IDirectDrawSurface&) = delete;

    /// Returns in context a device context whose lines are recorded in the owner's display list. Returns 0 on
    /// success.
    long GetDC(HDC* context);
    long ReleaseDC(HDC context);
    /// Stores the palette of this surface, which has no effect on its 32-bit pixels. Returns 0 on success.
    long SetPalette(IDirectDrawPalette* newPalette);

private:
    ddwin* owner;
    IDirectDrawPalette* palette = nullptr;
    DeviceContext* context = nullptr;
};
