#pragma once

/// The default script of screens and popups, and its resource.
constexpr const char* mainScriptFile = "script.tgx";
constexpr unsigned mainScriptResource = 141;
/// The script of the dimming window and the message boxes; it has no resource.
constexpr const char* commonScriptFile = "common.tgx";
constexpr unsigned noResource = ~0u;
