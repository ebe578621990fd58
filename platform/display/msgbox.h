#pragma once

#include "platform/export.h"
#include "platform/framework/cstring.h"

/// Shows a formatted text to the user, through the host. Supports the conversions %d, %s and %%.
TGX_PLATFORM_API unsigned MsgBox(const char* format, ...) __attribute__((format(printf, 1, 2)));

/// Reports "cannot load NAME" for a file of the data directory. A missing folder is reported only once for
/// all files in it.
TGX_PLATFORM_API void reportNotLoaded(const CString& name);
