#pragma once

#include "player/words.h"

#include <span>

class AMainWin;
class PlayedInput;
class Player;

/// The words of one event, and what its handler works on.
struct Event {
    Player& player;
    AMainWin& win;
    PlayedInput& input;
    std::span<const Word> words; // [0] is the event's name
    int line;

    bool has(std::size_t index) const { return index < words.size(); }
    const std::string& text(std::size_t index) const { return words[index].text; }
    /// A word that names a file, in UTF-8.
    std::string fileName(std::size_t index) const;
    /// Raises WrongLine for what is no number in this range, ends included.
    std::int64_t number(std::size_t index, std::int64_t lowest, std::int64_t highest) const;
    /// A number that fits the pointer's fields.
    int coordinate(std::size_t index) const;
    /// The event that remains behind its first count words.
    Event behind(std::size_t count) const { return {player, win, input, words.subspan(count), line}; }
};

/// Carries out the event that words are, its name first. line: its number, which calls put in front of their
/// value. Raises WrongLine.
void runEvent(Player& player, std::span<const Word> words, int line);
