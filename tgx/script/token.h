#pragma once

#include "platform/framework/cstring.h"
#include "tgx/base/script_names.h"

/// One token of a script line. Entries after a line's last token have id 0, an empty text and value 0.
struct TOKEN_INFO {
    int id = 0;      // first byte of the token: 3 a number, 4 a string, otherwise a keyword
    CString text;    // characters of a string
    short value = 0; // of a number
};

namespace tgx {

/// Maximum number of tokens in a line, including the keyword.
constexpr int maxLineTokens = 30;
/// Number of entries of a window stack: a statement may be inside 19 blocks.
constexpr int wndStackSize = 20;
/// The result of processLine for a statement that failed.
constexpr int lineFailed = -9999;
/// The type of resources that are scripts.
constexpr const char* scriptResourceType = "TGXScript";

} // namespace tgx
