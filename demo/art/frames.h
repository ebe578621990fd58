#pragma once

#include "demo/art/canvas.h"

#include <vector>

// Strips: frames side by side with a pixel between, and one behind the last, so that a whole row holds whole
// frames.

/// A strip for count frames of one size.
Canvas stripOf(int count, int width, int height);
/// Copies frame number n into a strip.
void putFrame(Canvas& strip, const Canvas& frame, int n);
/// Frames as a list box cuts them out of an icon: a grid of so many columns, a pixel behind each frame.
Canvas frameGrid(const std::vector<Canvas>& frames, int columns);
/// A border strip: eight square pieces clockwise from the top left corner, a pixel between neighbours, cut
/// out of a frame three pieces wide and high.
Canvas cutBorder(const Canvas& frame);
