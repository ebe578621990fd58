#pragma once

#include "platform/export.h"

/// Shows a formatted text to the user, through the host. Supports the conversions %d, %s and %%.
TGX_PLATFORM_API unsigned MsgBox(const char* format, ...) __attribute__((format(printf, 1, 2)));
