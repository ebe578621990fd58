#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

/// A colour with straight alpha, each part 0 to 1.
struct Colour {
    float r = 0, g = 0, b = 0, a = 0;
};

/// 0xRRGGBB of the palette.
Colour rgb(std::uint32_t value, float alpha = 1);
Colour mix(Colour from, Colour to, float share);
Colour faded(Colour colour, float alpha);
float clamp01(float value);
/// 0 below from, 1 above to, an even S between.
float smooth(float from, float to, float value);

/// Distance from the shape's edge in pixels, negative inside.
using Shape = std::function<float(float x, float y)>;
using Paint = std::function<Colour(float x, float y)>;
struct Point {
    float x, y;
};

Shape disc(float x, float y, float radius);
Shape ellipse(float x, float y, float radiusX, float radiusY);
Shape box(float left, float top, float right, float bottom, float rounding = 0);
Shape polygon(std::vector<Point> points);
/// A stroke with round ends through all points.
Shape stroke(std::vector<Point> points, float width);
/// The edge alone, width wide and centred on it.
Shape outline(Shape shape, float width);

/// Smooth noise, 0 to 1, one lattice cell a unit. The same on every machine.
float noise(float x, float y, std::uint32_t seed = 1);
/// Octaves of noise, 0 to 1.
float clouds(float x, float y, int octaves, std::uint32_t seed = 1);
/// 0 to 1, without any smoothness.
float hashed(int x, int y, std::uint32_t seed = 1);

/// A picture in the making. Edges are smoothed by the share of the pixel that the shape covers.
class Canvas {
public:
    Canvas(int canvasWidth, int canvasHeight, Colour background = {})
        : width(canvasWidth), height(canvasHeight),
          pixels(static_cast<std::size_t>(canvasWidth) * canvasHeight, background)
    {}
    Colour& at(int x, int y) { return pixels[static_cast<std::size_t>(y) * width + x]; }
    const Colour& at(int x, int y) const { return pixels[static_cast<std::size_t>(y) * width + x]; }
    /// Lays colour over the pixel; outside the canvas nothing happens.
    void over(int x, int y, Colour colour);
    /// Adds light, alpha being its strength.
    void glow(int x, int y, Colour light);
    void fill(const Shape& shape, Colour colour);
    void fill(const Shape& shape, const Paint& paint);
    /// Every pixel of the rectangle.
    void paint(int left, int top, int right, int bottom, const Paint& paint);
    /// A round light that falls off to nothing at radius.
    void lamp(float x, float y, float radius, Colour light);
    void draw(const Canvas& picture, int x, int y, float strength = 1);

    const int width, height;

private:
    std::vector<Colour> pixels;
};

/// A picture that is painted factor times as large, made small: fine lines keep their weight.
Canvas shrunk(const Canvas& large, int factor);

/// Points in a shape's own units, put on a canvas: the origin at x, y, scaled, mirrored where facing is -1.
struct Place {
    float x, y, scale = 1, facing = 1;
    Point operator()(float px, float py) const { return {x + px * scale * facing, y + py * scale}; }
    std::vector<Point> operator()(std::vector<Point> points) const;
};

enum class Grain { Dithered, None };

/// Writes whole or not at all; false when the file cannot be written. Dithered: the steps of gradients are
/// hidden by a fixed pattern, which lies over plain areas too.
bool writePng(const Canvas& canvas, const std::string& path, bool withAlpha, Grain grain = Grain::Dithered);
/// 24 bits; pixels that are covered less than half take the key colour 255, 0, 255.
bool writeKeyedBmp(const Canvas& canvas, const std::string& path);
