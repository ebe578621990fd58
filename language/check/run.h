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

namespace tgx::script_check {

/// The script lines that made and changed a window.
struct WndLines {
    LineRef made;                         // the line that made the window, or the first POINTER to it
    LineRef text;                         // the last line that set its text
    LineRef bitmap;                       // the last line that set its bitmap
    LineRef border;                       // the last BORDER
    LineRef failed;                       // the last line in it that failed, for a top-level window
    std::vector<LineRef> attributes = {}; // lines that acted on it, in order, including those that failed
};

/// Lets the toolkit read the scripts, as a game would, and records its messages and the windows that it
/// makes.
class Reading {
public:
    struct Options {
        int width, height; // of the screen, in pixels
        int fonts;         // number of fonts that the game adds before those of the main script
        bool hasData;      // whether there is a data directory
        long lines;        // maximum number of lines that reading a window may execute
        long long work;    // maximum work of reading a window, see AMainWin
    };

    /// The given scripts take precedence over those of the data directory.
    Reading(const std::vector<Script*>& scripts, const ScriptSet& set, const Options& options,
            Findings& findings);
    ~Reading();
    Reading(const Reading&) = delete;
    Reading& operator=(const Reading&) = delete;

    /// Reads the windows of script into an empty tree. Keeps the fonts of previous reads, unless the script
    /// adds its own.
    void read(Script& script);

    AMainWin& window();
    /// Returns whether the window is of one of the game's own classes. Its look and contents are unknown.
    bool isGameWindow(const AWnd* wnd) const { return gameWindows.contains(wnd); }
    /// Returns the lines of a window, or null if no line made it.
    const WndLines* linesOf(const AWnd* wnd) const;
    /// Returns whether the font's widths are those that the game will show.
    bool isKnownFont(const bmpfont* font) const;
    /// Returns whether a POINTER shows the window.
    bool isPointedTo(const AWnd* wnd) const { return pointedTo.contains(wnd); }
    /// Returns whether a tab list that failed names, or may name, the window.
    bool isNamedStop(const AWnd& wnd) const;

    /// Returns whether a subroutine has ended early at a line that a class of the game may accept, so that
    /// the windows and lists of its later lines are missing.
    bool lacksLines() const { return endedEarly; }

private:
    class Window;
    friend class Window;

    void openWindow();
    void readWhole(Script& script);
    void readWindows(Script& script);
    void readOnce(Script& script, const std::string& toWindow, long long work);
    void handleMessage(const CString& message);
    void handleLine(const ExecutedLine& executed);
    void recordLine(const ExecutedLine& executed, AWnd* target, LineRef at, const Statement& statement);
    void explainFailure(const ExecutedLine& executed, AWnd* target, LineRef at, const Statement& statement);
    void explainWrongWindow(const ExecutedLine& executed, AWnd& target, LineRef at,
                            const Statement& statement);
    void explainGoto(const ExecutedLine& executed, LineRef at);
    void explainMissingWindow(const ExecutedLine& executed, AWnd& target, LineRef at);
    void explainPointer(LineRef at);
    void checkMessages(LineRef at, bool hasFailed);
    LineRef lineOf(const ExecutedLine& executed) const;
    bool actsAsMain(const Script& script) const;
    bool containsGameWindow(AWnd& wnd) const;

    const std::vector<Script*>& scripts;
    const ScriptSet& set;
    Options options;
    Findings& findings;
    Script* main = nullptr;    // the main script, or null
    bool hasAllScripts = true; // no script is broken
    bool knowsAllFonts = true; // all fonts that the scripts add are known
    std::unique_ptr<displayhost> hostBefore;
    std::unique_ptr<EmbeddedResource> mainResource;
    std::unique_ptr<AControlsApp> app;
    std::unique_ptr<Window> win;
    std::unordered_map<const AWnd*, WndLines> lines;
    std::unordered_set<const AWnd*> gameWindows;
    std::unordered_set<const AWnd*> pointedTo;
    std::unordered_set<const AWnd*> namedStops;
    std::unordered_set<std::string> laterStops; // ids in a tab list of windows that are made after it
    std::unordered_set<const bmpfont*> unknownFonts;
    std::vector<CString> messages; // since the previous line
    int fontCount = 0;             // after the previous line
    const AWnd* top = nullptr;     // the top-level window that is being made; it may have been deleted
    LineRef lastLine;
    bool ranTooLong = false;
    bool endedEarly = false;
};

} // namespace tgx::script_check
