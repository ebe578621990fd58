#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace tgx {

/// One step of a recording. Ticks are counted from 0, the first recorded one.
struct RecordedStep {
    enum class Kind : std::uint8_t {
        Transition, // line: "press left", "wheel up"; taken in its tick
        Move,       // line: "move to BAR 12 40"; taken together with the next step
        Approach,   // line: as for Move, but with a frame of its own
        Hover,      // line: "hover OK"
        Click,      // line: "click OK", "row LIST 2"; tick is that of the press
        Key,
        Hold,
        Shown, // line: "active CHART", "popup none"; true when its tick began, and not a tick before
        Note,  // line: text of a comment
    };
    Kind kind;
    long tick;
    std::string line = {};
    std::string clickLine = {};   // double click: the line for a click at the same place
    long releaseTick = 0;         // click: tick of the release
    bool isPassedThrough = false; // move with a held lever: left out unless the lever rests there
    std::uint8_t code = 0;        // key, hold: virtual key code
    std::uint8_t secondCode = 0;  // key: keyCode2, from a controller
    char character = 0;           // key: the character that it types
    bool isTyped = false;         // key: it goes to an edit box
    bool held = false;            // hold: false for the end of the hold
};

/// Returns whether the key is Shift, Ctrl or Alt.
bool isModifier(std::uint8_t code);

/// Returns the events lines that play these steps, with the frames between them. endTick is the number of
/// recorded ticks.
///
///     recorded                                         written
///     a click on a window or cell that has a line      that line, without the frames that it runs itself
///     that and a double click on the same window       doubleclick ID
///     keys with characters, in an edit box             type "TEXT"
///     any other key                                    key NAME, if it types the same character
///     wheel notches in quick succession                the notches, then the frames
///     a key held during other input, or long           hold NAME, lift NAME
///     a change of the active screen or front popup     wait until active NAME, wait until popup ID
std::vector<std::string> writeEvents(std::span<const RecordedStep> steps, long endTick);

} // namespace tgx
