#pragma once

#include "demo/art/canvas.h"

#include <vector>

// A strip holds frames side by side with a pixel after each, also after the last, so that all frames take the
// same width.

/// Makes an empty strip for count frames of one size.
Canvas stripOf(int count, int width, int height);
/// Copies frame number n into a strip.
void putFrame(Canvas& strip, const Canvas& frame, int n);
/// Arranges frames as list boxes expect them in an icon: a grid with that many columns, with a pixel after
/// each frame.
Canvas frameGrid(const std::vector<Canvas>& frames, int columns);
/// Cuts a border strip out of a frame that is three pieces wide and high: eight square pieces clockwise from
/// the top left corner, with a pixel between neighbours.
Canvas cutBorder(const Canvas& frame);
