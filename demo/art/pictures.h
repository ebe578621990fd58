#pragma once

#include "demo/art/canvas.h"

#include <string>

/// A ship's looks. What is far away is mixed with haze.
struct Livery {
    Colour hull, house, funnel, band;
    Colour haze;
    float distance = 0; // 0 near, 1 lost in the haze
    bool lit = false;   // lamps in the windows
};

// Ships, about 200 units long, bow towards +x, the waterline at y 0.
void drawSteamer(Canvas& canvas, Place at, const Livery& livery);
void drawTug(Canvas& canvas, Place at, const Livery& livery);
void drawSchooner(Canvas& canvas, Place at, const Livery& livery);
/// age 0 leaves the funnel, 1 is gone.
void drawSmoke(Canvas& canvas, Place funnel, float age, Colour colour);

// Landscape, shared by backdrops and ship pictures.

/// Sky with clouds and the glow of a sun at sunX on the horizon.
void paintDawn(Canvas& canvas, float horizon, float sunX);
/// Water from the horizon down, with a glitter path under the sun.
void paintWater(Canvas& canvas, float horizon, float sunX);
/// The upper part of the picture once more below the horizon, rippled; strength 0 to 1. Only left of right,
/// fading out towards it; 0: everywhere.
void paintReflection(Canvas& canvas, int horizon, int depth, float strength, int right = 0);

// Whole pictures; each knows its own size.
Canvas harbourBackdrop();
Canvas quayBackdrop();
Canvas deskBackdrop();
Canvas chartCoast();
Canvas compassRose();
Canvas shipPicture(int ship);
Canvas emblem();

// Strips: frames side by side with a pixel between, and one behind the last, so that a whole row holds whole
// frames.
Canvas beamStrip();
Canvas flagStrip();
Canvas steamerStrip();
Canvas portStrip();
/// Copies frame number n into a strip.
void putFrame(Canvas& strip, const Canvas& frame, int n);

// The strips of controls, each with the frames that its control looks for.
/// 240 x 44: an opening run, then at rest, pointed at, pressed, disabled.
Canvas buttonStrip(int opening);
Canvas checkStrip();
Canvas radioStrip();
/// What lies in a check box or a radio button that is selected.
Canvas tick();
Canvas dot();
/// 164 x 38.
Canvas tabStrip();
Canvas scrollStrip(bool horizontal);
Canvas fieldFill();

// Window furniture.
/// Metal that is bright on the upper left side of shape.
Paint metal(Colour base, const Shape& shape);
Canvas brassBorder();
Canvas cordBorder();
Canvas paperBorder();
Canvas panelFill();
Canvas headerShade();
Canvas dimming();
Canvas rule();
Canvas routeSample();
Canvas shoalSample();
Canvas plankTile();
Canvas seaTile();
