#pragma once

#include "demo/art/canvas.h"
#include "demo/art/frames.h"

#include <string>

/// The colours of the examples, 0xRRGGBB: a printed page with one blue. The fonts in the scripts repeat the
/// values.
namespace look {

constexpr std::uint32_t page = 0xEFEBE1;   // the screens' backdrop
constexpr std::uint32_t panel = 0xFAF8F2;  // panels on the page
constexpr std::uint32_t sheet = 0xFFFFFF;  // fields and lists
constexpr std::uint32_t ink = 0x2B3038;    // text
constexpr std::uint32_t faint = 0x857F72;  // small text, disabled controls
constexpr std::uint32_t line = 0xD5CEBF;   // edges of panels and lists
constexpr std::uint32_t edge = 0xA0988A;   // edges of controls
constexpr std::uint32_t plate = 0xE7E1D4;  // the lower part of a button
constexpr std::uint32_t blue = 0x2F6F8F;   // selected or hot controls
constexpr std::uint32_t pale = 0xD3E5EE;   // background of hot items
constexpr std::uint32_t chosen = 0xB4D2E0; // background of selected or pressed items
constexpr std::uint32_t amber = 0xD9962F;  // one warm colour beside the blue
constexpr std::uint32_t leaf = 0x6E9A5B;   // hills

} // namespace look

/// The states of a control, in the order of a button's frames after its opening run.
enum Look { Rest, Hot, Pressed, Disabled };
constexpr int looks = 4;

// Pages and panels.
Canvas page();
Canvas panelFill();
Canvas sheetFill();
/// Borders: a thin line with round corners, filled like the panel in pieces of 16 x 16, or like the sheet in
/// pieces of 8 x 8.
Canvas panelFrame();
Canvas sheetFrame();
/// Like sheetFrame, in blue.
Canvas hotFrame();
/// Like sheetFrame, with square corners, because nothing may show through a menu.
Canvas menuFrame();
Canvas rule();
/// A half-transparent cover that dims the screen.
Canvas dim();

// Controls that can be clicked.
/// Frames of 100 x 28.
Canvas buttonStrip();
/// Frames of 100 x 28, after an opening run of openingFrames.
constexpr int openingFrames = 8;
Canvas openingStrip();
/// Frames of 18 x 18.
Canvas checkStrip();
Canvas tick();
Canvas radioStrip();
Canvas dot();
/// Frames of 84 x 26.
Canvas tabStrip();
/// Frames of 150 x 26, with room for a step button of 24 at each end, and a mark if there is a menu.
Canvas comboStrip(bool hasMenu);
Canvas stepStrip(bool forwards);
/// Six frames of 18 x 18.
Canvas scrollStrip(bool horizontal);
/// The scroll bar that a list makes itself, six frames of 16 x 26.
Canvas listBarStrip();

// Lists.
Canvas titleBand();
Canvas rowBand(bool isChosen);
/// The plates of ten by four keys, each 26 x 24.
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
/// A boat, 96 x 64, and the same as a whole backdrop.
Canvas boat();
Canvas bay();
/// A turning windmill, six frames of 64 x 64.
Canvas windmillStrip();
/// A tile of 16 x 16.
Canvas waveTile();
Canvas stripes();
/// A round light on black, 56 x 56, to be added.
Canvas glow();
Canvas rings();

/// Writes the toolkit's built-in font as a font file, so that styles can colour it and the pictures of the
/// examples are the same on every machine. False if the file cannot be written.
bool writeFont(const std::string& path);
