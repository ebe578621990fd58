#pragma once

#include "tgx/script/run.h"
#include "tgx/script/statements.h"

namespace tgx {

/// The lines of a stream, one after the other: the line at hand, and the windows that the lines before it
/// have opened.
struct LineLoop {
    ScriptStage& window;
    ScriptRun& run;
    CFile* stream;
    CArray<CFile*, CFile*>& gotoFiles;
    WndRef outside; // the window of depth 0; null in a read
    int depth = 0;
    int count = 0;
    unsigned start = 0; // of the line in the stream
    TOKEN_INFO tokens[maxLineTokens] = {};
    WndRef open[wndStackSize] = {}; // emptied when the game's code deletes a window during the read
    const ScriptRun::Loop registered{run, stream, start};

    /// Reads the next line. Returns false at the end of the stream.
    bool next();
    /// Returns the window of the block; null once that is gone.
    AWnd* current() const;
    /// Carries the line out and shows it to the observers. Returns the change of depth, or lineFailed.
    int execute();
};

/// Carries out the lines of a script, and reports those that fail. toWindow: the only window to read, or
/// empty. name: the script's, for messages.
void readLines(LineLoop& loop, const CString& toWindow, const CString& name);
/// Carries out the lines of a subroutine, up to the end of its block or the first line that fails.
void runSubroutine(LineLoop& loop);

} // namespace tgx
