#pragma once

#include "demo/art/pictures.h"

/// The state that a control's frame shows, in the order of a button's strip after its opening run.
enum Look { Rest, Hot, Pressed, Disabled };
constexpr int looks = 4;

/// Returns the colour of the edge of a control that can be clicked.
Colour edge(Look look);
/// Makes a plate with round corners, lit from above unless it is pressed.
Canvas plate(Look look, int width, int height, float rounding);
/// Makes an arrow head in a square of 24 that points away from the bar's middle.
Shape arrow(bool horizontal, bool forwards);
