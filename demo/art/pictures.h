#pragma once

#include "demo/art/frames.h"

#include <string>

/// A ship's appearance. Distant ships are mixed with haze.
struct Livery {
    Colour hull, house, funnel, band;
    Colour haze;
    float distance = 0; // 0 near, 1 invisible in the haze
    bool lit = false;   // lamps in the windows
};

// Ships, about 200 units long, bow towards +x, the waterline at y 0.
void drawSteamer(Canvas& canvas, Place at, const Livery& livery);
void drawTug(Canvas& canvas, Place at, const Livery& livery);
void drawSchooner(Canvas& canvas, Place at, const Livery& livery);
void drawLighter(Canvas& canvas, Place at, const Livery& livery);
void drawCutter(Canvas& canvas, Place at, const Livery& livery);
void drawLaunch(Canvas& canvas, Place at, const Livery& livery);
void drawSkiff(Canvas& canvas, Place at, const Livery& livery);
void drawHulk(Canvas& canvas, Place at, const Livery& livery);
/// Paints a puff of smoke: age 0 leaves the funnel, age 1 has vanished.
void drawSmoke(Canvas& canvas, Place funnel, float age, Colour colour);

// Landscape, shared by backdrops and ship pictures.

/// Paints the sky with clouds and the glow of a sun at sunX on the horizon.
void paintDawn(Canvas& canvas, float horizon, float sunX);
/// Paints water from the horizon down, with a glittering reflection under the sun.
void paintWater(Canvas& canvas, float horizon, float sunX);
/// Mirrors the upper part of the picture below the horizon, rippled; strength 0 to 1. Fades out towards x =
/// right, or covers the whole width if right is 0.
void paintReflection(Canvas& canvas, int horizon, int depth, float strength, int right = 0);

// Whole pictures.
Canvas harbourBackdrop();
Canvas quayBackdrop();
Canvas deskBackdrop();
Canvas chartCoast();
Canvas compassRose();
Canvas shipPicture(int ship);
Canvas emblem();

// Strips.
Canvas beamStrip();
Canvas flagStrip();
Canvas steamerStrip();
Canvas portStrip();

// The strips of controls, each with the frames that its control expects.
/// Frames 44 high: an opening run, then at rest, hot, pressed, disabled.
Canvas buttonStrip(int opening, int width = 240);
Canvas checkStrip();
Canvas radioStrip();
/// The mark of a selected check box or radio button.
Canvas tick();
Canvas dot();
/// A tab, frames of 164 x 38.
Canvas tabStrip();
Canvas scrollStrip(bool horizontal);
Canvas fieldFill();

// List boxes, combo boxes and popups.
/// The band of the selected row and of the hot row, 29 high.
Canvas rowBand(bool selected);
/// The hot line of a text.
Canvas readingLine();
/// The selected or hot cell of a grid, 84 x 52.
Canvas cellFrame(bool selected);
Canvas titleBand();
Canvas listFill();
Canvas hotCordBorder();
/// The scroll bar that a list makes itself: six frames of 16 x 26.
Canvas listBarStrip();
enum class Drop { None, Below, Above };
/// A combo box, 184 x 36, with a mark if it has a menu; with room for a button at each end, or only for text.
Canvas comboStrip(Drop drop, bool buttons);
Canvas stepStrip(bool forwards);
Canvas menuFill();
Canvas menuBorder();
Canvas noticeFill();
Canvas bell();
Canvas helm();

// The fleet.
/// A vessel that has no picture of its own, 218 x 118.
Canvas fleetPicture(int vessel);
/// Silhouettes of eight kinds of vessels, frames of 44 x 28.
Canvas vesselKinds();
/// Six signal flags, frames of 24 x 28.
Canvas signalFlags();
/// The two panels of a progress cell, 76 x 28.
Canvas gauge(bool coal);

// The cargo.
/// Eight kinds of goods, frames of 28 x 28, for lists.
Canvas goodsIcons();
/// The places of a hold, frames of 64 x 52: empty, then with each kind of goods.
Canvas goodsStowed();
/// The Alma cut open along her keel, 584 x 244.
Canvas holdSection();
Canvas quayCrane();

// The market.
/// Frames of 18 x 14 for a legend: the lines of the four goods, then the two marks on them.
Canvas marketMark(int kind);
/// The two panels of a progress bar, 168 x 18.
Canvas stockBar(int goods);
/// The two panels of an upright progress bar, 44 x 80, and the pipe that joins four of them, 208 x 20.
Canvas oilTank();
Canvas oilPipe();
/// The telegraph's tape, 848 x 36, and its machine, 64 x 44.
Canvas tickerTape();
Canvas tickerMachine();
/// The stern of the new ship, 242 x 106, with an empty board for the name.
Canvas newShipStern();
/// A keyboard of ten by four keys without letters, 490 x 188, and the frame around one key, 58 x 46.
Canvas keyCaps();
Canvas keyFrame(bool pressed);

// Window furniture.
/// Makes a metal paint that is bright on the upper left side of shape.
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
