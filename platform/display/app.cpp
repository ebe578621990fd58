#include "platform/display/app.h"

AControlsApp* pApp = nullptr;
