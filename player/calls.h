#pragma once

#include "player/operation.h"

// The table of callable operations, a file for each family of classes. A name in a class hides that name in
// its bases, so the family of a class stands in front of those of its bases in calls.cpp.

extern const std::span<const Operation> mainWinOperations;
extern const std::span<const Operation> ddwinOperations;
extern const std::span<const Operation> screenOperations;
extern const std::span<const Operation> controlOperations;
extern const std::span<const Operation> displayOperations;
extern const std::span<const Operation> listOperations;
extern const std::span<const Operation> wndOperations;

/// What a call gives when the framework's exception came out of it.
inline constexpr const char* invalidArgumentValue = R"({"error": "invalid argument"})";
/// Carries out "TARGET OPERATION ARG ..." and gives its value as JSON. Raises WrongLine for a target or an
/// operation that there is none of, and for arguments that do not fit.
std::string callOperation(AMainWin& win, std::span<const Word> words);

/// The window of that id: getWnd(id, 1) on the root, so "" finds the first window without an id; else the
/// root itself. Null if there is none.
AWnd* findWindow(AMainWin& win, const std::string& id);
/// "no window "OKAY"; the screen "MENU" has OK and CANCEL".
std::string describeMissingWindow(AMainWin& win, const std::string& id);
