// The loops over the lines of a script, and the streams that they read.

#include "platform/display/host.h"
#include "tgx/script/interpreter.h"
#include "tgx/script/observer.h"
#include "tgx/script/reader.h"
#include "tgx/script/run.h"
#include "tgx/wnd/window_cast.h"

#include <algorithm>

namespace {

/// A name as messages give it: what stands behind the last slash or backslash.
CString withoutDirectory(const CString& name)
{
    return name.Mid(std::max(name.ReverseFind('\\'), name.ReverseFind('/')) + 1);
}

/// The line at hand and the windows that the lines before it have opened.
struct LineLoop {
    AMainWin& window;
    ScriptRun& run;
    CFile* stream;
    CArray<CFile*, CFile*>& gotoFiles;
    WndRef outside; // the window of depth 0; null in a read
    int depth = 0;
    int count = 0;
    unsigned start = 0; // of the line in the stream
    TOKEN_INFO tokens[maxLineTokens] = {};
    WndRef open[wndStackSize] = {}; // empty out when the game's code deletes a window during the read
    const ScriptRun::Loop registered{run, stream, start};

    /// False at the end of the stream.
    bool next()
    {
        start = stream->GetPosition();
        if (!readScriptLine(stream, tokens, maxLineTokens, &count))
            return false;
        run.countBytes(stream->GetPosition() - start);
        return true;
    }

    /// The window of the block; null once that is gone.
    AWnd* current() const
    {
        if (depth == 0)
            return outside;
        return depth <= wndStackSize ? open[depth - 1].get() : nullptr; // deeper no statement is carried out
    }

    int execute()
    {
        const LineResult result =
            executeLine({window, run, stream, tokens, count, current(), depth, gotoFiles});
        if (result.stores)
            open[depth] = result.made;
        if (!run.isOver())
            for (ScriptObserver* observer : window.getScriptObservers())
                observer->lineExecuted({stream->GetFileName(), stream->GetFilePath(), start, tokens, count,
                                        depth, current(), result.depthChange, result.made});
        return result.depthChange;
    }
};

void reportLine(int number, const CString& script, const CString& firstText, const std::string& cause)
{
    std::string text = "Encountered an error on line " + std::to_string(number) + " in ";
    text += static_cast<const char*>(script);
    text += "\nThe line is :\n\t";
    text += static_cast<const char*>(firstText);
    displayhost::current().showFailure(CString(text), cause);
}

/// The streams that the subroutine calls of one read have opened.
struct GotoCache {
    AMainWin& window;
    CArray<CFile*, CFile*> files;

    ~GotoCache() { window.deleteAllGotoFiles(files); }
};

/// Puts the stream's position back.
struct KeptPosition {
    CFile* stream;
    unsigned position;

    ~KeptPosition() { stream->Seek(position); }
};

} // namespace

ScriptObserver::~ScriptObserver() = default;

void AMainWin::addScriptObserver(ScriptObserver& observer)
{
    scriptObservers.push_back(&observer);
}

void AMainWin::removeScriptObserver(ScriptObserver& observer)
{
    std::erase(scriptObservers, &observer);
}

std::optional<ScriptPlace> AMainWin::getScriptPlace() const
{
    return scriptRun ? scriptRun->place() : std::nullopt;
}

int AMainWin::convertResourceToFile(HINSTANCE instance, unsigned resource, CMemFile* file,
                                    const CString& type)
{
    HRSRC found = FindResourceA(instance, MAKEINTRESOURCEA(resource & 0xFFFF), type);
    HGLOBAL loaded = found ? LoadResource(instance, found) : nullptr;
    const void* bytes = loaded ? LockResource(loaded) : nullptr;
    if (!bytes)
        return 0;
    file->Attach(static_cast<const unsigned char*>(bytes), SizeofResource(instance, found), 0);
    return 1;
}

void AMainWin::deleteAllGotoFiles(CArray<CFile*, CFile*>& gotoFiles)
{
    if (scriptRun) {
        scriptRun->releaseAll(gotoFiles);
        return;
    }
    for (CFile* stream : gotoFiles) {
        stream->Close();
        delete stream;
    }
    gotoFiles.RemoveAll();
}

