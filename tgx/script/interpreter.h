#pragma once

#include "tgx/script/statements.h"

namespace tgx {

/// The result of a line.
struct LineResult {
    int depthChange = 0;  // 1 for BEGIN, -1 for END, lineFailed, otherwise 0
    bool stores = false;  // made is stored on the window stack, even if it is null
    AWnd* made = nullptr; // window that the line made
};

/// Executes one line.
LineResult executeLine(const ScriptLine& line);

} // namespace tgx
