#pragma once

#include "platform/display/surface.h"

/// The picture behind all windows, at the size of the screen: a picture of another size is stretched to it.
class TGX_PLATFORM_API backdrop : public surface {
public:
    using surface::surface;
};
