#pragma once

#include "demo/art/pictures.h"

/// What a control's frame shows; the order is that of a button's strip behind its opening run.
enum Look { Rest, Hot, Pressed, Disabled };
constexpr int looks = 4;

/// The edge of what can be clicked.
Colour edge(Look look);
/// A plate with round corners, lit from above unless it is pressed.
Canvas plate(Look look, int width, int height, float rounding);
/// An arrow head in a square of 24, its point away from the bar's middle.
Shape arrow(bool horizontal, bool forwards);
