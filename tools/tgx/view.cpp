#include "devtools/devtools.h"
#include "language/text/text_files.h"
#include "platform/display/host.h"
#include "platform/framework/datadir.h"
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

namespace {

constexpr int usageError = 2;
constexpr int colourBits = 32;

volatile std::sig_atomic_t isInterrupted = 0; // the window closes, and a recording is written

struct ViewOptions {
    std::string data;
    std::string script;
    std::string screen;
    int width = 640;
    int height = 480;
    bool isFullScreen = false;
    DevToolsOptions devTools;
};

/// A game without classes or reactions of its own, which opens on the screen that was asked for.
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

    /// A game's own classes are not here: what is of one shows as a plain window.
    AWnd* createNewWindow(const CString& id, int x, int y, int w, int h, const CString& className) override
    {
        if (isAddingScreen)
            return nullptr;
        if (unknownClasses.insert(className.str()).second)
            std::cerr << "tgx view: the class " << className.str()
                      << " is the game's; its windows show as plain ones\n";
        return new AWnd(AWnd::WND_PLAIN, id, x, y, w, h);
    }
    AScreen* addScreen(const CString& id, int x, int y, int w, int h) override
    {
        const Swapped adding(isAddingScreen, true);
        return AMainWin::addScreen(id, x, y, w, h);
    }

private:
    /// Later the devtools bring the screens back.
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

/// "menu", "menu.tgs" and "menu.tgx" name the same script.
std::string scriptName(const std::string& given)
{
    const fs::path path(given);
    const std::string ending = script_text::lowered(path.extension().string());
    return ending == ".tgs" || ending.empty() ? fs::path(path).replace_extension(".tgx").string() : given;
}

/// Compiled or as text, right or wrong.
bool scriptExists(const ViewOptions& options)
{
    std::vector<std::string> folders = options.devTools.sources;
    folders.push_back(script_text::scriptFolder());
    for (const std::string& folder : folders)
        for (const std::string& file : script_text::filesIn(folder, ".tgs"))
            if (script_text::lowered(script_text::compiledName(file)) == script_text::lowered(options.script))
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
            return refuse("no folder " + folder + "; --source names a folder with scripts in text form");
    if (!scriptExists(options))
        return refuse("no script " + options.script + " in " + (fs::path(options.data) / "UIG").string() +
                      ", neither compiled nor as text; --source names another folder with its text");

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
        app.add_subcommand("view", "Show an interface in a window, and show it anew when a file changes");
    auto options = std::make_shared<ViewOptions>();
    command->add_option("DIR", options->data, "Data directory; scripts lie in its UIG/")
        ->required()
        ->check(CLI::ExistingDirectory);
    command
        ->add_option("--script", options->script,
                     "Main script, by its name below UIG/: its text form where there is one, else compiled")
        ->required()
        ->type_name("NAME");
    command->add_option("--screen", options->screen, "Screen to open on [the first one]")->type_name("ID");
    command
        ->add_option("--source", options->devTools.sources,
                     "Folder with scripts in text form, besides UIG/; may be given more than once")
        ->type_name("FOLDER");
    addSizeOption(*command, options->width, options->height);
    command->add_flag("--full-screen", options->isFullScreen, "Begin on the whole screen");
    command
        ->add_option("--out", options->devTools.outDirectory, "Where pictures and recordings are written [.]")
        ->type_name("DIR2");
    command->footer(
        "Keys: F12 inspector, once more for all windows; F11 whole screen; F10 picture; F9 begins and ends a "
        "recording; F8 lists the screens and goes to one.\n"
        "What has been chosen and typed stays when a script or a picture is read again.");
    command->callback([options] {
        if (int status = view(*options))
            throw CLI::RuntimeError(status);
    });
}
