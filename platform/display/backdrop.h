#pragma once

#include "platform/display/surface.h"

/// The picture behind all windows. It has the size of the screen; a picture of another size is stretched.
class TGX_PLATFORM_API backdrop : public surface {
public:
    using surface::surface;
};
