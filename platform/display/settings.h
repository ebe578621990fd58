#pragma once

#include "platform/export.h"

/// Settings are kept in a text file below the user's configuration directory, by company and program. Names
/// of folders are made of the letters, digits, blanks, '-', '_' and '.' of the two. Before this call, and
/// after a call with an empty program, nothing is read and nothing is stored.
TGX_PLATFORM_API void setSettingsOwner(const char* company, const char* program);

/// Reads the setting of that name into value. 1, or 0 when it is not stored: value stays as it was.
TGX_PLATFORM_API int getregistry(const char* name, unsigned long* value);
/// Stores value for the next run. The file is replaced whole: written beside, then renamed. 1, or 0 when it
/// could not be written; the old file stays then.
TGX_PLATFORM_API int setregistry(const char* name, unsigned long* value);
