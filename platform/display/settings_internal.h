#pragma once

#include <string>

/// The program's name as setSettingsOwner got it; hosts title their window with it. Empty before that call.
const std::string& settingsProgramName();
