#pragma once

#include <algorithm>
#include <climits>
#include <cstdint>

/// A rectangle of screen pixels, far edges excluded.
struct Box {
    int x0 = 0;
    int y0 = 0;
    int x1 = 0;
    int y1 = 0;

    bool isEmpty() const { return x0 >= x1 || y0 >= y1; }
    int width() const { return x1 - x0; }
    int height() const { return y1 - y0; }
    bool contains(const Box& other) const
    {
        return x0 <= other.x0 && y0 <= other.y0 && x1 >= other.x1 && y1 >= other.y1;
    }
};

inline Box intersection(const Box& a, const Box& b)
{
    return {std::max(a.x0, b.x0), std::max(a.y0, b.y0), std::min(a.x1, b.x1), std::min(a.y1, b.y1)};
}

/// The smallest box around both; an empty one counts for nothing.
inline Box hull(const Box& a, const Box& b)
{
    if (a.isEmpty())
        return b;
    if (b.isEmpty())
        return a;
    return {std::min(a.x0, b.x0), std::min(a.y0, b.y0), std::max(a.x1, b.x1), std::max(a.y1, b.y1)};
}

/// The part of a rectangle in 64 bits, where sums of any two arguments fit, that lies in clip.
inline Box clipped(std::int64_t x0, std::int64_t y0, std::int64_t x1, std::int64_t y1, const Box& clip)
{
    const auto held = [](std::int64_t value) {
        return static_cast<int>(std::clamp<std::int64_t>(value, INT_MIN, INT_MAX));
    };
    return intersection({held(x0), held(y0), held(x1), held(y1)}, clip);
}