int AMainWin::doSubroutine(CFile* stream, const CString& name, AWnd* parent,
                           CArray<CFile*, CFile*>& gotoFiles)
{
    if (!stream)
        return 0;
    ScriptRun::Scope scope(*this, stream->GetFileName());
    ScriptRun& run = scope.run();
    const auto body = run.indexOf(*stream).subroutine(name.view());
    if (!body || !run.canCallDeeper())
        return 0;
    if (parent && parent->isPointer())
        run.noteShared();

    const ScriptRun::Subroutine keptStream(run, stream);
    const KeptPosition kept{stream, stream->GetPosition()};
    stream->Seek(static_cast<long>(body->position));

    LineLoop loop{*this, run, stream, gotoFiles, parent};
    loop.open[0] = parent;
    while (loop.next()) {
        // The start of another subroutine ends nothing here.
        if (loop.tokens[0].id == keyword::subroutine)
            continue;
        const int change = loop.execute();
        loop.depth += change;
        if (change == lineFailed || loop.depth <= 0)
            break;
    }
    return 1;
}

AWnd* AMainWin::readScriptFile(const CString& name, HINSTANCE instance, unsigned resourceId,
                               const CString& toWindow, int finalRead)
{
    if (!screenList)
        return nullptr;
    const CString shortName = withoutDirectory(name);
    const bool wholeScript = toWindow.IsEmpty();
    {
        ScriptRun::Scope scope(*this, shortName);
        ScriptRun& run = scope.run();
        if (!run.canReadDeeper())
            return nullptr;
        const ScriptRun::Read read(run);

        CMemFile resource(1024);
        const std::unique_ptr<CFile> file = run.open(name);
        if (!file)
            convertResourceToFile(instance, resourceId, &resource, scriptResourceType);
        CFile* stream = file ? file.get() : &resource;

        GotoCache cache{*this, {}};
        LineLoop loop{*this, run, stream, cache.files, nullptr};
        int lineNumber = 0;
        // Lines before the window's own are passed over; they count as if they had been read.
        if (!wholeScript) {
            const auto start = run.indexOf(*stream).window(toWindow.view());
            stream->Seek(start ? static_cast<long>(start->position) : static_cast<long>(stream->GetLength()));
            lineNumber = start ? start->line - 1 : 0;
        }
        while (loop.next()) {
            ++lineNumber;
            // The window's own line, and any other that bears its name first, is never the last of the
            // definition.
            const bool bearsName =
                !wholeScript && loop.tokens[1].id == stringToken && loop.tokens[1].text == toWindow;
            const int change = loop.execute();
            const std::string cause = run.takeFailureCause();
            // A line that the end of the run stopped is not at fault.
            if (change <= lineFailed && run.isOver())
                break;
            if (change <= lineFailed)
                reportLine(lineNumber, shortName, loop.tokens[0].text, cause);
            else
                loop.depth = std::max(loop.depth + change, 0);
            if (!wholeScript && !bearsName && loop.depth == 0)
                break;
        }
    }

    if (finalRead) {
        AWnd* first = screenList ? screenList->getWndOfType(AWnd::WND_SCREEN, 0, 0) : nullptr;
        if (first) {
            // No request can name a screen without an id: it is entered as it is.
            auto* unnamed = first->getID().IsEmpty() ? windowAs<AScreen>(first) : nullptr;
            if (unnamed && pendingScreen.IsEmpty())
                enterScreen(*unnamed, {"", false, mainScriptResource, mainScriptFile});
            else
                changeScreen(first->getID(), 0, mainScriptResource, mainScriptFile);
            // With a change already waiting, changeScreen has carried that one out and dropped ours.
            if (!pendingScreen.IsEmpty())
                doChangeScreen();
            if (AScreen* active = getActiveScreen())
                active->initialise();
        } else {
            displayhost::current().showFailure(
                CString("no screen in " + std::string(static_cast<const char*>(shortName))),
                whyNoScript(name, instance, resourceId));
        }
    }

    if (wholeScript || !screenList)
        return nullptr;
    for (int i = screenList->getWindowCount() - 1; i >= 0; --i) {
        AWnd* child = screenList->getWndFromIndex(i, CString());
        if (CString::equalNoCase(child->getID().view(), toWindow.view()))
            return child;
    }
    return nullptr;
}
