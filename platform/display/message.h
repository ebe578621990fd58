#pragma once

#include "platform/export.h"
#include "platform/framework/cwnd.h"

/// Message number of the request to close a window.
constexpr unsigned WM_CLOSE = 16;
/// Flag of MessageBoxA: the box is in front of all windows of the system.
constexpr unsigned MB_SYSTEMMODAL = 4096;

/// Posts a message to the window, which is handled after the current frame. Only WM_CLOSE has an effect: it
/// ends the main loop. Returns 1, or 0 for a null window.
TGX_PLATFORM_API int PostMessageA(HWND window, unsigned message, unsigned long wParam, long lParam);

/// Shows a text through the host and waits until the user has closed it.
TGX_PLATFORM_API int MessageBoxA(HWND window, const char* text, const char* caption, unsigned type);
