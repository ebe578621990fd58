#pragma once

#include "platform/framework/cstring.h"
#include "tgx/base/script_names.h"

/// One token of a script line. Behind a line's last token all entries read as id 0, empty text, value 0.
struct TOKEN_INFO {
    int id = 0;      // first byte of the token: 3 a number, 4 a string, else a keyword
    CString text;    // characters of a string
    short value = 0; // of a number
};

/// Tokens that a line may hold, the keyword included.
constexpr int maxLineTokens = 30;
/// Entries of a window stack: a statement may stand inside 19 blocks.
constexpr int wndStackSize = 20;
/// What processLine gives for a statement that failed.
constexpr int lineFailed = -9999;
/// The type of resources that are scripts.
constexpr const char* scriptResourceType = "TGXScript";
