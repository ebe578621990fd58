#include "platform/framework/znfixed.h"

#include <algorithm>
#include <limits>

namespace {

/// Returns numerator / denominator as a raw value, rounded to the nearest, halves away from zero, and
/// saturated at 32 bits. Neither may exceed 2^62, because both are doubled.
ZnFixed nearest(std::int64_t numerator, std::int64_t denominator)
{
    if (denominator == 0)
        return ZnFixed::fromRaw(0);
    const bool negative = (numerator < 0) != (denominator < 0);
    const auto above = static_cast<std::uint64_t>(numerator < 0 ? -numerator : numerator);
    const auto below = static_cast<std::uint64_t>(denominator < 0 ? -denominator : denominator);
    const auto magnitude = static_cast<std::int64_t>((2 * above + below) / (2 * below));
    const std::int64_t value = negative ? -magnitude : magnitude;
    return ZnFixed::fromRaw(static_cast<std::int32_t>(std::clamp<std::int64_t>(
        value, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max())));
}

} // namespace

ZnFixed operator*(const ZnFixed& a, const ZnFixed& b)
{
    return nearest(std::int64_t{a.raw} * b.raw, ZnFixed::one);
}

ZnFixed operator/(ZnFixed a, ZnFixed b)
{
    return nearest(std::int64_t{a.raw} * ZnFixed::one, b.raw);
}

ZnFixed operator/(int a, ZnFixed b)
{
    return nearest(std::int64_t{a} * ZnFixed::one * ZnFixed::one, b.raw);
}
