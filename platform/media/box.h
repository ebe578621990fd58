#pragma once

#include <algorithm>
#include <climits>
#include <cstdint>

/// A rectangle of screen pixels. x1 and y1 are exclusive.
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

/// Returns the smallest box around both. An empty box is ignored.
inline Box hull(const Box& a, const Box& b)
{
    if (a.isEmpty())
        return b;
    if (b.isEmpty())
        return a;
    return {std::min(a.x0, b.x0), std::min(a.y0, b.y0), std::max(a.x1, b.x1), std::max(a.y1, b.y1)};
}

/// Returns the part of a rectangle that is inside clip. Its coordinates have 64 bits so that the sum of any
/// two int values fits.
inline Box clipped(std::int64_t x0, std::int64_t y0, std::int64_t x1, std::int64_t y1, const Box& clip)
{
    const auto toInt = [](std::int64_t value) {
        return static_cast<int>(std::clamp<std::int64_t>(value, INT_MIN, INT_MAX));
    };
    return intersection({toInt(x0), toInt(y0), toInt(x1), toInt(y1)}, clip);
}
