#pragma once

#include "player/export.h"
#include "player/played_input.h"

#include <functional>
#include <iosfwd>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

class AControlsApp;
class AMainWin;
class CString;
class HeadlessHost;
namespace CLI {
class App;
}

namespace tgx {

class MessagePlaces;
class ScriptLinesOnDisk;

/// What a run plays, and how.
struct PlayOptions {
    std::string dataDirectory; // scripts are in its UIG/
    std::string script;        // name below UIG
    std::string eventsFile;    // "-" is stdin; empty: 60 frames, then the picture screen.png
    std::string outDirectory;  // files that the events write go below it; empty: the working directory
    int width = 640;           // pixels
    int height = 480;
    int frameMs = 41;          // milliseconds by which timeGetTime advances before each frame
    bool update = false;       // write expected files that are missing or differ
    bool logInput = false;     // report on err what each transition reached
    bool messagesFail = false; // a message that no line expected is a failure
};

/// Makes the game's main window. Called after the headless host, the clock and pApp are set up.
using MainWinFactory = std::function<std::unique_ptr<AMainWin>(int width, int height, int bitDepth)>;

/// The result of a run. WrongLine: a line was wrong, could not be carried out, or expected something that did
/// not hold.
enum class PlayStatus { Done = 0, WrongLine = 1, WrongCall = 2 };

/// Plays an interface without a window and without a clock: the same files and the same events give the same
/// bytes on every machine. Only one may exist at a time: it replaces the host, the clock, the data directory
/// and pApp, and its destructor restores them.
class TGX_PLAYER_API Player {
public:
    /// Writes values of calls, and files called "-", to out, and messages to err. Does not own the streams. A
    /// null factory makes an AMainWin.
    Player(const PlayOptions& options, const MainWinFactory& factory, std::ostream& out, std::ostream& err);
    ~Player();
    Player(const Player&) = delete;
    Player& operator=(const Player&) = delete;

    /// Constructs the main window, starts it and reads the script. Raises std::runtime_error if there is no
    /// data directory.
    void start();
    /// Carries out one line of events. Returns why it is wrong, could not be carried out or expected
    /// something that did not hold; nothing on success.
    std::optional<std::string> runLine(std::string_view line, int number = 0);
    /// Plays the whole events file. Writes what went wrong to err as FILE:LINE: reason.
    PlayStatus run();

    /// Null before start.
    AMainWin* getMainWin() const { return mainWin.get(); }
    /// Returns true once the exit has completed; no further line may be run.
    bool hasEnded() const;
    const PlayOptions& getOptions() const { return options; }

    // For events.

    /// Runs count input ticks. Throws the framework's exception for an invalid argument.
    void tick(int count);
    /// Runs count frames and advances the clock before each. An invalid argument ends its frame and is
    /// reported once in a run.
    void draw(int count);
    /// Runs a tick and a frame.
    void frame();
    PlayedInput& getInput() { return input; }
    /// Returns whether there is input that no tick has taken yet.
    bool hasWaitingInput() const;
    /// Plays the events of another file, whose name is relative to the present one. Raises WrongLine for its
    /// first wrong line, or if it cannot be read.
    void include(const std::string& name);
    /// Restarts the interface, unless nothing has happened to it yet. Raises WrongLine in an included file.
    void beginTest();
    /// Reports a failed expectation of the present line. The run continues.
    void fail(const std::string& reason);
    /// Writes a remark about the present line to err.
    void note(const std::string& text) const;
    /// Removes the first message with that text from those that no line has expected yet. Returns nothing if
    /// there is one, else a list of the remaining messages.
    std::optional<std::string> takeMessage(const std::string& text);
    /// Returns the path of a file whose name is relative to the events file of the present line.
    std::string pathBesideEvents(const std::string& name) const;

    /// Writes a file below the output directory, whole or not at all; "-" means the stream out.
    void writeFile(const std::string& name, std::string_view contents);
    /// Returns the path of a file below the output directory and creates its folder. Raises WrongLine for a
    /// name that leads out of it.
    std::string outputPath(const std::string& name) const;
    HeadlessHost& getHost() const { return *host; }
    std::ostream& getOut() const { return out; }

    /// Called with the text of each MsgBox and platform message box. If it is not set, err gets a line
    /// "message: TEXT".
    std::function<void(const CString& text)> onMessage;

private:
    /// An events file that is being played.
    struct Source {
        std::string name;
        int line; // 0 before the first
    };
    struct Message {
        std::string text;
        std::string place;
        std::string scriptPlace; // FILE:LINE of the script's text; "" when that is not known
        std::string cause;
    };
    void open();
    void shut();
    void showMessage(const CString& text, const std::string& cause);
    std::string logOfNextTick();
    void carryOut(std::string_view line, int number);
    void playLines(std::istream& events, const std::string& name, bool isInteractive);
    bool isPassedOver(std::string_view event, bool abandoned) const;
    void endPart();
    std::string place() const;
    std::string scriptPlaceOf(const CString& message);
    void explain(const Message& message);
    void noteOnce(const std::string& note);
    void report(const std::string& where, const std::string& reason);
    PlayStatus runWithoutEvents();

    PlayOptions options;
    MainWinFactory factory;
    std::ostream& out;
    std::ostream& err;
    HeadlessHost* host = nullptr; // owned by displayhost's use
    struct Surroundings;
    std::unique_ptr<Surroundings> before; // the host and data directory to restore
    std::unique_ptr<AControlsApp> app;
    std::unique_ptr<AMainWin> mainWin;
    std::unique_ptr<MessagePlaces> messagePlaces; // of mainWin
    std::unique_ptr<ScriptLinesOnDisk> scriptLines;
    std::set<std::string> notes; // that have been told
    bool invalidArgumentShown = false;
    PlayedInput input;
    std::vector<Source> sources;   // the main file, then the files included from it
    std::vector<Message> messages; // shown in this part, and not expected by any line yet
    bool isFresh = false;          // no line has been carried out since the start
    int failures = 0;
    std::string lastFailure;
};

/// Adds the arguments of `tgx play` to app. options must outlive the parse.
TGX_PLAYER_API void addPlayArguments(CLI::App& app, PlayOptions& options);

/// Adds the option --size WxH, which sets width and height. They must outlive the parse.
TGX_PLAYER_API void addSizeOption(CLI::App& app, int& width, int& height);

/// Plays on stdout and stderr. Returns the exit status for main.
TGX_PLAYER_API int play(const PlayOptions& options, const MainWinFactory& factory);

/// The main function of a game's own player, which plays, or runs tests if its first argument is "test":
///
///     int main(int argc, char** argv) { return playMain(argc, argv, makeMyMainWin); }
TGX_PLAYER_API int playMain(int argc, char** argv, const MainWinFactory& factory);

} // namespace tgx
