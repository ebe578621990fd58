#pragma once

#include "player/player.h"
#include "tests/unit/support/trace.h"
#include "tgx/frame/mainwin.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <sstream>

using namespace tgx; // in the tests alone

/// Makes a window for createNewWindow.
using WndMaker = std::function<AWnd*(const CString& id, int x, int y, int w, int h)>;

/// A main window that records clicks and lets a test control drawing. Checks the invariants after each tick.
class TestMainWin : public AMainWin {
public:
    using AMainWin::AMainWin;

    void drawscreen() override;
    void OnMouseAction() override;
    AWnd* createNewWindow(const CString& id, int x, int y, int w, int h, const CString& className) override;
    AScreen* addScreen(const CString& id, int x, int y, int w, int h) override;

    std::map<std::string, WndMaker> classes; // key: class name, or id for a screen
    template<class Wnd>
    void makes(const std::string& name)
    {
        classes[name] = [](const CString& id, int x, int y, int w, int h) { return new Wnd(id, x, y, w, h); };
    }
    std::vector<std::string> clicks;      // ids of clicked windows, as passed to a screen's handleMouseAction
    std::vector<std::string> popupClicks; // the same, as passed to handlePopupAction
    std::function<void()> duringFrame;    // called after each frame's drawing
    std::optional<AWnd*>
        drawnAlone; // if set, the next frame draws only this window, or nothing if null, without animation

    void setTargetFPS(int fps) { targetFPS = fps; }
    void setWipeEnabled(int enabled) { wipeEnabled = enabled; }

private:
    bool addsScreen = false;
};

std::string joined(const std::vector<std::string>& texts, const std::string& separator = " ");
std::vector<std::string> parts(const std::string& text, char separator = ' ');
/// Returns the text without any occurrence of part.
std::string without(std::string text, const std::string& part);
/// Fails the test if there is no such file.
std::string fileContents(const std::filesystem::path& path);

/// A test with its own data directory, a main window on a headless host, virtual time, and the events
/// language. It fails if a message was not expected with expectMessage, or if an expected message was not
/// reported.
class TgxTest : public testing::Test {
protected:
    TgxTest();
    ~TgxTest() override;

    // Before the start.

    /// Writes a file in the data directory and makes its folders.
    void write(const std::string& name, const std::string& bytes);
    /// Writes UIG/name, assembled from text: statements with keywords, numbers and "strings", in the form of
    /// scriptLines. Does not check the statements, so that tests can write wrong ones.
    void script(const std::string& text, const std::string& name = "script.tgx");
    /// Writes a 24-bit BMP. colour: 0xRRGGBB.
    void bitmap(const std::string& name, int width, int height, unsigned colour = 0x808080);
    /// Writes a strip: frames side by side, 1 pixel apart, each with a different grey.
    void strip(const std::string& name, int frameWidth, int frameHeight, int frames);
    /// Starts the main window with script.tgx, after assembling scriptText if it is not empty.
    void start(const std::string& scriptText = "", int width = 640, int height = 480);
    /// Expects one message with this text.
    void expectMessage(const std::string& text) { announced.push_back(text); }

    // After the start.

    /// Runs events lines; each must succeed.
    template<class... Lines>
    void play(const Lines&... lines)
    {
        (playLine(lines), ...);
    }
    /// Runs events lines separated by commas, each followed by the line step.
    void playEach(const std::string& lines, const std::string& step = "");
    /// Moves the pointer there, presses the left button and releases it, with a tick for each.
    void click(int x, int y);
    void click() { play("press left", "tick", "release left", "tick"); }
    /// Runs an events line and returns its error message, or "" if it succeeds.
    std::string playWrong(const std::string& line);
    /// Returns the value of `call LINE`, as JSON.
    std::string call(const std::string& line);
    TestMainWin& win() { return *mainWin; }
    Player& getPlayer() { return *player; }
    /// Returns the window with this id. Fails the test if there is none.
    AWnd* wnd(const std::string& id);
    AScreen* screen(const std::string& id) { return static_cast<AScreen*>(wnd(id)); }
    /// Returns the id of the deepest usable window of the active screen or popup at the point, or null.
    const char* idAt(int x, int y);
    /// Returns the ids clicked since the last call, as in "A B".
    std::string clicks() { return joined(std::exchange(win().clicks, {})); }
    std::string pointer() { return std::to_string(win().mouseX) + " " + std::to_string(win().mouseY); }
    /// Draws the window with its children and returns the trace.
    Trace drawn(const std::string& id);
    /// Returns the trace of the last frame.
    Trace frameDrawn();
    /// Sets simple metrics for a font of the table. Its glyphs stay the same.
    void measureFont(int index, int advance = 10, int lineHeight = 16, int charHeight = 12);
    std::string readOutput(const std::string& name);

    std::filesystem::path data; // the data directory
    std::filesystem::path outputs;
    PlayOptions options;
    std::ostringstream out; // output of calls
    std::ostringstream err;

private:
    void playLine(const std::string& line);
    void hear(const CString& message);

    std::vector<std::string> announced;
    std::unique_ptr<Player> player;
    TestMainWin* mainWin = nullptr; // owned by player
};

/// Returns the text with one statement per line, "strings", and no empty lines. In the short form a semicolon
/// ends a statement as a line end does, { and } are the lines BEGIN and END, and strings may have single
/// quotes.
std::string scriptLines(const std::string& text);

/// Returns the bytes of a compiled script, from text as for TgxTest::script.
std::string assembleScript(const std::string& text);
