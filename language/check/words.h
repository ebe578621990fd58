#pragma once

#include "tgx/frame/mainwin.h"
#include "tgx/script/vocabulary.h"

#include <string>

namespace tgx::script_check {

// Descriptions of windows and values for messages.

/// Returns the type with an article, such as "a list box".
std::string typeOf(const AWnd& wnd);
/// Returns all types that the rule accepts, such as "a list box or a combo box".
std::string typesOf(const TargetRule& rule);
/// Returns the id in quotes, or the type if it has none, such as "the plain window".
std::string describe(AWnd& wnd);
/// Returns the message for a number that is not in the font table.
std::string noFont(int number, AMainWin& window);
/// Returns a size such as "120 x 40".
std::string size(long long width, long long height);

} // namespace tgx::script_check
