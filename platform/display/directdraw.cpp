#include "platform/display/directdraw.h"

#include "platform/display/device_context.h"

namespace {

constexpr long success = 0;
constexpr long failure = -1;

} // namespace

IDirectDrawSurface::IDirectDrawSurface(ddwin* newOwner) : owner(newOwner) {}

IDirectDrawSurface::~IDirectDrawSurface()
{
    delete context;
}

long IDirectDrawSurface::GetDC(HDC* wanted)
{
    if (!wanted)
        return failure;
    *wanted = nullptr;
    if (!owner || context) // only one context at a time is allowed
        return failure;
    context = new DeviceContext(*owner);
    *wanted = context;
    return success;
}

long IDirectDrawSurface::ReleaseDC(HDC released)
{
    if (!released || released != context)
        return failure;
    delete context;
    context = nullptr;
    return success;
}

long IDirectDrawSurface::SetPalette(IDirectDrawPalette* newPalette)
{
    palette = newPalette;
    return success;
}
