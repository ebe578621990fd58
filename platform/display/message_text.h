#pragma once

#include "platform/export.h"

#include <string>
#include <string_view>
#include <vector>

/// Converts a message to one line: line feeds and tabs become \n and \t, other bytes outside 0x20 to 0x7E
/// become \u00NN.
TGX_PLATFORM_API std::string oneLine(std::string_view message);

/// Prints "message: TEXT" to stderr.
void printMessage(std::string_view message);
/// Prints "note: TEXT" to stderr.
void printNote(std::string_view note);

/// Returns the text of the box that shows all messages of a frame: the first 20, each cut to 200 characters,
/// and the number of the others.
TGX_PLATFORM_API std::string boxText(const std::vector<std::string>& messages);
