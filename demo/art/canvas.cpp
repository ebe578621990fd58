#include "demo/art/canvas.h"

#include <algorithm>
#include <cmath>

Colour rgb(std::uint32_t value, float alpha)
{
    auto part = [value](int shift) { return static_cast<float>(value >> shift & 0xFF) / 255; };
    return {part(16), part(8), part(0), alpha};
}

Colour mix(Colour from, Colour to, float share)
{
    auto between = [share](float a, float b) { return a + (b - a) * share; };
    return {between(from.r, to.r), between(from.g, to.g), between(from.b, to.b), between(from.a, to.a)};
}

Colour faded(Colour colour, float alpha)
{
    return {colour.r, colour.g, colour.b, colour.a * alpha};
}

float clamp01(float value)
{
    return std::clamp(value, 0.0f, 1.0f);
}

float smooth(float from, float to, float value)
{
    float t = clamp01((value - from) / (to - from));
    return t * t * (3 - 2 * t);
}

Shape disc(float x, float y, float radius)
{
    return [=](float px, float py) { return std::hypot(px - x, py - y) - radius; };
}

Shape ellipse(float x, float y, float radiusX, float radiusY)
{
    return [=](float px, float py) {
        float length = std::hypot((px - x) / radiusX, (py - y) / radiusY);
        return (length - 1) *
               std::min(radiusX, radiusY); // this is the distance near the edge, where it matters
    };
}

Shape box(float left, float top, float right, float bottom, float rounding)
{
    return [=](float px, float py) {
        float dx = std::abs(px - (left + right) / 2) - (right - left) / 2 + rounding;
        float dy = std::abs(py - (top + bottom) / 2) - (bottom - top) / 2 + rounding;
        return std::hypot(std::max(dx, 0.0f), std::max(dy, 0.0f)) + std::min(std::max(dx, dy), 0.0f) -
               rounding;
    };
}

namespace {

float distanceToSegment(Point p, Point a, Point b)
{
    float dx = b.x - a.x, dy = b.y - a.y;
    float length = dx * dx + dy * dy;
    float t = length > 0 ? clamp01(((p.x - a.x) * dx + (p.y - a.y) * dy) / length) : 0;
    return std::hypot(p.x - a.x - t * dx, p.y - a.y - t * dy);
}

} // namespace

Shape polygon(std::vector<Point> points)
{
    return [points = std::move(points)](float x, float y) {
        float nearest = 1e9f;
        bool inside = false;
        for (std::size_t i = 0, j = points.size() - 1; i < points.size(); j = i++) {
            Point a = points[i], b = points[j];
            nearest = std::min(nearest, distanceToSegment({x, y}, a, b));
            if ((a.y > y) != (b.y > y) && x < (b.x - a.x) * (y - a.y) / (b.y - a.y) + a.x)
                inside = !inside;
        }
        return inside ? -nearest : nearest;
    };
}

Shape stroke(std::vector<Point> points, float width)
{
    return [points = std::move(points), width](float x, float y) {
        float nearest = 1e9f;
        for (std::size_t i = 1; i < points.size(); ++i)
            nearest = std::min(nearest, distanceToSegment({x, y}, points[i - 1], points[i]));
        return nearest - width / 2;
    };
}

Shape outline(Shape shape, float width)
{
    return [shape = std::move(shape), width](float x, float y) { return std::abs(shape(x, y)) - width / 2; };
}

float hashed(int x, int y, std::uint32_t seed)
{
    std::uint32_t h = static_cast<std::uint32_t>(x) * 0x9E3779B1u ^
                      static_cast<std::uint32_t>(y) * 0x85EBCA77u ^ seed * 0xC2B2AE3Du;
    h = (h ^ h >> 15) * 0x2C1B3C6Du;
    h = (h ^ h >> 12) * 0x297A2D39u;
    return static_cast<float>((h ^ h >> 15) >> 8) / 16777216.0f;
}

float noise(float x, float y, std::uint32_t seed)
{
    int cellX = static_cast<int>(std::floor(x)), cellY = static_cast<int>(std::floor(y));
    float fx = smooth(0, 1, x - static_cast<float>(cellX)), fy = smooth(0, 1, y - static_cast<float>(cellY));
    auto row = [&](int dy) {
        float a = hashed(cellX, cellY + dy, seed), b = hashed(cellX + 1, cellY + dy, seed);
        return a + (b - a) * fx;
    };
    return row(0) + (row(1) - row(0)) * fy;
}

