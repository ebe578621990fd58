#pragma once

#include "platform/export.h"

/// Handle of a platform window.
using HWND = struct PlatformWindow*;

/// Table of a window class's message handlers. The platform library routes no messages through it.
struct AFX_MSGMAP {
    const AFX_MSGMAP* base;
};

/// Base class for windows of the platform.
class TGX_PLATFORM_API CWnd {
public:
    CWnd() = default;
    virtual ~CWnd() = default;
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;

    /// Handle of the platform window, the target of PostMessageA. Null until the host has opened it.
    HWND m_hWnd = nullptr;

protected:
    virtual const AFX_MSGMAP* GetMessageMap() const { return nullptr; }
};
