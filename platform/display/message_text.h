#pragma once

#include "platform/export.h"

#include <string>
#include <string_view>
#include <vector>

/// One line for a message: line feeds and tabs as \n and \t, other bytes outside 0x20 to 0x7E as \u00NN.
TGX_PLATFORM_API std::string oneLine(std::string_view message);

/// "message: TEXT" to stderr.
void printMessage(std::string_view message);
/// "note: TEXT" to stderr.
void printNote(std::string_view note);

/// The text of the one box for the messages of a frame: the first 20, each cut to 200 characters, and how
/// many there were besides.
TGX_PLATFORM_API std::string boxText(const std::vector<std::string>& messages);
