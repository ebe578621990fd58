#pragma once

#include <string>
#include <string_view>

namespace script_text {

/// The text form of a compiled script, whatever its bytes are. parse and emit make the same bytes of it,
/// without a message.
std::string print(std::string_view bytes);

/// The rules of the text form, for --help.
extern const char* const notation;

} // namespace script_text
