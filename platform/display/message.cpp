#include "platform/display/message.h"

#include "platform/display/host.h"

int PostMessageA(HWND window, unsigned message, unsigned long, long)
{
    if (!window)
        return 0;
    if (message == WM_CLOSE)
        displayhost::current().closeRequested = true;
    return 1;
}

int MessageBoxA(HWND, const char* text, const char*, unsigned)
{
    displayhost::current().showMessage(text);
    return 1;
}
