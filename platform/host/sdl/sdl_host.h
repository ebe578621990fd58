#pragma once

#include "platform/display/host.h"

#include <memory>

/// The host of a program that chooses none: a window of the desktop.
std::unique_ptr<displayhost> makeSdlHost();
