#pragma once

#include "player/operation.h"

// The table of callable operations, a file for each family of classes. A name in a class hides that name in
// its bases, so the family of a class stands in front of those of its bases in calls.cpp.

extern const std::span<const Operation> mainWinOperations;
extern const std::span<const Operation> ddwinOperations;
extern const std::span<const Operation> screenOperations;
extern const std::span<const Operation> controlOperations;
extern const std::span<const Operation> wndOperations;

/// Carries out "TARGET OPERATION ARG ..." and gives its value as JSON. Raises WrongLine for a target or an
/// operation that there is none of, and for arguments that do not fit.
std::string callOperation(AMainWin& win, std::span<const Word> words);

/// The window of that id: getWnd(id, 1) on the root, so "" finds the first window without an id; else the
/// root itself. Null if there is none.
AWnd* findWindow(AMainWin& win, const std::string& id);
