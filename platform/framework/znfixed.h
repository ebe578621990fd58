#pragma once

#include "platform/export.h"

#include <compare>
#include <cstdint>

/// A signed fixed-point number with 12 fractional bits: raw / 4096. Range -524288.0 to just under 524288.0.
class ZnFixed {
public:
    std::int32_t raw = 0;

    static constexpr std::int32_t one = 4096;

    /// Returns the number with that raw value: 4096 is 1.0.
    static constexpr ZnFixed fromRaw(std::int32_t value) { return ZnFixed{value}; }
    /// Returns a whole number. A value outside the range wraps.
    static constexpr ZnFixed fromInt(int value)
    {
        return ZnFixed{static_cast<std::int32_t>(static_cast<std::uint32_t>(value) << 12)};
    }
    /// Truncates towards zero: raw -1 gives 0, raw -4097 gives -1.
    constexpr int toInt() const { return raw / one; }

    friend constexpr bool operator==(ZnFixed a, ZnFixed b) { return a.raw == b.raw; }
    friend constexpr auto operator<=>(ZnFixed a, ZnFixed b) { return a.raw <=> b.raw; }
};

/// Multiplies in 64 bits, rounds to the nearest raw value, halves away from zero, and saturates at 32 bits.
TGX_PLATFORM_API ZnFixed operator*(const ZnFixed& a, const ZnFixed& b);
/// Divides, rounding and saturating like the product. Division by zero gives 0.
TGX_PLATFORM_API ZnFixed operator/(ZnFixed a, ZnFixed b);
/// Divides the whole number a, which is not a raw value, by b.
TGX_PLATFORM_API ZnFixed operator/(int a, ZnFixed b);
