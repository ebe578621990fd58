#pragma once

#include "platform/export.h"

#include <compare>
#include <cstdint>

/// A signed fixed-point number with 12 fractional bits: raw / 4096. Range -524288.0 to just under 524288.0.
class ZnFixed {
public:
    std::int32_t raw = 0;

    static constexpr std::int32_t one = 4096;

    /// value as it stands in memory: 4096 is 1.0.
    static constexpr ZnFixed fromRaw(std::int32_t value) { return ZnFixed{value}; }
    /// A whole number; outside the range it wraps.
    static constexpr ZnFixed fromInt(int value)
    {
        return ZnFixed{static_cast<std::int32_t>(static_cast<std::uint32_t>(value) << 12)};
    }
    /// Truncates towards zero: raw -1 is 0, raw -4097 is -1.
    constexpr int toInt() const { return raw / one; }

    friend constexpr bool operator==(ZnFixed a, ZnFixed b) { return a.raw == b.raw; }
    friend constexpr auto operator<=>(ZnFixed a, ZnFixed b) { return a.raw <=> b.raw; }
};

/// a x b. 64 bits on the way; rounded to the nearest raw value, halves away from zero; held inside 32 bits.
TGX_PLATFORM_API ZnFixed operator*(const ZnFixed& a, const ZnFixed& b);
/// a / b, rounded and held in the same way; a division by zero gives 0.
TGX_PLATFORM_API ZnFixed operator/(ZnFixed a, ZnFixed b);
/// a / b with a as a whole number, not a raw value.
TGX_PLATFORM_API ZnFixed operator/(int a, ZnFixed b);
