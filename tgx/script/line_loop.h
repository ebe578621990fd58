#pragma once

#include "tgx/script/run.h"
#include "tgx/script/statements.h"

namespace tgx {

/// Reads the lines of a stream one by one: holds the current line and the windows that the lines before it
/// have opened.
struct LineLoop {
    ScriptStage& window;
    ScriptRun& run;
    CFile* stream;
    CArray<CFile*, CFile*>& gotoFiles;
    WndRef outside; // window of depth 0; null in a read
    int depth = 0;
    int count = 0;
    unsigned start = 0; // position of the line in the stream, bytes
    TOKEN_INFO tokens[maxLineTokens] = {};
    WndRef open[wndStackSize] = {}; // entries become null if the game's code deletes a window during the read
    const ScriptRun::Loop registered{run, stream, start};
    const std::vector<ScriptObserver*>& observers = window.getScriptObservers();

    /// Reads the next line. Returns false at the end of the stream.
    bool next();
    /// Returns the window of the current block, or null if it has been deleted.
    AWnd* current() const;
    /// Executes the line and passes it to the observers. Returns the change of depth, or lineFailed.
    int execute();
};

/// Executes the lines of a script and reports those that fail. toWindow is the only window to read, or empty;
/// name is the script's name in messages.
void readLines(LineLoop& loop, const CString& toWindow, const CString& name);
/// Executes the lines of a subroutine, up to the end of its block or the first line that fails.
void runSubroutine(LineLoop& loop);

} // namespace tgx
