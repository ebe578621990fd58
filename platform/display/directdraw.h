#pragma once

#include "platform/display/pen.h"
#include "platform/export.h"

class ddwin;

/// The interfaces that ddwin hands out. They stand for what the display is made of; only the back buffer's
/// device context does any work.
struct IDirectDraw {};
struct IDirectDraw2 {};
struct IDirectDrawClipper {};
struct IDirectDrawPalette {};

/// A surface of the display: the back buffer, or what is shown.
struct TGX_PLATFORM_API IDirectDrawSurface {
    explicit IDirectDrawSurface(ddwin* owner = nullptr);
    ~IDirectDrawSurface();
    IDirectDrawSurface(const IDirectDrawSurface&) = delete;
    IDirectDrawSurface& operator=(const IDirectDrawSurface&) = delete;

    /// A device context whose lines are recorded in the owner's display list. 0 for success.
    long GetDC(HDC* context);
    long ReleaseDC(HDC context);
    /// Keeps palette as the one of this surface; pixels are 32 bits wide and do not change. 0 for success.
    long SetPalette(IDirectDrawPalette* newPalette);

private:
    ddwin* owner;
    IDirectDrawPalette* palette = nullptr;
    DeviceContext* context = nullptr;
};
