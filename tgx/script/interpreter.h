#pragma once

#include "tgx/script/statements.h"

/// What a line came to.
struct LineResult {
    int depthChange = 0;  // 1 BEGIN, -1 END, lineFailed, else 0
    bool stores = false;  // made goes on the window stack, null too
    AWnd* made = nullptr; // the window that the line made
};

/// Carries one line out.
LineResult executeLine(const ScriptLine& line);
