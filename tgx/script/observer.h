#pragma once

#include "tgx/export.h"
#include "tgx/script/token.h"

#include <string>

class AWnd;
class CString;

/// A line of a script.
struct ScriptPlace {
    std::string file; // below UIG, as it was opened, such as "parts\menu.tgx"; empty for an embedded script
    unsigned offset;  // of its first byte, from the start of the stream
};

/// The part of a script's path below UIG.
TGX_API std::string belowScriptFolder(const CString& path);

/// A line of a script that has been carried out, or has failed.
struct ExecutedLine {
    const CString& script;    // name of its stream, without a directory; empty for an embedded script
    const CString& path;      // the same as it was opened, with its directories
    unsigned offset;          // of its first byte, from the start of the stream
    const TOKEN_INFO* tokens; // those behind the line's end are reset
    int count;
    int depth;       // of blocks around it
    AWnd* current;   // the window of its block; null at the top level, and where that window is gone
    int depthChange; // 1 BEGIN, -1 END, lineFailed, else 0
    AWnd* made;      // the window that it made or brought in, or null
};

/// Sees each line that a main window's reads carry out, those of subroutines too. Windows that it is shown
/// may be deleted at any time behind the call. Neither reads a script nor changes the tree.
class TGX_API ScriptObserver {
public:
    virtual ~ScriptObserver();
    virtual void lineExecuted(const ExecutedLine& line) = 0;
};
