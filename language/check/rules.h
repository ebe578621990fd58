#pragma once

#include "language/check/findings.h"
#include "language/check/script.h"

namespace script_check {

class PointerTargets;

// What a script says without being read by the toolkit. Scripts that are broken are not looked at, but for
// their lines.

/// Lines that the toolkit refuses or reads otherwise: those of compiled scripts, and of texts that say them
/// as they stand. Argument words without a width.
void checkLines(const Script& script, Findings& findings);
/// Sizes of 0, reserved ids.
void checkArguments(const Script& script, Findings& findings);
/// Arguments that their statement does not read, and the like.
void checkUnread(const Script& script, Findings& findings);
/// BEGIN and END, depth, what stands where it acts on another window than it seems to. False when a block has
/// no END, so that windows stand elsewhere than they are meant to.
bool checkBlocks(const Script& script, Findings& findings);
/// Lines that another line of the same block undoes.
void checkOverridden(const Script& script, Findings& findings);
/// Names of the top level, and lines that a read of one window would begin at.
void checkTopNames(const Script& script, Findings& findings);

/// Screens without a block that show nothing.
void checkEmptyScreens(const Script& script, Findings& findings);
/// Windows that are read one by one, and whose read goes on over the next line.
void checkWithoutBlock(const Script& script, const PointerTargets& shown, Findings& findings);

/// Calls between subroutines of all scripts, what they miss and what nothing calls. Marks what is used.
void checkCalls(std::vector<Script*>& scripts, const ScriptSet& set, Findings& findings);

/// Screens that bear the name of a class for USERDEF, of all scripts.
void checkScreenNames(const std::vector<Script*>& scripts, Findings& findings);

/// Whether the statement makes a window that a person clicks on, types into or chooses in.
bool makesControl(const Statement& statement);
/// Whether a GOTO's second argument can only be the number of an embedded script.
bool isResourceNumber(const std::string& script);

} // namespace script_check
