#pragma once

#include <span>

/// What each statement does, in a line. It stands here and not in the vocabulary, which is part of every
/// game.
namespace script_text {

enum class Family { Blocks, Windows, AnyWindow, TabStops, Buttons, Lists, Displays, Words };

struct Meaning {
    int id; // of the statement
    Family family;
    const char* text;
    /// A script of examples/controls/ that shows it, without ending; its picture has the same name. Null for
    /// none.
    const char* example = nullptr;
};

/// Family by family, in the order in which a reader meets them best.
std::span<const Meaning> meanings();
/// Null when there is none.
const Meaning* meaningOf(int id);

const char* titleOf(Family family);

} // namespace script_text
