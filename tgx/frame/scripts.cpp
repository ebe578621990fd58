// The main window's operations on scripts.

#include "platform/display/host.h"
#include "tgx/frame/mainwin.h"
#include "tgx/script/interpreter.h"
#include "tgx/script/line_loop.h"
#include "tgx/script/observer.h"
#include "tgx/wnd/window_cast.h"

namespace {

/// Holds the streams that the subroutine calls of one read have opened, and deletes them at the end.
struct GotoCache {
    AMainWin& window;
    CArray<CFile*, CFile*> files;

    ~GotoCache() { window.deleteAllGotoFiles(files); }
};

/// Restores the stream's position at the end of the block.
struct PositionRestorer {
    CFile* stream;
    unsigned position;

    ~PositionRestorer() { stream->Seek(position); }
};

} // namespace

void AMainWin::addScriptObserver(tgx::ScriptObserver& observer)
{
    scriptObservers.push_back(&observer);
}

void AMainWin::removeScriptObserver(tgx::ScriptObserver& observer)
{
    std::erase(scriptObservers, &observer);
}

std::optional<tgx::ScriptPlace> AMainWin::getScriptPlace() const
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

int AMainWin::processLine(CFile* stream, TOKEN_INFO* tokens, int count, AWnd* current, AWnd** wndStack,
                          int depth, CArray<CFile*, CFile*>& gotoFiles)
{
    const tgx::ScriptRun::Scope scope(scriptRun, stream ? stream->GetFileName() : CString(), scriptLines,
                                      scriptWork);
    const tgx::LineResult result =
        tgx::executeLine({*this, scope.run(), stream, tokens, count, current, depth, gotoFiles});
    if (result.stores)
        wndStack[depth] = result.made;
    return result.depthChange;
}

int AMainWin::doSubroutine(CFile* stream, const CString& name, AWnd* parent,
                           CArray<CFile*, CFile*>& gotoFiles)
{
    if (!stream)
        return 0;
    const tgx::ScriptRun::Scope scope(scriptRun, stream->GetFileName(), scriptLines, scriptWork);
    tgx::ScriptRun& run = scope.run();
    const auto body = run.indexOf(*stream).subroutine(name.view());
    if (!body || !run.canCallDeeper())
        return 0;
    if (parent && parent->isPointer())
        run.noteShared();

    const tgx::ScriptRun::Subroutine keptStream(run, stream);
    const PositionRestorer restorer{stream, stream->GetPosition()};
    stream->Seek(static_cast<long>(body->position));
    tgx::LineLoop loop{*this, run, stream, gotoFiles, parent};
    loop.open[0] = parent;
    tgx::runSubroutine(loop);
    return 1;
}

AWnd* AMainWin::readScriptFile(const CString& name, HINSTANCE instance, unsigned resourceId,
                               const CString& toWindow, int finalRead)
{
    if (!screenList)
        return nullptr;
    const CString shortName(tgx::withoutDirectory(name.view()));
    {
        const tgx::ScriptRun::Scope scope(scriptRun, shortName, scriptLines, scriptWork);
        tgx::ScriptRun& run = scope.run();
        if (!run.canReadDeeper())
            return nullptr;
        const tgx::ScriptRun::Read read(run);

        CMemFile resource(1024);
        const std::unique_ptr<CFile> file = run.open(name);
        if (!file)
            convertResourceToFile(instance, resourceId, &resource, tgx::scriptResourceType);
        GotoCache cache{*this, {}};
        tgx::LineLoop loop{*this, run, file ? file.get() : &resource, cache.files, nullptr};
        tgx::readLines(loop, toWindow, shortName);
    }
    if (finalRead && !openFirstScreen())
        displayhost::current().showFailure(
            CString("no screen in " + std::string(static_cast<const char*>(shortName))),
            tgx::whyNoScript(name, instance, resourceId));
    return toWindow.IsEmpty() ? nullptr : lastTopLevelWnd(toWindow);
}

/// Opens the first screen. Returns false if there is none.
bool AMainWin::openFirstScreen()
{
    AWnd* first = screenList ? screenList->getWndOfType(AWnd::WND_SCREEN, 0, 0) : nullptr;
    if (!first)
        return false;
    // No request can name a screen without an id, so it is entered directly.
    auto* unnamed = first->getID().IsEmpty() ? windowAs<AScreen>(first) : nullptr;
    if (unnamed && pendingScreen.IsEmpty()) {
        enterScreen(*unnamed, {"", false, mainScriptResource, mainScriptFile});
    } else {
        changeScreen(first->getID(), 0, mainScriptResource, mainScriptFile);
        // If another change was pending, changeScreen has carried it out and dropped this one.
        if (!pendingScreen.IsEmpty())
            doChangeScreen();
    }
    if (AScreen* active = getActiveScreen())
        active->initialise();
    return true;
}

AWnd* AMainWin::lastTopLevelWnd(const CString& name) const
{
    for (int i = screenList ? screenList->getWindowCount() - 1 : -1; i >= 0; --i) {
        AWnd* child = screenList->getWndFromIndex(i, CString());
        if (CString::equalNoCase(child->getID().view(), name.view()))
            return child;
    }
    return nullptr;
}
