// Statements that act on no window: fonts and subroutine calls.

#include "platform/display/message.h"
#include "platform/display/msgbox.h"
#include "tgx/script/run.h"
#include "tgx/script/statements.h"

#include <cstdlib>

namespace {

/// A script file, or the resource whose number script is; an empty stream when there is neither.
CFile* openInCache(const ScriptLine& line, const CString& script)
{
    CFile* stream = line.run.open(script).release();
    if (!stream) {
        auto* memory = new CMemFile(1024);
        line.window.convertResourceToFile(GetModuleHandleA(nullptr), static_cast<unsigned>(std::atoi(script)),
                                          memory, "TGXScript");
        stream = memory;
    }
    line.gotoFiles.Add(stream);
    return stream;
}

CFile* streamOfSubroutine(const ScriptLine& line)
{
    const CString& script = line.text(2);
    if (line.count < 3 || (line.stream && line.stream->GetFileName() == script))
        return line.stream;
    CFile* cached = line.run.findStream(line.gotoFiles, script);
    return cached ? cached : openInCache(line, script);
}

} // namespace

bool addFont(const ScriptLine& line)
{
    line.window.addNewFont(line.text(1), line.text(2), line.number(3), line.number(4));
    return true; // a font that cannot be loaded reports itself
}

bool goTo(const ScriptLine& line)
{
    if (!line.run.canCallDeeper())
        return false;
    const CString& name = line.text(1);
    if (line.window.doSubroutine(streamOfSubroutine(line), name, line.current, line.gotoFiles))
        return true;
    MessageBoxA(line.window.m_hWnd, "Could not find SUBROUTINE", "ERROR", MB_SYSTEMMODAL);
    MsgBox("Could not find SUBROUTINE %s", static_cast<const char*>(name));
    return false;
}
