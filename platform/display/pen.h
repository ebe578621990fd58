#pragma once

#include "platform/export.h"

#include <cstdint>

class ddwin;

/// A device context of the back buffer. Its lines are recorded like all other drawing operations.
using HDC = struct DeviceContext*;
using HGDIOBJ = struct GdiObject*;
using HPEN = HGDIOBJ;

constexpr int PS_SOLID = 0;
constexpr int TRANSPARENT = 1;

struct POINT {
    int x = 0;
    int y = 0;
};

/// Makes a pen of that width in pixels. colour has red in the low byte. Owned by the caller, who releases it
/// with DeleteObject.
TGX_PLATFORM_API HPEN CreatePen(int style, int width, std::uint32_t colour);
/// Selects a pen into the context and returns the previous one.
TGX_PLATFORM_API HGDIOBJ SelectObject(HDC context, HGDIOBJ object);
TGX_PLATFORM_API int SetBkMode(HDC context, int mode);
/// Moves the context's current point. previous, unless null, receives the old point.
TGX_PLATFORM_API int MoveToEx(HDC context, int x, int y, POINT* previous);
/// Draws a line from the current point to x, y and makes that the current point.
TGX_PLATFORM_API int LineTo(HDC context, int x, int y);
/// Releases a pen. Returns 1, or 0 for null.
TGX_PLATFORM_API int DeleteObject(HGDIOBJ object);
