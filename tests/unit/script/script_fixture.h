#pragma once

#include "platform/framework/datadir.h"
#include "platform/host/headless/headless_host.h"
#include "tgx/frame/mainwin.h"
#include "tgx/script/vocabulary.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

/// A keyword used as an argument.
struct Word {
    const char* keyword;
};

inline void append(std::string& bytes, int number)
{
    bytes += {'\3', static_cast<char>(number & 0xFF), static_cast<char>(number >> 8 & 0xFF)};
}
inline void append(std::string& bytes, const std::string& text)
{
    bytes += '\4' + text + '\0';
}
inline void append(std::string& bytes, Word word)
{
    bytes += static_cast<char>(tgx::statementByKeyword(word.keyword)->id);
}

/// Returns a compiled line.
template<class... Argument>
std::string line(const char* keyword, const Argument&... arguments)
{
    std::string bytes;
    append(bytes, Word{keyword});
    (append(bytes, arguments), ...);
    return bytes + '\7';
}
inline std::string wnd(const std::string& id)
{
    return line("WINDOW", id, 1, 2, 30, 40);
}
inline std::string block(const std::string& lines)
{
    return line("BEGIN") + lines + line("END");
}

inline std::string repeat(long times, const std::string& text)
{
    std::string out;
    while (times-- > 0)
        out += text;
    return out;
}

using Messages = std::vector<std::string>;

inline std::string lineError(int number, const std::string& script, const std::string& text = "")
{
    return std::string("Encountered an error on line ") + std::to_string(number) + " in " + script +
           "\nThe line is :\n\t" + text;
}

/// A main window whose scripts are in a temporary folder. Records the messages to the user.
class ScriptTest : public testing::Test {
protected:
    /// Makes the game's own windows, for the class name "GAME".
    struct GameWin : AMainWin {
        GameWin() : AMainWin(640, 480, 32) {}
        AWnd* createNewWindow(const CString& id, int x, int y, int w, int h,
                              const CString& className) override
        {
            classNames.push_back(className.str());
            if (onCreate)
                onCreate();
            return className == "GAME" ? new AWnd(AWnd::WND_PLAIN, id + "!", x, y, w, h) : nullptr;
        }
        using AMainWin::scriptWork;
        std::vector<std::string> classNames;
        std::function<void()> onCreate;
    };

    void SetUp() override
    {
        std::string folder = testing::TempDir() + "tgx-script-XXXXXX";
        ASSERT_NE(mkdtemp(folder.data()), nullptr);
        directory = folder;
        std::filesystem::create_directory(directory / "UIG");
        setDataDirectory(folder);
        auto host = std::make_unique<HeadlessHost>();
        host->onMessage = [this](const CString& text) { messages.push_back(text.str()); };
        displayhost::use(std::move(host));
        app = std::make_unique<AControlsApp>();
        newWindow();
    }
    void TearDown() override
    {
        window.reset();
        app.reset();
        displayhost::use(nullptr);
        std::filesystem::remove_all(directory);
    }
    void newWindow()
    {
        window.reset();
        app->mainWin = nullptr; // windows use it while they are constructed
        window = std::make_unique<GameWin>();
        app->mainWin = window.get();
        messages.clear();
    }

    void file(const std::string& name, const std::string& bytes)
    {
        std::ofstream(directory / "UIG" / name, std::ios::binary) << bytes;
    }
    AWnd* read(const char* name, const char* toWindow = "", int finalRead = 0)
    {
        return window->readScriptFile(name, nullptr, 0, toWindow, finalRead);
    }
    AWnd* runScript(const std::string& bytes)
    {
        file("t.tgx", bytes);
        return read("t.tgx");
    }
    /// Returns the ids below from, or below the root, as in "A(B C) D".
    std::string tree(AWnd* from = nullptr)
    {
        AWnd* top = from ? from : window->getScreenList();
        std::string out;
        for (int i = 0; AWnd* child = top->getWndFromIndex(i, ""); ++i) {
            const std::string below = tree(child);
            out += (i ? " " : "") + child->getID().str() +
                   (below.empty() ? below : std::string("(") + below + ")");
        }
        return out;
    }
    AWnd* get(const char* id) { return window->getWnd(id, 1); }
    /// The messages, separated by commas; of those that a line of t.tgx failed only its number.
    std::string failures() const
    {
        std::string all;
        for (const std::string& message : messages) {
            int number = 0;
            std::sscanf(message.c_str(), "Encountered an error on line %d", &number);
            const bool isLine = message == lineError(number, "t.tgx");
            all += (all.empty() ? "" : ", ") + (isLine ? std::to_string(number) : message);
        }
        return all;
    }

    std::filesystem::path directory;
    std::unique_ptr<AControlsApp> app;
    std::unique_ptr<GameWin> window;
    Messages messages;
};
