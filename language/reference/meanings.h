#pragma once

#include <span>

/// Short descriptions of the statements. They are kept out of the vocabulary, which is linked into every
/// game.
namespace tgx::script_text {

enum class Family { Blocks, Windows, AnyWindow, TabStops, Buttons, Lists, Displays, Words };

struct Meaning {
    int id; // id of the statement
    Family family;
    const char* text;
    /// Name, without extension, of a script in examples/controls/ that shows it; its picture has the same
    /// name. Null if there is none.
    const char* example = nullptr;
};

/// Returns all descriptions, grouped by family, in the order of the reference.
std::span<const Meaning> meanings();
/// Returns the description of a statement, or null if there is none.
const Meaning* meaningOf(int id);

/// Returns the family's heading in the reference.
const char* titleOf(Family family);

} // namespace tgx::script_text