float clouds(float x, float y, int octaves, std::uint32_t seed)
{
    float sum = 0, weight = 0.5f, total = 0;
    for (int i = 0; i < octaves; ++i) {
        sum += noise(x, y, seed + static_cast<std::uint32_t>(i)) * weight;
        total += weight;
        x *= 2.03f;
        y *= 2.03f;
        weight /= 2;
    }
    return sum / total;
}

void Canvas::over(int x, int y, Colour colour)
{
    if (x < 0 || y < 0 || x >= width || y >= height || colour.a <= 0)
        return;
    Colour& below = at(x, y);
    float alpha = colour.a + below.a * (1 - colour.a);
    auto laid = [&](float top, float bottom) {
        return (top * colour.a + bottom * below.a * (1 - colour.a)) / alpha;
    };
    below = {laid(colour.r, below.r), laid(colour.g, below.g), laid(colour.b, below.b), alpha};
}

void Canvas::glow(int x, int y, Colour light)
{
    if (x < 0 || y < 0 || x >= width || y >= height)
        return;
    Colour& below = at(x, y);
    auto lit = [&](float a, float b) { return 1 - (1 - a) * (1 - clamp01(b * light.a)); };
    below = {lit(below.r, light.r), lit(below.g, light.g), lit(below.b, light.b), below.a};
}

void Canvas::fill(const Shape& shape, Colour colour)
{
    fill(shape, [colour](float, float) { return colour; });
}

void Canvas::fill(const Shape& shape, const Paint& paint)
{
    // A shape's distance never changes by more than a pixel from one pixel to the next, so pixels far from
    // the edge can be skipped.
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            float px = static_cast<float>(x) + 0.5f, py = static_cast<float>(y) + 0.5f;
            float distance = shape(px, py);
            if (distance > 2) {
                x += static_cast<int>(distance - 0.5f) - 1;
                continue;
            }
            Colour colour = paint(px, py);
            over(x, y, faded(colour, clamp01(0.5f - distance)));
        }
    }
}

void Canvas::paint(int left, int top, int right, int bottom, const Paint& paint)
{
    for (int y = std::max(top, 0); y < std::min(bottom, height); ++y)
        for (int x = std::max(left, 0); x < std::min(right, width); ++x)
            over(x, y, paint(static_cast<float>(x) + 0.5f, static_cast<float>(y) + 0.5f));
}

void Canvas::lamp(float x, float y, float radius, Colour light)
{
    for (int py = static_cast<int>(y - radius); py <= static_cast<int>(y + radius); ++py) {
        for (int px = static_cast<int>(x - radius); px <= static_cast<int>(x + radius); ++px) {
            float near =
                clamp01(1 - std::hypot(static_cast<float>(px) + 0.5f - x, static_cast<float>(py) + 0.5f - y) /
                                radius);
            glow(px, py, faded(light, near * near));
        }
    }
}

void Canvas::draw(const Canvas& picture, int x, int y, float strength)
{
    for (int py = 0; py < picture.height; ++py)
        for (int px = 0; px < picture.width; ++px)
            over(x + px, y + py, faded(picture.at(px, py), strength));
}

Canvas shrunk(const Canvas& large, int factor)
{
    Canvas small(large.width / factor, large.height / factor);
    float share = 1.0f / static_cast<float>(factor * factor);
    for (int y = 0; y < small.height; ++y) {
        for (int x = 0; x < small.width; ++x) {
            Colour sum;
            for (int i = 0; i < factor * factor; ++i) {
                const Colour& part = large.at(x * factor + i % factor, y * factor + i / factor);
                sum = {sum.r + part.r * part.a, sum.g + part.g * part.a, sum.b + part.b * part.a,
                       sum.a + part.a};
            }
            if (sum.a > 0)
                small.at(x, y) = {sum.r / sum.a, sum.g / sum.a, sum.b / sum.a, sum.a * share};
        }
    }
    return small;
}

std::vector<Point> Place::operator()(std::vector<Point> points) const
{
    for (Point& point : points)
        point = (*this)(point.x, point.y);
    return points;
}
