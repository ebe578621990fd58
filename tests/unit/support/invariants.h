#pragma once

#include <string>

class AMainWin;

/// What must always hold between a tick and the next: the tree has no cycle, parents and children agree,
/// every pointer of the main window leads into the tree, popups and capture are consistent. Asks public
/// operations only. The first thing that does not hold, or "".
std::string checkInvariants(AMainWin& win);
