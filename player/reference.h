#pragma once

#include <optional>
#include <string>

class Player;
struct Image;

// Comparison with a file that lies beside the events file. The answer is what was found instead, for the
// message, or nothing when the two are equal. What differs is written below the output directory as
// NAME.actual.EXT; with --update the file itself is written instead, and that counts as equal.

std::optional<std::string> compareWithFile(Player& player, const std::string& name, const std::string& found);
/// Exact. A difference is also shown in NAME.difference.png.
std::optional<std::string> compareWithPicture(Player& player, const std::string& name, const Image& found);
