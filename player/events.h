#pragma once

#include "player/words.h"

#include <span>

class AMainWin;

namespace tgx {

class PlayedInput;
class Player;

/// The words of one event, and the objects that its handler works on.
struct Event {
    Player& player;
    AMainWin& win;
    PlayedInput& input;
    std::span<const Word> words; // [0] is the event's name
    int line;

    bool has(std::size_t index) const { return index < words.size(); }
    const std::string& text(std::size_t index) const { return words[index].text; }
    /// Returns a word that names a file, in UTF-8.
    std::string fileName(std::size_t index) const;
    /// Returns a word as a number. Raises WrongLine if it is not a number from lowest to highest, ends
    /// included.
    std::int64_t number(std::size_t index, std::int64_t lowest, std::int64_t highest) const;
    /// Returns a number that fits the pointer's 16-bit fields. Raises WrongLine for any other word.
    int coordinate(std::size_t index) const;
    /// Returns the event without its first count words.
    Event withoutFirst(std::size_t count) const { return {player, win, input, words.subspan(count), line}; }
};

/// Carries out one event, whose name is the first word. line is its number, which a call prints before its
/// value. Raises WrongLine.
void runEvent(Player& player, std::span<const Word> words, int line);

} // namespace tgx
