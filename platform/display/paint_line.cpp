#include "platform/display/painters.h"
#include "platform/media/int_math.h"

namespace {

// The ends may have any 32-bit coordinates, and their products need more than 64 bits. The same code draws
// lines near the screen, which is nearly all of them, with 64 bits.
__extension__ using Wide = __int128;
using Narrow = std::int64_t;
constexpr int nearbyCoordinate = 1 << 15; // coordinates up to this and
constexpr int nearbyWidth = 1024;         // widths up to this keep all products below 2^55

template<class Int>
Int squareRoot(Int value)
{
    Int root = 0;
    const int highest = value < (Int(1) << 32) ? 15 : sizeof(Int) == 8 ? 30 : 62;
    for (int bit = highest; bit >= 0; bit--) {
        const Int tried = root | (Int(1) << bit);
        if (tried * tried <= value)
            root = tried;
    }
    return root;
}

template<class Int>
struct Line {
    Int x, y;   // the upper end
    Int dx, dy; // vector to the other end; dy is not negative
    int width;
};

template<class Int>
struct Interval {
    Int first, last; // both inclusive

    bool isEmpty() const { return first > last; }
    void cut(Int from, Int to)
    {
        first = std::max(first, from);
        last = std::min(last, to);
    }
};

// Plots the nearest pixel for each step along the longer axis. across is the starting position on the other
// axis.
template<class Int, class Plot>
void stepThin(Int along, Int length, Int across, Int rise, int first, int end, Plot plot)
{
    const Int start = std::max<Int>(0, first - along);
    const Int stop = std::min<Int>(length, end - 1 - along);
    if (start > stop)
        return;
    const Int whole = std::max<Int>(2 * length, 1);
    const Int doubled = 2 * start * rise + length;
    Int place = across + floorDiv(doubled, whole);
    Int rest = doubled - floorDiv(doubled, whole) * whole;
    for (Int step = start; step <= stop; step++) {
        plot(static_cast<int>(along + step), place);
        rest += 2 * rise;
        if (rest >= whole) {
            rest -= whole;
            place++;
        } else if (rest < 0) {
            rest += whole;
            place--;
        }
    }
}

template<class Int>
void paintThin(Image& screen, const Line<Int>& line, std::uint32_t pixel, const Box& clip)
{
    const Int width = std::max(line.dx, -line.dx);
    if (width < line.dy) {
        stepThin<Int>(line.y, line.dy, line.x, line.dx, clip.y0, clip.y1, [&](int y, Int x) {
            if (x >= clip.x0 && x < clip.x1)
                screen.row(y)[static_cast<int>(x)] = pixel;
        });
        return;
    }
    // Always from left to right.
    const bool leftward = line.dx < 0;
    stepThin<Int>(leftward ? line.x + line.dx : line.x, width, leftward ? line.y + line.dy : line.y,
                  leftward ? -line.dy : line.dy, clip.x0, clip.x1, [&](int x, Int y) {
                      if (y >= clip.y0 && y < clip.y1)
                          screen.row(static_cast<int>(y))[x] = pixel;
                  });
}

// Returns all x, relative to the line's start, with low <= factor * x + offset <= high.
template<class Int>
Interval<Int> solve(Int factor, Int offset, Int low, Int high)
{
    constexpr Int everything = Int(1) << (sizeof(Int) * 8 - 28); // beyond any coordinate
    if (factor == 0)
        return low <= offset && offset <= high ? Interval<Int>{-everything, everything} : Interval<Int>{1, 0};
    if (factor < 0)
        return solve(-factor, -offset, -high, -low);
    return {ceilDiv(low - offset, factor), floorDiv(high - offset, factor)};
}

// Paints a band around the line, equally wide at every angle, with a round cap at each end.
template<class Int>
void paintThick(Image& screen, const Line<Int>& line, std::uint32_t pixel, const Box& clip)
{
    // A point has no direction and becomes a vertical bar as long as the width.
    const Int dx = line.dx == 0 && line.dy == 0 ? 1 : line.dx;
    const Int lengthSquared = dx * dx + line.dy * line.dy;
    const Int reach = lengthSquared == 1 ? 0 : lengthSquared; // along the line
    const Int halfWidth = squareRoot(lengthSquared * line.width * line.width) / 2;
    // An even width has no middle pixel, so the band includes one edge and excludes the other.
    const Int farSide = line.width % 2 == 0 ? halfWidth - 1 : halfWidth;
    const Int capSquared = Int(line.width - 1) * (line.width - 1);

    for (int y = clip.y0; y < clip.y1; y++) {
        const Int down = y - line.y;
        Interval<Int> span = solve<Int>(line.dy, -down * dx, -halfWidth, farSide);
        const Interval<Int> along = solve<Int>(dx, down * line.dy, Int(0), reach);
        span.cut(along.first, along.last);
        for (const bool atEnd : {false, true}) {
            const Int capDown = atEnd ? down - line.dy : down;
            const Int rest = capSquared - 4 * capDown * capDown;
            if (rest < 0)
                continue;
            const Int side = squareRoot(rest) / 2;
            const Int middle = atEnd ? line.dx : 0;
            if (span.isEmpty())
                span = {middle - side, middle + side};
            span.first = std::min(span.first, middle - side);
            span.last = std::max(span.last, middle + side);
        }
        span.cut(Int(clip.x0) - line.x, clip.x1 - 1 - line.x);
        if (!span.isEmpty())
            std::fill(screen.row(y) + static_cast<int>(line.x + span.first),
                      screen.row(y) + static_cast<int>(line.x + span.last) + 1, pixel);
    }
}

template<class Int>
void paint(Image& screen, const DrawCommand& command, const Box& clip)
{
    Line<Int> line{command.x, command.y, Int(command.w) - command.x, Int(command.h) - command.y,
                   command.mode};
    // Normalised, so that both directions give the same pixels.
    if (line.dy < 0 || (line.dy == 0 && line.dx < 0))
        line = {command.w, command.h, -line.dx, -line.dy, command.mode};
    const std::uint32_t pixel = 0xFF000000 | command.colour;
    if (line.width <= 1)
        paintThin(screen, line, pixel, clip);
    else
        paintThick(screen, line, pixel, clip);
}

} // namespace

void paintLine(Image& screen, const DrawCommand& command, const Box& clip)
{
    const auto isNearby = [](std::int32_t coordinate) {
        return coordinate >= -nearbyCoordinate && coordinate <= nearbyCoordinate;
    };
    if (isNearby(command.x) && isNearby(command.y) && isNearby(command.w) && isNearby(command.h) &&
        command.mode <= nearbyWidth)
        paint<Narrow>(screen, command, clip);
    else
        paint<Wide>(screen, command, clip);
}
