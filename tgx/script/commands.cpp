// Statements that act on no window: fonts and subroutine calls.

#include "platform/display/host.h"
#include "tgx/script/run.h"
#include "tgx/script/statements.h"

#include <cstdlib>

namespace tgx {

namespace {

/// Opens a script file, or the resource whose number script is, or an empty stream if there is neither. Adds
/// the stream to gotoFiles.
CFile* openInCache(const ScriptLine& line, const CString& script)
{
    CFile* stream = line.run.open(script).release();
    if (!stream) {
        auto* memory = new CMemFile(1024);
        line.window.convertResourceToFile(GetModuleHandleA(nullptr), static_cast<unsigned>(std::atoi(script)),
                                          memory, scriptResourceType);
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

/// Returns an explanation if the line names a script that does not exist, otherwise "".
std::string whyNoSubroutineScript(const ScriptLine& line)
{
    const CString& script = line.text(2);
    if (line.count < 3 || (line.stream && line.stream->GetFileName() == script))
        return "";
    return whyNoScript(script, GetModuleHandleA(nullptr), static_cast<unsigned>(std::atoi(script)));
}

} // namespace

bool addFont(const ScriptLine& line)
{
    line.window.addNewFont(line.text(1), line.text(2), line.number(3), line.number(4));
    return true; // addNewFont reports a font that cannot be loaded
}

bool goTo(const ScriptLine& line)
{
    if (!line.run.canCallDeeper())
        return false;
    const CString& name = line.text(1);
    if (line.window.doSubroutine(streamOfSubroutine(line), name, line.current, line.gotoFiles))
        return true;
    const std::string cause = whyNoSubroutineScript(line);
    const std::string text = "Could not find SUBROUTINE";
    displayhost::current().showFailure(CString(text), cause);
    displayhost::current().showFailure(CString(text + ' ' + static_cast<const char*>(name)), cause);
    line.run.explainFailure(cause);
    return false;
}

} // namespace tgx
