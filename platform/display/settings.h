#pragma once

#include "platform/export.h"

/// Sets where settings are kept: in a text file in the user's configuration directory, in a folder for
/// company and program. Folder names use only the letters, digits, blanks, '-', '_' and '.' of the two.
/// Before this call, and after a call with an empty program, nothing is read or stored.
TGX_PLATFORM_API void setSettingsOwner(const char* company, const char* program);

/// Reads the setting of that name into value. Returns 1, or 0 if it is not stored; value is unchanged then.
TGX_PLATFORM_API int getregistry(const char* name, unsigned long* value);
/// Stores value for the next run. The file is replaced as a whole. Returns 1, or 0 if it could not be
/// written; the old file is unchanged then.
TGX_PLATFORM_API int setregistry(const char* name, unsigned long* value);
