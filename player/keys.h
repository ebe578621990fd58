#pragma once

#include "platform/display/input_queue.h"
#include "player/export.h"
#include "player/words.h"

#include <cstdint>
#include <string>
#include <string_view>

/// A key as an events line names it: its virtual key code.
std::uint8_t parseKey(const Word& word);
/// The name that parseKey knows this key by: "a", "tab", or its code in two digits or more.
TGX_PLAYER_INTERNAL std::string keyName(std::uint8_t code);
/// The character of that key where it has one, else 0. Letters are lower case without shift.
TGX_PLAYER_INTERNAL char characterOf(std::uint8_t code, bool shift);
/// The key that types this character: its own where it has one, else VK_PACKET.
TGX_PLAYER_INTERNAL std::uint8_t keyThatTypes(char character);
/// A mouse button as an events line names it.
TGX_PLAYER_INTERNAL const char* buttonName(MouseButton button);
