#pragma once

#include "language/check/findings.h"
#include "language/check/script.h"
#include "platform/framework/cstring.h"
#include "tgx/frame/mainwin.h"
#include "tgx/script/observer.h"

#include <memory>
#include <unordered_map>
#include <unordered_set>

class displayhost;

namespace script_check {

/// The lines that made a window what it is.
struct WndLines {
    LineRef made;   // or brought it in first
    LineRef text;   // the last one that set its text
    LineRef bitmap; // and its bitmap
    LineRef border;
    LineRef failed;                       // the last one in it that failed, of a window at the top level
    std::vector<LineRef> attributes = {}; // that acted on it, in order, those that failed too
};

/// What the game would see of the scripts: the toolkit reads them, and what it says and makes is written
/// down.
class Reading {
public:
    struct Options {
        int width, height; // of the screen
        int fonts;         // that the game adds before the main script's
        bool hasData;      // there is a data directory
        long lines;        // that a read may execute
        long long work;
    };

    /// The scripts are put in front of those of the data directory.
    Reading(const std::vector<Script*>& scripts, const ScriptSet& set, const Options& options,
            Findings& findings);
    ~Reading();
    Reading(const Reading&) = delete;
    Reading& operator=(const Reading&) = delete;

    /// Reads the windows of script into an empty tree. Fonts stay from read to read, unless the script has
    /// its own.
    void read(Script& script);

    AMainWin& window();
    /// Of the game's own class: how it looks and what it holds, nobody knows.
    bool isOfGame(const AWnd* wnd) const { return ofGame.contains(wnd); }
    /// Null for a window that no line has made.
    const WndLines* linesOf(const AWnd* wnd) const;
    /// Whether its widths are those of the font that the game will show.
    bool isKnownFont(const bmpfont* font) const;
    /// Windows that a POINTER has brought in anywhere.
    bool isPointedTo(const AWnd* wnd) const { return pointedTo.contains(wnd); }
    /// Named by a tab list that failed, at this name or another.
    bool isNamedStop(const AWnd& wnd) const;

    /// A subroutine has ended at a line that the game's class may well take: windows and lists that come
    /// behind it are missing.
    bool lacksLines() const { return isCutShort; }

private:
    class Window;
    friend class Window;

    void openWindow();
    void readWhole(Script& script);
    void readWindows(Script& script);
    void readOnce(Script& script, const std::string& toWindow, long long work);
    void hear(const CString& message);
    void see(const ExecutedLine& executed);
    void note(const ExecutedLine& executed, AWnd* target, LineRef at, const Statement& statement);
    void explainFailure(const ExecutedLine& executed, AWnd* target, LineRef at, const Statement& statement);
    void explainMissingWindow(const ExecutedLine& executed, AWnd& target, LineRef at);
    void explainPointer(LineRef at);
    void checkMessages(LineRef at, bool hasFailed);
    LineRef lineOf(const ExecutedLine& executed) const;
    bool isMainOfItsOwn(const Script& script) const;
    bool holdsWindowOfGame(AWnd& wnd) const;

    const std::vector<Script*>& scripts;
    const ScriptSet& set;
    Options options;
    Findings& findings;
    Script* main = nullptr;    // the main script, if it is there
    bool hasAllScripts = true; // none is broken
    bool knowsAllFonts = true; // that the scripts add
    std::unique_ptr<displayhost> hostBefore;
    std::unique_ptr<EmbeddedResource> mainResource;
    std::unique_ptr<AControlsApp> app;
    std::unique_ptr<Window> win;
    std::unordered_map<const AWnd*, WndLines> lines;
    std::unordered_set<const AWnd*> ofGame;
    std::unordered_set<const AWnd*> pointedTo;
    std::unordered_set<const AWnd*> namedStops;
    std::unordered_set<std::string> laterStops; // ids of windows that come behind the list
    std::unordered_set<const bmpfont*> unknownFonts;
    std::vector<CString> messages; // since the line before
    int fontCount = 0;             // behind the line before
    const AWnd* top = nullptr;     // the window at the top level that is being made; it may be gone
    LineRef lastLine;
    bool ranTooLong = false;
    bool isCutShort = false;
};

} // namespace script_check
