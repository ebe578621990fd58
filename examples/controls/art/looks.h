#pragma once

#include "demo/art/canvas.h"
#include "demo/art/frames.h"

#include <string>

/// The colours of the examples, 0xRRGGBB: a printed page with one blue. The fonts in the scripts name the
/// same values.
namespace look {

constexpr std::uint32_t page = 0xEFEBE1;   // the screens' backdrop
constexpr std::uint32_t panel = 0xFAF8F2;  // what lies on it
constexpr std::uint32_t sheet = 0xFFFFFF;  // fields and lists
constexpr std::uint32_t ink = 0x2B3038;    // text
constexpr std::uint32_t faint = 0x857F72;  // small text, and what is disabled
constexpr std::uint32_t line = 0xD5CEBF;   // edges of panels and lists
constexpr std::uint32_t edge = 0xA0988A;   // edges of what can be clicked
constexpr std::uint32_t plate = 0xE7E1D4;  // the lower part of a button
constexpr std::uint32_t blue = 0x2F6F8F;   // what is on, or pointed at
constexpr std::uint32_t pale = 0xD3E5EE;   // the ground of what is pointed at
constexpr std::uint32_t chosen = 0xB4D2E0; // the ground of what is chosen, or pressed
constexpr std::uint32_t amber = 0xD9962F;  // one warm colour beside the blue
constexpr std::uint32_t leaf = 0x6E9A5B;   // hills

} // namespace look

/// The order of a button's frames behind its opening run.
enum Look { Rest, Hot, Pressed, Disabled };
constexpr int looks = 4;

// Pages and panels.
Canvas page();
Canvas panelFill();
Canvas sheetFill();
/// Borders: a thin line with round corners, filled as the panel inside, in pieces of 16 x 16, or as the
/// sheet, of 8 x 8.
Canvas panelFrame();
Canvas sheetFrame();
/// As sheetFrame, in blue.
Canvas hotFrame();
/// As sheetFrame, with square corners: nothing shines through a menu.
Canvas menuFrame();
Canvas rule();
/// Half of what lies below shines through.
Canvas dim();

// What can be clicked.
/// 100 x 28.
Canvas buttonStrip();
/// 100 x 28 behind an opening run of openingFrames.
constexpr int openingFrames = 8;
Canvas openingStrip();
/// 18 x 18.
Canvas checkStrip();
Canvas tick();
Canvas radioStrip();
Canvas dot();
/// 84 x 26.
Canvas tabStrip();
/// 150 x 26, with room for a step button of 24 at each end, and a mark if there is a menu.
Canvas comboStrip(bool hasMenu);
Canvas stepStrip(bool forwards);
/// Six frames of 18 x 18.
Canvas scrollStrip(bool horizontal);
/// Six frames of 16 x 26, the bar that a list makes for itself.
Canvas listBarStrip();

// Lists.
Canvas titleBand();
Canvas rowBand(bool isChosen);
/// The plates of ten keys by four, each 26 x 24.
Canvas keyPlates();
Canvas keyBand(bool isChosen);
/// Sun, cloud and rain, frames of 26 x 20.
Canvas weatherIcons();

// Bars.
/// Two frames of 180 x 16.
Canvas progressStrip();
/// Two frames of 28 x 116.
Canvas tankStrip();
Canvas tape();

// Pictures.
/// 96 x 64, and as a whole backdrop.
Canvas boat();
Canvas bay();
/// A windmill that turns, six frames of 64 x 64.
Canvas windmillStrip();
/// 16 x 16.
Canvas waveTile();
Canvas stripes();
/// A round light on black, 56 x 56, to be added.
Canvas glow();
Canvas rings();

/// The toolkit's built-in font as a font file, so that styles can colour it; the pictures of the examples are
/// the same on every machine. False when the file cannot be written.
bool writeFont(const std::string& path);
