#pragma once

#include "player/operation.h"

namespace tgx {

// The table of callable operations, with one file for each family of classes. A name in a class hides that
// name in its bases, so calls.cpp lists the family of a class before those of its bases.

extern const std::span<const Operation> mainWinOperations;
extern const std::span<const Operation> ddwinOperations;
extern const std::span<const Operation> screenOperations;
extern const std::span<const Operation> controlOperations;
extern const std::span<const Operation> displayOperations;
extern const std::span<const Operation> listOperations;
extern const std::span<const Operation> wndOperations;

/// The value of a call that threw the framework's exception.
inline constexpr const char* invalidArgumentValue = R"({"error": "invalid argument"})";
/// Carries out "TARGET OPERATION ARG ..." and returns its value as JSON. Raises WrongLine if the target or
/// the operation does not exist, or if the arguments do not fit.
std::string callOperation(AMainWin& win, std::span<const Word> words);

/// Finds a window by its id with getWnd(id, 1) on the root, so "" finds the first window without an id. Also
/// finds the root itself. Null if there is no such window.
AWnd* findWindow(AMainWin& win, const std::string& id);
/// Returns the message for an unknown id: "no window "OKAY"; the screen "MENU" has OK and CANCEL".
std::string describeMissingWindow(AMainWin& win, const std::string& id);

} // namespace tgx
