#pragma once

#include <string>
#include <string_view>

namespace tgx::script_text {

/// Returns the text form of a compiled script. Works for any bytes: parse and emit reproduce them, without a
/// message.
std::string print(std::string_view bytes);

/// Describes the text form, for --help.
extern const char* const notation;

} // namespace tgx::script_text
