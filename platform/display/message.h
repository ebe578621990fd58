#pragma once

#include "platform/export.h"
#include "platform/framework/cwnd.h"

/// Message number of the request to close a window.
constexpr unsigned WM_CLOSE = 16;
/// Flag of MessageBoxA: in front of all windows of the system.
constexpr unsigned MB_SYSTEMMODAL = 4096;

/// Hands a message to the window; it is acted on behind the running frame. Only WM_CLOSE has an effect: the
/// host's loop ends. 1, or 0 for a null window.
TGX_PLATFORM_API int PostMessageA(HWND window, unsigned message, unsigned long wParam, long lParam);

/// Shows a text through the host. The program goes on once the user has seen it.
TGX_PLATFORM_API int MessageBoxA(HWND window, const char* text, const char* caption, unsigned type);
