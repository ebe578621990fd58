#include "tgx/script/run.h"

#include "platform/display/msgbox.h"
#include "platform/framework/datadir.h"
#include "platform/framework/text.h"
#include "tgx/wnd/wnd.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace tgx {

namespace {

const std::string scriptFolder = "UIG\\";

AWnd* childAt(AWnd& wnd, int index)
{
    static const CString here;
    return wnd.getWndFromIndex(index, here);
}

/// Counts the places of windows in a sub-tree, including its root. A window shown in several places is
/// counted in each.
struct Census {
    const AWnd* sought;
    long placesLimit = std::numeric_limits<long>::max(); // the walk stops beyond this
    long places = 0;
    int height = 0; // levels below the root
    long timesFound = 0;
    int deepestFound = 0;

    void walk(AWnd& wnd, int level)
    {
        ++places;
        height = std::max(height, level);
        if (&wnd == sought) {
            ++timesFound;
            deepestFound = std::max(deepestFound, level);
        }
        const int count = wnd.getWindowCount();
        for (int i = 0; i < count && places <= placesLimit; ++i)
            if (AWnd* child = childAt(wnd, i))
                walk(*child, level + 1);
    }
};

AWnd* find(AWnd& below, std::string_view id, long long& steps)
{
    const int count = below.getWindowCount();
    for (int i = 0; i < count; ++i) {
        AWnd* child = childAt(below, i);
        if (!child)
            continue;
        ++steps;
        if (CString::equalNoCase(child->getID().view(), id))
            return child;
        if (child->getWindowCount() > 0)
            if (AWnd* deeper = find(*child, id, steps))
                return deeper;
    }
    return nullptr;
}

/// Adds the first window of each name, in the order of a search.
void enterNames(AWnd& below, std::unordered_map<std::string, AWnd*>& first, long long& steps)
{
    const int count = below.getWindowCount();
    for (int i = 0; i < count; ++i) {
        if (AWnd* child = childAt(below, i)) {
            ++steps;
            first.try_emplace(lowercased(child->getID().view()), child);
            enterNames(*child, first, steps);
        }
    }
}

} // namespace

std::string belowScriptFolder(const CString& path)
{
    return path.str().substr(path.view().starts_with(scriptFolder) ? scriptFolder.size() : 0);
}

std::string whyNoScript(const CString& file, HINSTANCE instance, unsigned resource)
{
    if (FindResourceA(instance, MAKEINTRESOURCEA(resource & 0xFFFF), scriptResourceType))
        return "";
    return whyNoDataFile(scriptFolder + file.str());
}

ScriptRun::Scope::Scope(std::unique_ptr<ScriptRun>& heldRun, const CString& script, long lines,
                        long long work)
    : held(heldRun), isOutermost(heldRun == nullptr)
{
    if (isOutermost)
        held = std::make_unique<ScriptRun>(script, lines, work);
    running = held.get();
}

ScriptRun::Scope::~Scope()
{
    if (isOutermost)
        held.reset();
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

std::optional<ScriptPlace> ScriptRun::place() const
{
    if (!innermost)
        return std::nullopt;
    return ScriptPlace{belowScriptFolder(innermost->stream->GetFilePath()), innermost->start};
}

bool ScriptRun::refuse()
{
    if (!std::exchange(reported, true))
        MsgBox("%s runs too long", static_cast<const char*>(name));
    return false;
}

std::unique_ptr<CFile> ScriptRun::open(const CString& file)
{
    const CString path = CString(scriptFolder) + file;
    auto stream = std::make_unique<CFile>();
    const auto known = files.find(path.view());
    if (known != files.end()) {
        if (!known->second)
            return nullptr;
        stream->share(path, known->second);
        return stream;
    }
    const bool opened = stream->Open(path) != 0;
    if (stream->wasTooLarge())
        MsgBox("cannot load %s", static_cast<const char*>(path));
    // The outermost script may have any size that can be opened.
    if (!std::exchange(firstFile, false))
        workLeft -= openedName + openedByte * stream->GetLength();
    files[path.str()] = opened ? std::static_pointer_cast<const std::string>(stream->keepAlive()) : nullptr;
    return opened ? std::move(stream) : nullptr;
}

// Not counted as work: a stream is read at most twice, and opening it has cost more.
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

CFile* ScriptRun::findStream(const CArray<CFile*, CFile*>& gotoFiles, const CString& file)
{
    StreamNames& names = streamNames[&gotoFiles];
    for (; names.known < gotoFiles.GetSize(); ++names.known)
        names.first.try_emplace(lowercased(gotoFiles.GetAt(names.known)->GetFileName().view()), names.known);
    const auto found = names.first.find(lowercased(file.view()));
    return found == names.first.end() ? nullptr : gotoFiles.GetAt(found->second);
}

void ScriptRun::releaseAll(CArray<CFile*, CFile*>& gotoFiles)
{
    for (CFile* stream : gotoFiles) {
        if (isRunning(stream)) {
            released.push_back(stream);
        } else {
            stream->Close();
            delete stream;
        }
    }
    gotoFiles.RemoveAll();
    streamNames.erase(&gotoFiles);
}

AWnd* ScriptRun::findBelow(AWnd& below, const CString& id)
{
    long long steps = 0;
    AWnd* found = find(below, id.view(), steps);
    workLeft -= steps;
    return found;
}

AWnd* ScriptRun::findByIndex(AWnd& below, const CString& id)
{
    // Other lines in between may have changed the tree.
    const bool isFresh = wndNames.below == &below && wndNames.linesLeft <= linesLeft + 1;
    if (!isFresh) {
        wndNames.below = &below;
        wndNames.first = {};
        long long steps = 0;
        enterNames(below, wndNames.first, steps);
        workLeft -= steps * indexedWindow;
    }
    wndNames.linesLeft = linesLeft;
    const auto found = wndNames.first.find(lowercased(id.view()));
    return found == wndNames.first.end() ? nullptr : found->second;
}

bool ScriptRun::takePlaces(long places)
{
    if (places > placesLeft)
        return false;
    placesLeft -= places;
    return true;
}

/// Returns the places of wnd: it is shown as often as the nearest of its owners that is shown twice.
ScriptRun::Places ScriptRun::placesOf(AWnd& root, AWnd& wnd)
{
    int level = 0;
    AWnd* shared = &wnd;
    for (; shared && shared != &root && shared->getPointerCount() == 0; shared = shared->getOwner())
        ++level;
    if (!shared || shared == &root)
        return {1, level};
    if (counted != shared) {
        Census all{shared};
        all.walk(root, 0);
        workLeft -= all.places;
        counted = shared;
        countedPlaces = {std::max(all.timesFound, 1L), all.deepestFound};
    }
    return {countedPlaces.times, countedPlaces.deepest + level};
}

bool ScriptRun::mayShow(AWnd& root, AWnd& target, AWnd& wnd)
{
    Census below{&target, placesLeft};
    below.walk(wnd, 0);
    workLeft -= below.places;
    const Places places = placesOf(root, target);
    if (below.timesFound > 0 || below.places > placesLeft ||
        places.deepest + 1 + below.height > limits::windowDepth || !takePlaces(places.times * below.places))
        return false;
    counted = nullptr;
    noteShared();
    return true;
}

bool ScriptRun::mayGrowShared(AWnd& root, AWnd& target)
{
    if (!target.isPointer())
        return true;
    const Places places = placesOf(root, target);
    return places.deepest < limits::windowDepth && takePlaces(places.times);
}

} // namespace tgx
