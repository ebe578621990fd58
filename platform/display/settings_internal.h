#pragma once

#include <string>

/// Returns the program's name as passed to setSettingsOwner, which hosts use as the window title. Empty
/// before that call.
const std::string& settingsProgramName();
