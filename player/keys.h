#pragma once

#include "player/words.h"

#include <cstdint>
#include <string_view>

/// A key as an events line names it: its virtual key code.
std::uint8_t parseKey(const Word& word);
/// The character of that key where it has one, else 0. Letters are lower case without shift.
char characterOf(std::uint8_t code, bool shift);
/// The key that types this character: its own where it has one, else VK_PACKET.
std::uint8_t keyThatTypes(char character);
