#include "devtools/devtools.h"
#include "language/text/text_files.h"
#include "platform/display/host.h"
#include "platform/framework/datadir.h"
#include "platform/framework/text.h"
#include "player/player.h"
#include "tgx/base/swapped.h"
#include "tgx/frame/mainwin.h"
#include "tools/tgx/commands.h"

#include <CLI/CLI.hpp>

#include <csignal>
#include <filesystem>
#include <iostream>
#include <memory>
#include <set>

namespace fs = std::filesystem;

namespace tgx {

namespace {

constexpr int usageError = 2;
constexpr int colourBits = 32;

volatile std::sig_atomic_t isInterrupted = 0; // by a signal: closes the window, so that a recording is saved

struct ViewOptions {
    std::string data;
    std::string script;
    std::string screen;
    int width = 640;
    int height = 480;
    bool isFullScreen = false;
    DevToolsOptions devTools;
};

/// A game without classes or reactions of its own, which opens on the requested screen.
class ViewWindow : public AMainWin {
public:
    explicit ViewWindow(const ViewOptions& viewOptions)
        : AMainWin(viewOptions.width, viewOptions.height, colourBits), options(viewOptions)
    {
        fullScreen = options.isFullScreen;
        topMost = 0;
    }

    int startup() override
    {
        AMainWin::startup();
        readScriptFile(CString(options.script), GetModuleHandleA(nullptr), mainScriptResource, "", 1);
        if (!hasOpened && getActiveScreen())
            openRequestedScreen();
        return 1;
    }
    void drawscreen() override
    {
        if (isInterrupted)
            displayhost::current().closeRequested = true;
        AMainWin::drawscreen();
    }

    /// Makes a plain window, as the game's own classes are not available.
    AWnd* createNewWindow(const CString& id, int x, int y, int w, int h, const CString& className) override
    {
        if (isAddingScreen)
            return nullptr;
        if (unknownClasses.insert(className.str()).second)
            std::cerr << "tgx view: the class " << className.str()
                      << " belongs to the game; its windows are shown as plain windows\n";
        return new AWnd(AWnd::WND_PLAIN, id, x, y, w, h);
    }
    AScreen* addScreen(const CString& id, int x, int y, int w, int h) override
    {
        const Swapped adding(isAddingScreen, true);
        return AMainWin::addScreen(id, x, y, w, h);
    }

private:
    /// Opens the requested screen at the start. After that, the devtools restore the screens.
    void openRequestedScreen()
    {
        hasOpened = true;
        const CString requested(options.screen);
        if (requested.IsEmpty() || getActiveScreen()->getID() == requested)
            return;
        std::string others;
        for (int i = 0; i < getScreenList()->getWindowCount(); ++i) {
            const AWnd* screen = getWndFromIndex(i);
            if (screen->getWindowType() != AWnd::WND_SCREEN)
                continue;
            if (screen->getID() == requested) {
                changeScreen(requested, 1, mainScriptResource, CString(options.script));
                return;
            }
            others += ' ' + screen->getID().str();
        }
        const std::string text = "no screen \"" + options.screen + "\"; the script has" + others;
        std::cerr << "tgx view: " << text << '\n';
        displayhost::current().showMessage(CString(text));
    }

    const ViewOptions& options;
    std::set<std::string> unknownClasses;
    bool isAddingScreen = false;
    bool hasOpened = false;
};

/// Returns the name of the compiled script: "menu.tgx" for "menu", "menu.tgs" and "menu.tgx".
std::string scriptName(const std::string& given)
{
    const fs::path path(given);
    const std::string ending = lowercased(path.extension().string());
    return ending == ".tgs" || ending.empty() ? fs::path(path).replace_extension(".tgx").string() : given;
}

/// Returns whether the script exists, compiled or in text form, valid or not.
bool scriptExists(const ViewOptions& options)
{
    std::vector<std::string> folders = options.devTools.sources;
    folders.push_back(script_text::scriptFolder());
    for (const std::string& folder : folders)
        for (const std::string& file : script_text::filesIn(folder, ".tgs"))
            if (lowercased(script_text::compiledName(file)) == lowercased(options.script))
                return true;
    return findDataFile("UIG\\" + options.script).has_value();
}

int refuse(const std::string& why)
{
    std::cerr << "tgx view: " << why << '\n';
    return usageError;
}

int view(ViewOptions& options)
{
    options.script = scriptName(options.script);
    setDataDirectory(options.data);
    for (const std::string& folder : options.devTools.sources)
        if (std::error_code failure; !fs::is_directory(folder, failure))
            return refuse("no folder " + folder + "; --source expects a folder with scripts in text form");
    if (!scriptExists(options))
        return refuse("no script " + options.script + " in " + (fs::path(options.data) / "UIG").string() +
                      ", neither compiled nor as text; use --source for another folder with its text");

    options.devTools.script = options.script;
    for (const int each : {SIGINT, SIGTERM})
        std::signal(each, [](int) { isInterrupted = 1; });
    AControlsApp app; // without a program name: no settings are read or written
    ViewWindow window(options);
    const DevTools devTools(window, options.devTools);
    app.mainWin = &window;
    return app.Run();
}

} // namespace

void addView(CLI::App& app)
{
    CLI::App* command =
        app.add_subcommand("view", "Show an interface in a window, and reload it when a file changes");
    auto options = std::make_shared<ViewOptions>();
    command->add_option("DIR", options->data, "Data directory; scripts are in its folder UIG/")
        ->required()
        ->check(CLI::ExistingDirectory);
    command
        ->add_option(
            "--script", options->script,
            "Main script, by its name below UIG/; its text form if there is one, else the compiled script")
        ->required()
        ->type_name("NAME");
    command->add_option("--screen", options->screen, "Screen to open at the start; the first one by default")
        ->type_name("ID");
    command
        ->add_option("--source", options->devTools.sources,
                     "Additional folder with scripts in text form, besides UIG/; can be repeated")
        ->type_name("FOLDER");
    addSizeOption(*command, options->width, options->height);
    command->add_flag("--full-screen", options->isFullScreen, "Start in full screen");
    command
        ->add_option("--out", options->devTools.outDirectory,
                     "Folder for pictures and recordings; the working directory by default")
        ->type_name("DIR2");
    command->footer("Keys: F12 inspector, again for all windows; F11 full screen; F10 picture; F9 starts and "
                    "stops a recording; F8 lists the screens and opens one.\n"
                    "Selections and typed texts are kept when a script or a picture is reloaded.");
    command->callback([options] {
        if (int status = view(*options))
            throw CLI::RuntimeError(status);
    });
}

} // namespace tgx
