#include "platform/host/headless/headless_host.h"

#include "platform/display/ddwin.h"
#include "platform/display/message_text.h"

bool HeadlessHost::open(ddwin& window)
{
    window.m_hWnd = reinterpret_cast<HWND>(&window);
    return true;
}

void HeadlessHost::close(ddwin& window)
{
    window.m_hWnd = nullptr;
}

void HeadlessHost::show(const Image&, std::span<const tagRECT>) {}

void HeadlessHost::pump(ddwin&) {}

void HeadlessHost::setCursor(CursorShape shape)
{
    cursor = shape;
}

void HeadlessHost::movePointer(int, int) {}

void HeadlessHost::showMessage(const CString& text)
{
    if (onMessage)
        onMessage(text);
    else
        printMessage(text.view());
}

void HeadlessHost::showFailure(const CString& text, const std::string& cause)
{
    if (onFailure)
        onFailure(text, cause);
    else if (onMessage)
        onMessage(text);
    else
        displayhost::showFailure(text, cause);
}

void HeadlessHost::waitForWork(int& ticks, int& frames)
{
    ticks = 1;
    frames = 1;
}
