#pragma once

#include "platform/export.h"

class AControlsApp;

/// The one application object. Set by its constructor, cleared by its destructor.
extern TGX_PLATFORM_API AControlsApp* pApp;
