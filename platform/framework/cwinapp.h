#pragma once

#include "platform/export.h"

/// The application object. A program has exactly one and calls Run.
class TGX_PLATFORM_API CWinApp {
public:
    CWinApp() = default;
    virtual ~CWinApp() = default;
    CWinApp(const CWinApp&) = delete;
    CWinApp& operator=(const CWinApp&) = delete;

    /// Runs the program to its end. Returns the exit status for main.
    virtual int Run() { return 0; }
};
