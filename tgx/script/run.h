#pragma once

#include "platform/framework/carray.h"
#include "platform/framework/cfile.h"
#include "platform/limits.h"
#include "tgx/script/index.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

class AMainWin;
class AWnd;

/// What all reads inside one outermost read of a script share: the budget that bounds them, the bytes of the
/// files that they opened, the indexes of those, the streams that subroutines run from.
class ScriptRun {
public:
    /// Holds the main window's run; makes it for the outermost read and ends it with that.
    class Scope {
    public:
        /// script: the name that messages give.
        Scope(AMainWin& window, const CString& script);
        ~Scope();
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;
        ScriptRun& run() const { return *running; }

    private:
        AMainWin& window;
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

    explicit ScriptRun(const CString& script) : name(script) {}
    ~ScriptRun();

    // Budget. It is counted in lines; other work is weighed as so many lines that a run of short lines takes
    // about as long.

    /// False once the budget is used up, which is reported here: then every loop over lines ends.
    bool spend(long lines);
    bool isSpent() const { return linesLeft < 0; }
    /// A line of that many bytes.
    bool spendOnLine(std::size_t bytes) { return spend(1 + static_cast<long>(bytes / bytesPerLine)); }
    /// A walk over that many windows or streams.
    bool spendOnSearch(long steps) { return spend(steps / stepsPerLine); }
    bool spendOnWindowSearch() { return spendOnSearch(windowsMade); }
    void countWindow() { ++windowsMade; }

    bool canReadDeeper() const { return readsRunning < limits::readDepth; }
    bool canCallDeeper() const { return static_cast<int>(running.size()) < limits::subroutineDepth; }

    // Streams.

    /// The file below the script directory, open; null when there is none. The disk is asked once for each
    /// name.
    std::unique_ptr<CFile> open(const CString& file);
    ScriptIndex& indexOf(const CFile& stream);
    /// Closes and deletes stream, now or when no subroutine runs from it any more.
    void release(CFile* stream);

    // Windows that are shown in several places.

    /// Whether wnd may be shown in target too: the tree keeps no cycle, no more than limits::windowDepth
    /// levels, and shows no more windows than the budget has lines.
    bool mayShow(AWnd& root, AWnd& target, AWnd& wnd);
    /// Whether target may be given a new child. Costs a look at a flag until some window is shown twice.
    bool mayGrow(AWnd& root, AWnd& target) { return !sharesWindows || mayGrowShared(root, target); }
    void noteShared() { sharesWindows = true; }

private:
    static constexpr std::size_t bytesPerLine = 256;
    static constexpr long stepsPerLine = 256;
    static constexpr long linesPerFile = 32; // finding a name on the disk

    struct Places {
        long times;  // how often the window is shown
        int deepest; // levels below the root
    };
    Places placesOf(AWnd& root, AWnd& wnd);
    bool mayGrowShared(AWnd& root, AWnd& target);
    bool isRunning(const CFile* stream) const;

    CString name; // of the outermost script
    long linesLeft = limits::scriptLines;
    bool reported = false;
    long windowsMade = 0;
    int readsRunning = 0;
    bool sharesWindows = false;
    bool firstFile = true;
    std::vector<CFile*> running;  // one for each subroutine, innermost last
    std::vector<CFile*> released; // by the cache, while a subroutine runs from them
    std::map<std::string, std::shared_ptr<const std::string>, std::less<>>
        files; // null: there is no such file
    std::map<std::pair<const char*, std::size_t>, std::unique_ptr<ScriptIndex>> indexes;
};
