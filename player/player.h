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
class MessagePlaces;
class ScriptLinesOnDisk;
namespace CLI {
class App;
}

/// What a run plays, and how.
struct PlayOptions {
    std::string dataDirectory; // scripts lie in its UIG/
    std::string script;        // name below UIG
    std::string eventsFile;    // "-" is stdin; empty: 60 frames, then the picture screen.png
    std::string outDirectory;  // files that the events write go below it; empty: the working directory
    int width = 640;           // pixels
    int height = 480;
    int frameMs = 41;          // that timeGetTime moves on by before each frame
    bool update = false;       // expected files that are missing or differ are written
    bool logInput = false;     // each transition tells on err what it reached
    bool messagesFail = false; // a message that no line expected is a failure
};

/// Makes the game's main window. Called once the headless host, the clock and pApp stand.
using MainWinFactory = std::function<std::unique_ptr<AMainWin>(int width, int height, int bitDepth)>;

/// WrongLine: a line was wrong, could not be carried out, or expected what was not so.
enum class PlayStatus { Done = 0, WrongLine = 1, WrongCall = 2 };

/// Plays an interface without a window and without a clock: the same files and the same events give the same
/// bytes, on every machine. There is one at a time: it takes the host, the clock, the data directory and pApp
/// into use and gives them back.
class TGX_PLAYER_API Player {
public:
    /// Values of calls, and files called "-", go to out; messages to err. Not owned. A factory that is null
    /// makes an AMainWin.
    Player(const PlayOptions& options, const MainWinFactory& factory, std::ostream& out, std::ostream& err);
    ~Player();
    Player(const Player&) = delete;
    Player& operator=(const Player&) = delete;

    /// Constructs the main window, starts it and reads the script. Raises std::runtime_error when there is no
    /// data directory.
    void start();
    /// Carries out one line of events. The reason why it is wrong, could not be carried out or expected what
    /// was not so; nothing when all went well.
    std::optional<std::string> runLine(std::string_view line, int number = 0);
    /// The whole run. Reasons go to err as FILE:LINE: reason.
    PlayStatus run();

    /// Null before start.
    AMainWin* getMainWin() const { return mainWin.get(); }
    /// True once the exit has completed: no line may follow.
    bool hasEnded() const;
    const PlayOptions& getOptions() const { return options; }

    // For events.

    /// count input ticks. An invalid argument comes out of it as the exception.
    void tick(int count);
    /// count frames, the clock moved on before each. An invalid argument ends its frame and is reported once
    /// in a run.
    void draw(int count);
    /// A tick and a frame.
    void frame();
    PlayedInput& getInput() { return input; }
    /// Whether input waits that no tick has taken.
    bool hasWaitingInput() const;
    /// Plays the events of another file, named from the one that is played. Raises WrongLine for the first of
    /// its lines that is wrong, or when it cannot be read.
    void include(const std::string& name);
    /// Starts the interface anew, unless nothing has happened to it yet. Raises WrongLine in an included
    /// file.
    void beginTest();
    /// Reports what the present line expected and did not find. The run goes on.
    void fail(const std::string& reason);
    /// Tells something about the present line on err.
    void note(const std::string& text) const;
    /// Takes the first message of that text out of those that no line has expected yet; those that are there,
    /// if it is not among them.
    std::optional<std::string> takeMessage(const std::string& text);
    /// Path of a file that lies beside the events file of the present line.
    std::string pathBesideEvents(const std::string& name) const;

    /// Writes a file below the output directory, whole or not at all; "-" is out.
    void writeFile(const std::string& name, std::string_view contents);
    /// The path of a file below the output directory, its folder made if need be. Raises WrongLine for a name
    /// that leads out.
    std::string outputPath(const std::string& name) const;
    HeadlessHost& getHost() const { return *host; }
    std::ostream& getOut() const { return out; }

    /// What MsgBox and the platform's message box show; unless it is set, err gets a line "message: TEXT".
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
    void tellOnce(const std::string& note);
    void report(const std::string& where, const std::string& reason);
    PlayStatus runWithoutEvents();

    PlayOptions options;
    MainWinFactory factory;
    std::ostream& out;
    std::ostream& err;
    HeadlessHost* host = nullptr; // owned by displayhost's use
    struct Surroundings;
    std::unique_ptr<Surroundings> before; // what was in use before
    std::unique_ptr<AControlsApp> app;
    std::unique_ptr<AMainWin> mainWin;
    std::unique_ptr<MessagePlaces> messagePlaces; // of mainWin
    std::unique_ptr<ScriptLinesOnDisk> scriptLines;
    std::set<std::string> notes; // that have been told
    bool invalidArgumentShown = false;
    PlayedInput input;
    std::vector<Source> sources;   // the main file first, then what it includes
    std::vector<Message> messages; // shown in this part, and not expected by any line yet
    bool isFresh = false;          // no line has been carried out since the start
    int failures = 0;
    std::string lastFailure;
};

/// Enters the arguments of `tgx play` into app. options must outlive the parse.
TGX_PLAYER_API void addPlayArguments(CLI::App& app, PlayOptions& options);

/// Enters --size WxH, which sets the two. They must outlive the parse.
TGX_PLAYER_API void addSizeOption(CLI::App& app, int& width, int& height);

/// A run on stdout and stderr. Exit status for main.
TGX_PLAYER_API int play(const PlayOptions& options, const MainWinFactory& factory);

/// A game's own player is a main of one line; it plays, and with "test" as its first word it tests:
///
///     int main(int argc, char** argv) { return playMain(argc, argv, makeMyMainWin); }
TGX_PLAYER_API int playMain(int argc, char** argv, const MainWinFactory& factory);
