#pragma once

#include "platform/framework/carray.h"
#include "platform/framework/cfile.h"
#include "platform/limits.h"
#include "platform/system/module.h"
#include "tgx/script/index.h"
#include "tgx/script/observer.h"
#include "tgx/wnd/wndref.h"

#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

class AWnd;

/// Why there is no script of that name: with neither a file below UIG nor that resource, the file and the
/// folder that it was looked for in, else "".
std::string whyNoScript(const CString& file, HINSTANCE instance, unsigned resource);

/// What all reads inside one outermost read of a script share: the limits that end them, the bytes of the
/// files that they opened, the indexes of those, the streams that subroutines run from. A tree that the
/// game's own code changes in a way that no script can, during a read, may be counted wrongly.
class ScriptRun {
public:
    /// The run of a read: that of the reads around it, or a new one that ends with the outermost read.
    class Scope {
    public:
        /// held: the run of the outermost read, null between reads. script: the name that messages give.
        /// lines and work: the limits of a new run.
        Scope(std::unique_ptr<ScriptRun>& held, const CString& script, long lines, long long work);
        ~Scope();
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;
        ScriptRun& run() const { return *running; }

    private:
        std::unique_ptr<ScriptRun>& held;
        ScriptRun* running;
        bool isOutermost;
    };

    /// A read that runs, as long as this lives.
    class Read {
    public:
        explicit Read(ScriptRun& scriptRun) : run(scriptRun) { ++run.readsRunning; }
        ~Read() { --run.readsRunning; }
        Read(const Read&) = delete;
        Read& operator=(const Read&) = delete;

    private:
        ScriptRun& run;
    };

    /// A loop over the lines of a stream, as long as this lives. start changes with each line.
    class Loop {
    public:
        Loop(ScriptRun& scriptRun, const CFile* source, const unsigned& lineStart)
            : run(scriptRun), stream(source), start(lineStart), outer(run.innermost)
        {
            run.innermost = this;
        }
        ~Loop() { run.innermost = outer; }
        Loop(const Loop&) = delete;
        Loop& operator=(const Loop&) = delete;

    private:
        friend class ScriptRun;
        ScriptRun& run;
        const CFile* stream;
        const unsigned& start; // of the line at hand
        const Loop* outer;
    };

    /// A subroutine that runs from stream, which lives until this ends.
    class Subroutine {
    public:
        Subroutine(ScriptRun& scriptRun, CFile* stream);
        ~Subroutine();
        Subroutine(const Subroutine&) = delete;
        Subroutine& operator=(const Subroutine&) = delete;

    private:
        ScriptRun& run;
    };

    ScriptRun(const CString& script, long lines, long long work)
        : name(script), linesLeft(lines), workLeft(work), placesLeft(std::min(lines, limits::sharedPlaces))
    {}
    ~ScriptRun();

    // What ends a run: its lines, and the work that they make beyond being lines. Work is counted as it is
    // done; the line at hand is still carried out.

    /// Whether one more line may be executed, which counts it. The first time that it may not is reported.
    bool mayExecute()
    {
        if (linesLeft <= 0 || workLeft < 0)
            return refuse();
        --linesLeft;
        return true;
    }
    bool isOver() const { return reported; }
    /// The line at hand, of the innermost loop.
    std::optional<ScriptPlace> place() const;
    /// Bytes of a line that was read.
    void countBytes(unsigned bytes) { workLeft -= bytes; }
    /// Radio buttons that a new one comes to know, and they it.
    void countLinked(int members) { workLeft -= members * linkedMember; }

    bool canReadDeeper() const { return readsRunning <= limits::readDepth; } // the outermost one is in none
    bool canCallDeeper() const { return static_cast<int>(running.size()) < limits::subroutineDepth; }

    // Streams.

    /// The file below the script directory, open; null when there is none. The disk is asked once for each
    /// name.
    std::unique_ptr<CFile> open(const CString& file);
    ScriptIndex& indexOf(const CFile& stream);
    /// The first of gotoFiles that has that name, ignoring case, or null.
    CFile* findStream(const CArray<CFile*, CFile*>& gotoFiles, const CString& file);
    /// Empties gotoFiles. Its streams are closed and deleted now, or when no subroutine runs from them any
    /// more.
    void releaseAll(CArray<CFile*, CFile*>& gotoFiles);

    /// Why a line at hand is about to fail, for the message about it; "" when nothing explains it. Forgotten
    /// with the line.
    void explainFailure(std::string cause) { failureCause = std::move(cause); }
    std::string takeFailureCause() { return std::exchange(failureCause, {}); }

    // Windows by name. Both answer as getWnd(id, 1) on below.

    AWnd* findBelow(AWnd& below, const CString& id);
    /// For lines that name many windows: the names below a window are gone through once for all such lines
    /// that follow one another.
    AWnd* findByIndex(AWnd& below, const CString& id);

    // Windows that are shown in several places.

    /// Whether wnd may be shown in target too: the tree keeps no cycle, and stays within
    /// limits::windowDepth and limits::sharedPlaces. Counts the places.
    bool mayShow(AWnd& root, AWnd& target, AWnd& wnd);
    /// Whether target may be given a new child. Costs a look at a flag until some window is shown twice.
    bool mayGrow(AWnd& root, AWnd& target) { return !sharesWindows || mayGrowShared(root, target); }
    void noteShared() { sharesWindows = true; }

private:
    // Work in steps of a search.
    static constexpr long long openedName = 20'000; // finding a file on the disk, or that there is none
    static constexpr long long openedByte = 8;      // the bytes stay in memory until the run ends
    static constexpr long long indexedWindow = 32;
    static constexpr long long linkedMember = 32 * openedByte; // four pointers, which stay

    struct Places {
        long times = 1;  // how often the window is shown
        int deepest = 0; // levels below the root
    };
    /// Streams by name: the place of the first of each name in an array, which is read up to known.
    struct StreamNames {
        int known = 0;
        std::unordered_map<std::string, int> first;
    };
    struct WndNames {
        WndRef below;
        long linesLeft = 0; // behind the line that asked last
        std::unordered_map<std::string, AWnd*> first;
    };

    bool refuse();
    Places placesOf(AWnd& root, AWnd& wnd);
    bool mayGrowShared(AWnd& root, AWnd& target);
    bool takePlaces(long places);
    bool isRunning(const CFile* stream) const;

    CString name; // of the outermost script
    std::string failureCause;
    long linesLeft;
    long long workLeft;
    bool reported = false;
    int readsRunning = 0;
    const Loop* innermost = nullptr;
    bool sharesWindows = false;
    long placesLeft;
    WndRef counted; // the shared window whose places were counted last
    Places countedPlaces;
    WndNames wndNames;
    bool firstFile = true;
    std::vector<CFile*> running;                    // one for each subroutine, innermost last
    std::vector<CFile*> released;                   // by the cache, while a subroutine runs from them
    std::map<const void*, StreamNames> streamNames; // by array
    std::map<std::string, std::shared_ptr<const std::string>, std::less<>>
        files; // null: there is no such file
    std::map<std::pair<const char*, std::size_t>, std::unique_ptr<ScriptIndex>> indexes;
};
