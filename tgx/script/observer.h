#pragma once

#include "tgx/export.h"
#include "tgx/script/token.h"

#include <string>

class AWnd;
class CString;

namespace tgx {

/// The place of a line in a script.
struct ScriptPlace {
    /// Path below UIG as it was opened, such as "parts\menu.tgx"; empty for an embedded script.
    std::string file;
    unsigned offset; // position of its first byte in the stream
};

/// Returns the part of a script's path below UIG.
TGX_API std::string belowScriptFolder(const CString& path);

/// A line of a script that has been executed or has failed.
struct ExecutedLine {
    const CString& script;    // name of its stream, without a directory; empty for an embedded script
    const CString& path;      // path as it was opened, with directories
    unsigned offset;          // position of its first byte in the stream
    const TOKEN_INFO* tokens; // entries after the line's end are reset
    int count;
    int depth;       // number of blocks around it
    AWnd* current;   // window of its block; null at the top level or if that window has been deleted
    int depthChange; // 1 for BEGIN, -1 for END, lineFailed, otherwise 0
    AWnd* made;      // window that it made or showed again, or null
};

/// Receives each line that a main window's reads execute, including those of subroutines. The windows passed
/// to it may be deleted at any time after the call. It must neither read a script nor change the tree.
class TGX_API ScriptObserver {
public:
    virtual ~ScriptObserver();
    virtual void lineExecuted(const ExecutedLine& line) = 0;
};

} // namespace tgx
