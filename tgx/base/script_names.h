#pragma once

/// The script that screens and popups are read from when nothing else is said, and its resource.
constexpr const char* mainScriptFile = "script.tgx";
constexpr unsigned mainScriptResource = 141;
/// The script of the dimming window and of the message boxes; it has no resource.
constexpr const char* commonScriptFile = "common.tgx";
constexpr unsigned noResource = ~0u;
