#pragma once

#include "demo/art/pictures.h"

/// The parts that vessels are drawn from, in a vessel's own units: about 200 long, bow towards +x, the
/// waterline at y 0.
namespace shipyard {

/// Mixes a colour with haze.
Colour seen(const Livery& livery, Colour colour);
/// Paints a row of portholes or windows.
void windows(Canvas& canvas, Place at, const Livery& livery, float from, float to, float y, float step,
             float radius);
void mast(Canvas& canvas, Place at, const Livery& livery, float x, float foot, float top);
void rope(Canvas& canvas, Place at, const Livery& livery, Point from, Point to);
/// Paints a hull, darker towards the bottom, with a brick-red stripe along the waterline.
void hull(Canvas& canvas, Place at, const Livery& livery, std::vector<Point> points);
/// Paints a deck house whose roof projects a little.
void block(Canvas& canvas, Place at, const Livery& livery, float left, float top, float right, float bottom,
           Colour colour);
void funnel(Canvas& canvas, Place at, const Livery& livery, float x, float top, float bottom, float width);
/// Paints a sail with seams; shade 0 is the livery's house colour.
void sail(Canvas& canvas, Place at, const Livery& livery, std::vector<Point> points, float shade);

} // namespace shipyard
