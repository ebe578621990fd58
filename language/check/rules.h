#pragma once

#include "language/check/findings.h"
#include "language/check/script.h"

namespace tgx::script_check {

class PointerTargets;

// Rules that work on the text of a script, without the toolkit reading it. Broken scripts are only checked
// line by line.

/// Finds lines that the toolkit refuses or misreads, in compiled scripts and after @ in texts, and words of
/// COLUMNS without a width.
void checkLines(const Script& script, Findings& findings);
/// Finds invalid arguments: sizes of 0, font styles, reserved ids.
void checkArguments(const Script& script, Findings& findings);
/// Finds arguments that their statement does not read, and similar.
void checkUnread(const Script& script, Findings& findings);
/// Checks BEGIN and END, the depth of blocks, and statements that act on another window than they seem to.
/// Returns false if a block has no END, which means that windows may end up in the wrong place.
bool checkBlocks(const Script& script, Findings& findings);
/// Finds lines that a later line of the same block overrides.
void checkOverridden(const Script& script, Findings& findings);
/// Finds duplicate names of top-level windows, and lines that would be mistaken for the start of one.
void checkTopNames(const Script& script, Findings& findings);

/// Finds screens without a block that show nothing.
void checkEmptyScreens(const Script& script, Findings& findings);
/// Finds windows without a block that are read one by one, so that reading them continues with the next line.
void checkMissingBlocks(const Script& script, const PointerTargets& pointerTargets, Findings& findings);

/// Checks the calls between subroutines of all scripts, and finds missing and unused subroutines. Sets
/// Subroutine::isUsed.
void checkCalls(std::vector<Script*>& scripts, const ScriptSet& set, Findings& findings);

/// Finds screens, in all scripts, with the name of a class that a USERDEF uses.
void checkScreenNames(const std::vector<Script*>& scripts, Findings& findings);

/// Returns whether the statement makes a window that the player clicks, types into or selects from.
bool makesControl(const Statement& statement);
/// Returns whether the second argument of a GOTO is the number of an embedded script.
bool isResourceNumber(const std::string& script);

} // namespace tgx::script_check
