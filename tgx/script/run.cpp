#include "tgx/script/run.h"

#include "platform/display/msgbox.h"
#include "tgx/frame/mainwin.h"

#include <algorithm>
#include <utility>

namespace {

/// What a walk below a window sees. A window that stands in several places counts in each.
struct Census {
    const AWnd* sought;
    long windows = 0;
    int height = 0; // levels below the first window
    long timesFound = 0;
    int deepestFound = 0;

    void walk(AWnd& wnd, int level)
    {
        ++windows;
        height = std::max(height, level);
        if (&wnd == sought) {
            ++timesFound;
            deepestFound = std::max(deepestFound, level);
        }
        static const CString here;
        for (int i = 0; AWnd* child = wnd.getWndFromIndex(i, here); ++i)
            walk(*child, level + 1);
    }
};

} // namespace

ScriptRun::Scope::Scope(AMainWin& mainWin, const CString& script)
    : window(mainWin), isOutermost(mainWin.scriptRun == nullptr)
{
    if (isOutermost)
        window.scriptRun = std::make_unique<ScriptRun>(script);
    running = window.scriptRun.get();
}

ScriptRun::Scope::~Scope()
{
    if (isOutermost)
        window.scriptRun.reset();
}

ScriptRun::Subroutine::Subroutine(ScriptRun& scriptRun, CFile* stream) : run(scriptRun)
{
    run.running.push_back(stream);
}

ScriptRun::Subroutine::~Subroutine()
{
    CFile* stream = run.running.back();
    run.running.pop_back();
    const auto waiting = std::find(run.released.begin(), run.released.end(), stream);
    if (waiting == run.released.end() || run.isRunning(stream))
        return;
    run.released.erase(waiting);
    stream->Close();
    delete stream;
}

ScriptRun::~ScriptRun()
{
    for (CFile* stream : released)
        delete stream;
}

bool ScriptRun::spend(long lines)
{
    linesLeft -= std::min(lines, linesLeft + 1);
    if (linesLeft >= 0)
        return true;
    if (!reported) {
        reported = true;
        MsgBox("%s runs too long", static_cast<const char*>(name));
    }
    return false;
}

std::unique_ptr<CFile> ScriptRun::open(const CString& file)
{
    const CString path = CString("UIG\\") + file;
    auto stream = std::make_unique<CFile>();
    const auto known = files.find(path.view());
    if (known != files.end()) {
        if (!known->second)
            return nullptr;
        stream->share(path, known->second);
        return stream;
    }
    const bool opened = stream->Open(path) != 0;
    // The outermost script may be of any size: it is read once.
    if (!std::exchange(firstFile, false))
        spend(linesPerFile + static_cast<long>(stream->GetLength() / bytesPerLine));
    files[path.str()] = opened ? std::static_pointer_cast<const std::string>(stream->keepAlive()) : nullptr;
    return opened ? std::move(stream) : nullptr;
}

ScriptIndex& ScriptRun::indexOf(const CFile& stream)
{
    const std::string_view bytes = stream.bytes();
    auto& index = indexes[{bytes.data(), bytes.size()}];
    if (!index)
        index = std::make_unique<ScriptIndex>(bytes, stream.keepAlive());
    return *index;
}

bool ScriptRun::isRunning(const CFile* stream) const
{
    return std::find(running.begin(), running.end(), stream) != running.end();
}

void ScriptRun::release(CFile* stream)
{
    if (isRunning(stream)) {
        released.push_back(stream);
        return;
    }
    stream->Close();
    delete stream;
}

ScriptRun::Places ScriptRun::placesOf(AWnd& root, AWnd& wnd)
{
    if (wnd.isPointer()) {
        Census all{&wnd};
        all.walk(root, 0);
        spendOnSearch(all.windows);
        return {std::max(all.timesFound, 1L), all.deepestFound};
    }
    int level = 0;
    for (AWnd* above = wnd.getParent(); above; above = above->getParent())
        ++level;
    return {1, level};
}

bool ScriptRun::mayShow(AWnd& root, AWnd& target, AWnd& wnd)
{
    Census below{&target};
    below.walk(wnd, 0);
    if (below.timesFound > 0)
        return false;
    const Places places = placesOf(root, target);
    if (places.deepest + 1 + below.height > limits::windowDepth)
        return false;
    noteShared();
    // Windows inside windows that are shown twice double at each level: what is shown is what counts, not
    // what was made.
    return spend(places.times * below.windows);
}

bool ScriptRun::mayGrowShared(AWnd& root, AWnd& target)
{
    if (!target.isPointer())
        return true;
    const Places places = placesOf(root, target);
    return places.deepest < limits::windowDepth && spend(places.times - 1);
}
