#pragma once

#include <optional>
#include <string>

struct Image;

namespace tgx {

class Player;

// Comparison with an expected file, whose name is relative to the events file. A result that differs is
// written below the output directory as NAME.actual.EXT; with --update it replaces the expected file instead,
// and counts as equal.

/// Compares byte by byte. Returns what was found instead, for the message, or nothing if they are equal.
std::optional<std::string> compareWithFile(Player& player, const std::string& name, const std::string& found);
/// Compares pixel by pixel, otherwise like compareWithFile. A difference is also shown in
/// NAME.difference.png.
std::optional<std::string> compareWithPicture(Player& player, const std::string& name, const Image& found);

} // namespace tgx
