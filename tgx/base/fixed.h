#pragma once

#include "platform/framework/znfixed.h"

/// Returns size pixels times scale, truncated towards zero. The product is computed in 32 bits; sizes have
/// 16.
constexpr int scaledSize(int size, ZnFixed scale)
{
    return static_cast<int>(static_cast<std::uint32_t>(size) * static_cast<std::uint32_t>(scale.raw)) /
           ZnFixed::one;
}

/// Returns value reduced to the 16 bits in which windows store positions and sizes.
constexpr short to16(int value)
{
    return static_cast<short>(value);
}
