#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

/// One thing of a recording. Ticks count from 0, the first that was seen.
struct RecordedStep {
    enum class Kind : std::uint8_t {
        Transition, // line: "press left", "wheel up"; taken by its tick
        Move,       // line: "move to BAR 12 40"; taken with what follows
        Approach,   // line: the same, with a frame of its own
        Hover,      // line: "hover OK"
        Click,      // line: "click OK", "row LIST 2"; tick is that of the press
        Key,
        Hold,
        Shown, // line: "active CHART", "popup none"; so when its tick began, and not a tick before
        Note,  // line: what a comment says
    };
    Kind kind;
    long tick;
    std::string line = {};
    std::string clickLine = {};   // of a double click: what would click there
    long releaseTick = 0;         // of a click
    bool isPassedThrough = false; // of a move while a lever is held: only where it comes to rest counts
    std::uint8_t code = 0;        // of a key, and of a hold
    std::uint8_t secondCode = 0;
    char character = 0;
    bool isTyped = false; // of a key: it goes into an edit box
    bool held = false;    // of a hold
};

/// Shift, Ctrl and Alt: what they do is to be held.
bool isModifier(std::uint8_t code);

/// The lines of events that play these steps, with the frames between them; endTick: as many ticks have been
/// seen.
///
///     seen                                             written
///     a click on a window or cell that has a line      that line; its own frames are left out
///     one, then a double click on the same window      doubleclick ID
///     keys into an edit box that have characters       type "TEXT"
///     a key otherwise                                  key NAME, where its character is the same
///     wheel notches in quick succession                the notches, then the frames
///     a key held while another input comes, or long    hold NAME, lift NAME
///     the active screen or front popup has changed     wait until active NAME, wait until popup ID
std::vector<std::string> writeEvents(std::span<const RecordedStep> steps, long endTick);
