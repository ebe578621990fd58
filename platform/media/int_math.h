#pragma once

/// Divisions that always round down (floorDiv) or up (ceilDiv). The divisor must be positive.

template<class Int>
constexpr Int floorDiv(Int dividend, Int divisor)
{
    const Int quotient = dividend / divisor;
    return quotient * divisor > dividend ? quotient - 1 : quotient;
}

template<class Int>
constexpr Int ceilDiv(Int dividend, Int divisor)
{
    const Int quotient = dividend / divisor;
    return quotient * divisor < dividend ? quotient + 1 : quotient;
}
