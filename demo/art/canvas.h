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

/// Converts 0xRRGGBB of the palette to a colour.
Colour rgb(std::uint32_t value, float alpha = 1);
Colour mix(Colour from, Colour to, float share);
Colour faded(Colour colour, float alpha);
float clamp01(float value);
/// Returns 0 below from, 1 above to, and a smooth S curve between them.
float smooth(float from, float to, float value);

/// A shape as its distance function: distance from the edge in pixels, negative inside.
using Shape = std::function<float(float x, float y)>;
using Paint = std::function<Colour(float x, float y)>;
struct Point {
    float x, y;
};

Shape disc(float x, float y, float radius);
Shape ellipse(float x, float y, float radiusX, float radiusY);
Shape box(float left, float top, float right, float bottom, float rounding = 0);
Shape polygon(std::vector<Point> points);
/// Makes a stroke with round ends through all points.
Shape stroke(std::vector<Point> points, float width);
/// Makes the outline of a shape, width wide and centred on its edge.
Shape outline(Shape shape, float width);

/// Returns smooth noise from 0 to 1, one lattice cell per unit. The same on every machine.
float noise(float x, float y, std::uint32_t seed = 1);
/// Returns the sum of several octaves of noise, 0 to 1.
float clouds(float x, float y, int octaves, std::uint32_t seed = 1);
/// Returns unsmoothed noise, 0 to 1.
float hashed(int x, int y, std::uint32_t seed = 1);

/// A picture that is being painted. Edges are smoothed by the share of the pixel that the shape covers.
class Canvas {
public:
    Canvas(int canvasWidth, int canvasHeight, Colour background = {})
        : width(canvasWidth), height(canvasHeight),
          pixels(static_cast<std::size_t>(canvasWidth) * canvasHeight, background)
    {}
    Colour& at(int x, int y) { return pixels[static_cast<std::size_t>(y) * width + x]; }
    const Colour& at(int x, int y) const { return pixels[static_cast<std::size_t>(y) * width + x]; }
    /// Blends colour over the pixel; does nothing outside the canvas.
    void over(int x, int y, Colour colour);
    /// Adds light to the pixel; alpha is its strength.
    void glow(int x, int y, Colour light);
    void fill(const Shape& shape, Colour colour);
    void fill(const Shape& shape, const Paint& paint);
    /// Paints every pixel of the rectangle.
    void paint(int left, int top, int right, int bottom, const Paint& paint);
    /// Adds a round light that fades to nothing at radius.
    void lamp(float x, float y, float radius, Colour light);
    void draw(const Canvas& picture, int x, int y, float strength = 1);

    const int width, height;

private:
    std::vector<Colour> pixels;
};

/// Paints a picture factor times as large and scales it down, so that fine lines keep their weight.
Canvas shrunk(const Canvas& large, int factor);

/// Maps a shape's own units to a canvas: the origin at x, y, scaled, and mirrored if facing is -1.
struct Place {
    float x, y, scale = 1, facing = 1;
    Point operator()(float px, float py) const { return {x + px * scale * facing, y + py * scale}; }
    std::vector<Point> operator()(std::vector<Point> points) const;
};

enum class Grain { Dithered, None };

/// Writes the file whole or not at all; false if it cannot be written. Dithering hides the steps of gradients
/// with a fixed pattern, which covers plain areas too.
bool writePng(const Canvas& canvas, const std::string& path, bool withAlpha, Grain grain = Grain::Dithered);
/// Writes 24 bits per pixel; pixels that are covered less than half get the key colour 255, 0, 255.
bool writeKeyedBmp(const Canvas& canvas, const std::string& path);
