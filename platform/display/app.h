#pragma once

#include "platform/export.h"

class AControlsApp;

/// The application object. Its constructor sets this pointer, its destructor clears it.
extern TGX_PLATFORM_API AControlsApp* pApp;
