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

namespace tgx {

/// Returns an explanation for a script that cannot be found: if there is neither the file below UIG nor the
/// resource, the file and the folder in which it was looked for; otherwise "".
std::string whyNoScript(const CString& file, HINSTANCE instance, unsigned resource);

/// State shared by all reads inside one outermost read of a script: their limits, the bytes and indexes of
/// the files that they have opened, and the streams from which subroutines run. If the game's own code
/// changes the tree during a read, in a way that a script cannot, windows may be counted wrongly.
class ScriptRun {
public:
    /// Provides the run of a read: that of the enclosing reads, or a new one that ends with the outermost
    /// read.
    class Scope {
    public:
        /// held is the run of the outermost read, null between reads; script is the name in messages; lines
        /// and work are the limits of a new run.
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

    /// Counts a read as running for the lifetime of this object.
    class Read {
    public:
        explicit Read(ScriptRun& scriptRun) : run(scriptRun) { ++run.readsRunning; }
        ~Read() { --run.readsRunning; }
        Read(const Read&) = delete;
        Read& operator=(const Read&) = delete;

    private:
        ScriptRun& run;
    };

    /// Registers a loop over the lines of a stream for the lifetime of this object. start changes with each
    /// line.
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
        const unsigned& start; // position of the current line
        const Loop* outer;
    };

    /// Registers a subroutine that runs from stream and keeps stream open for the lifetime of this object.
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

    // A run is limited in its lines and in the work that they cause beyond their number. Work is counted as
    // it is done; the current line is still executed.

    /// Counts a line. Returns false if it may not be executed, which is reported the first time.
    bool mayExecute()
    {
        if (linesLeft <= 0 || workLeft < 0)
            return refuse();
        --linesLeft;
        return true;
    }
    bool isOver() const { return reported; }
    /// Returns the current line of the innermost loop.
    std::optional<ScriptPlace> place() const;
    /// Counts the bytes of a line that was read.
    void countBytes(unsigned bytes) { workLeft -= bytes; }
    /// Counts the radio buttons with which a new one is linked.
    void countLinked(int members) { workLeft -= members * linkedMember; }

    // The outermost read is not nested.
    bool canReadDeeper() const { return readsRunning <= limits::readDepth; }
    bool canCallDeeper() const { return static_cast<int>(running.size()) < limits::subroutineDepth; }

    // Streams.

    /// Opens the file below the script directory; returns null if there is none. Accesses the disk once for
    /// each name.
    std::unique_ptr<CFile> open(const CString& file);
    ScriptIndex& indexOf(const CFile& stream);
    /// Returns the first of gotoFiles with that name, ignoring case, or null.
    CFile* findStream(const CArray<CFile*, CFile*>& gotoFiles, const CString& file);
    /// Empties gotoFiles. Closes and deletes its streams now or, if a subroutine runs from them, once it has
    /// ended.
    void releaseAll(CArray<CFile*, CFile*>& gotoFiles);

    /// Stores why the current line is about to fail, for the message about it.
    void explainFailure(std::string cause) { failureCause = std::move(cause); }
    std::string takeFailureCause() { return std::exchange(failureCause, {}); }
    void forgetFailureCause()
    {
        if (!failureCause.empty())
            failureCause.clear();
    }

    // Windows by name. Both operations return the same as getWnd(id, 1) of below.

    AWnd* findBelow(AWnd& below, const CString& id);
    /// For lines that name many windows: the names below a window are collected once for consecutive lines of
    /// this kind.
    AWnd* findByIndex(AWnd& below, const CString& id);

    // Windows that are shown in several places.

    /// Returns true if wnd may also be shown in target: the tree must have no cycle and stay within
    /// limits::windowDepth and limits::sharedPlaces. Counts the places.
    bool mayShow(AWnd& root, AWnd& target, AWnd& wnd);
    /// Returns true if target may be given a new child. Only tests a flag until a window is shown twice.
    bool mayGrow(AWnd& root, AWnd& target) { return !sharesWindows || mayGrowShared(root, target); }
    void noteShared() { sharesWindows = true; }

private:
    // Costs in work; one step of a search counts as 1.
    static constexpr long long openedName = 20'000; // a file that was looked up on the disk
    static constexpr long long openedByte = 8;      // a byte kept in memory until the run ends
    static constexpr long long indexedWindow = 32;
    static constexpr long long linkedMember = 32 * openedByte; // four pointers, which are kept

    struct Places {
        long times = 1;  // number of places that show the window
        int deepest = 0; // levels below the root
    };
    /// Streams by name: the index of the first of each name in an array whose first known entries have been
    /// read.
    struct StreamNames {
        int known = 0;
        std::unordered_map<std::string, int> first;
    };
    struct WndNames {
        WndRef below;
        long linesLeft = 0; // lines left after the last search
        std::unordered_map<std::string, AWnd*> first;
    };

    bool refuse();
    Places placesOf(AWnd& root, AWnd& wnd);
    bool mayGrowShared(AWnd& root, AWnd& target);
    bool takePlaces(long places);
    bool isRunning(const CFile* stream) const;

    CString name; // name of the outermost script
    std::string failureCause;
    long linesLeft;
    long long workLeft;
    bool reported = false;
    int readsRunning = 0;
    const Loop* innermost = nullptr;
    bool sharesWindows = false;
    long placesLeft;
    WndRef counted; // shared window whose places were counted last
    Places countedPlaces;
    WndNames wndNames;
    bool firstFile = true;
    std::vector<CFile*> running;  // stream of each subroutine, innermost last
    std::vector<CFile*> released; // streams that are deleted once no subroutine runs from them
    std::map<const void*, StreamNames> streamNames;                               // key: the array
    std::map<std::string, std::shared_ptr<const std::string>, std::less<>> files; // null: no such file
    std::map<std::pair<const char*, std::size_t>, std::unique_ptr<ScriptIndex>> indexes;
};

} // namespace tgx
