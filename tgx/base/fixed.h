#pragma once

#include "platform/framework/znfixed.h"

/// size pixels times scale, truncated towards zero. The product is 32 bits wide, as sizes are 16.
constexpr int scaledSize(int size, ZnFixed scale)
{
    return static_cast<int>(static_cast<std::uint32_t>(size) * static_cast<std::uint32_t>(scale.raw)) /
           ZnFixed::one;
}

/// value cut to the 16 bits in which windows store positions and sizes.
constexpr short to16(int value)
{
    return static_cast<short>(value);
}
