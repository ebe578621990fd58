#pragma once

#include "platform/display/input_queue.h"
#include "player/export.h"
#include "player/words.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tgx {

/// Returns the virtual key code of a key that an events line names. Raises WrongLine for an unknown key.
std::uint8_t parseKey(const Word& word);
/// Returns the name that parseKey accepts for this key: "a", "tab", or its code in two digits or more.
TGX_PLAYER_INTERNAL std::string keyName(std::uint8_t code);
/// Returns the character that the key types, or 0 if it types none. Letters are lower case without shift.
TGX_PLAYER_INTERNAL char characterOf(std::uint8_t code, bool shift);
/// Returns the key that types this character, or VK_PACKET if no key does.
TGX_PLAYER_INTERNAL std::uint8_t keyThatTypes(char character);
/// Returns the name of a mouse button in an events line.
TGX_PLAYER_INTERNAL const char* buttonName(MouseButton button);

} // namespace tgx
