#pragma once

/// Divisions that round towards one side, whatever the signs. The divisor is above 0.

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
