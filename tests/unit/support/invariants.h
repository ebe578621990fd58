#pragma once

#include <string>

class AMainWin;

/// Checks what must always hold between two ticks: the tree has no cycle, parents and children agree, all
/// pointers of the main window point into the tree, and popups and capture are consistent. Uses only public
/// operations. Returns a description of the first fault, or "".
std::string checkInvariants(AMainWin& win);
