#pragma once

#include "platform/export.h"

/// Shows a formatted text to the user, through the host. Conversions %d and %s, and %% for the sign itself.
TGX_PLATFORM_API unsigned MsgBox(const char* format, ...) __attribute__((format(printf, 1, 2)));
