#pragma once

#include "player/player.h"
#include "tests/unit/support/trace.h"
#include "tgx/frame/mainwin.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <sstream>

/// Makes a window for createNewWindow.
using WndMaker = std::function<AWnd*(const CString& id, int x, int y, int w, int h)>;

/// A main window that lets a test look in. Each tick ends with a check of what must always hold.
class TestMainWin : public AMainWin {
public:
    using AMainWin::AMainWin;

    void drawscreen() override;
    void OnMouseAction() override;
    AWnd* createNewWindow(const CString& id, int x, int y, int w, int h, const CString& className) override;
    AScreen* addScreen(const CString& id, int x, int y, int w, int h) override;

    std::map<std::string, WndMaker> classes; // by class name; for a screen the id
    std::vector<std::string> clicks;         // ids that a screen has seen a click on, in order
    std::vector<std::string> popupClicks;    // the same, of what handlePopupAction has told a screen
    std::function<void()> duringFrame;       // called behind each frame's drawing
    std::optional<AWnd*>
        drawnAlone; // if set, the next frame paints this window, or nothing, and moves nothing

    void setTargetFPS(int fps) { targetFPS = fps; }
    void setWipeEnabled(int enabled) { wipeEnabled = enabled; }

private:
    bool addsScreen = false;
};

/// A data directory of its own, a main window on a headless host, virtual time, and the events language. A
/// message that the test has not announced fails it, as does one that was announced and did not come.
class TgxTest : public testing::Test {
protected:
    TgxTest();
    ~TgxTest() override;

    // The world before the start.

    /// Writes a file of the data directory, its folders too.
    void write(const std::string& name, const std::string& bytes);
    /// Writes UIG/name, assembled from text: a statement a line, keywords, numbers and "strings". Whatever
    /// can be written down becomes bytes, right or wrong.
    void script(const std::string& text, const std::string& name = "script.tgx");
    /// A 24-bit BMP. colour: 0xRRGGBB.
    void bitmap(const std::string& name, int width, int height, unsigned colour = 0x808080);
    /// Frames side by side, 1 pixel between them, each with a grey of its own.
    void strip(const std::string& name, int frameWidth, int frameHeight, int frames);
    /// Starts the main window on script.tgx. Given a text, that is assembled first.
    void start(const std::string& scriptText = "", int width = 640, int height = 480);
    /// Announces a message; each announcement answers for one.
    void expectMessage(const std::string& text) { announced.push_back(text); }

    // The run.

    /// Carries out events lines; each must succeed.
    template<class... Lines>
    void play(const Lines&... lines)
    {
        (playLine(lines), ...);
    }
    /// Why this events line is wrong; "" when it is not.
    std::string playWrong(const std::string& line);
    /// Value of `call LINE`, as JSON.
    std::string call(const std::string& line);
    TestMainWin& win() { return *mainWin; }
    Player& getPlayer() { return *player; }
    /// Fails the test when there is none.
    AWnd* wnd(const std::string& id);
    AScreen* screen(const std::string& id) { return static_cast<AScreen*>(wnd(id)); }
    /// Id of the deepest usable window of the active screen or popup under the point, or null.
    const char* idAt(int x, int y);
    /// Ids clicked since the last question.
    std::vector<std::string> clicks() { return std::exchange(win().clicks, {}); }
    /// What the window and those in it would draw now.
    Trace drawn(const std::string& id);
    /// What the last frame drew.
    Trace frameDrawn();
    /// Gives a font of the table widths that a test can reckon with. Its pictures stay as they are.
    void measureFont(int index, int advance = 10, int lineHeight = 16, int charHeight = 12);
    std::string readOutput(const std::string& name);

    const std::vector<std::string> none;
    std::filesystem::path data; // the data directory
    std::filesystem::path outputs;
    PlayOptions options;
    std::ostringstream out; // values of calls
    std::ostringstream err;

private:
    void playLine(const std::string& line);
    void hear(const CString& message);

    std::vector<std::string> announced;
    std::unique_ptr<Player> player;
    TestMainWin* mainWin = nullptr; // owned by player
};

/// Bytes of a compiled script from its text form, as TgxTest::script.
std::string assembleScript(const std::string& text);
