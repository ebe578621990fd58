#pragma once

#include "player/words.h"

#include <span>

class Player;

/// Carries out the event that words are, its name first. line: its number, which calls put in front of their
/// value. Raises WrongLine.
void runEvent(Player& player, std::span<const Word> words, int line);
