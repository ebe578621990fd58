#pragma once

#include "platform/export.h"
#include "platform/framework/weak_ref.h"

class surface;

/// A non-owning pointer to a surface that becomes null when the surface is released.
using SurfaceRef = tgx::WeakRef<surface>;

template<>
TGX_PLATFORM_API void tgx::WeakRef<surface>::attach(surface* to);
/// Calls ddwin::letGo if this was the last ref.
template<>
TGX_PLATFORM_API void tgx::WeakRef<surface>::detach();
