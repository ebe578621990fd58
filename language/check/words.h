#pragma once

#include "tgx/frame/mainwin.h"
#include "tgx/script/vocabulary.h"

#include <string>

namespace script_check {

// Windows in words.

/// "a list box".
std::string typeOf(const AWnd& wnd);
/// "a list box or a combo box".
std::string typesOf(const TargetRule& rule);
/// By its id, or by its type where it has none: "the plain window".
std::string describe(AWnd& wnd);
/// For a number that the font table does not hold.
std::string noFont(int number, AMainWin& window);
/// "120 x 40".
std::string size(long long width, long long height);

} // namespace script_check
