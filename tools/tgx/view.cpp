#include "devtools/devtools.h"
#include "platform/host/displayhost.h"
#include "platform/system/datadir.h"
#include "player/player.h"
#include "tgx/base/swapped.h"
#include "tgx/frame/mainwin.h"
#include "tools/tgx/commands.h"

#include <CLI/CLI.hpp>

#include <filesystem>
#include <iostream>
#include <memory>
#include <set>

namespace fs = std::filesystem;

namespace {

constexpr int wrongCall = 2;
constexpr int colourBits = 32;

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
        const CString wanted(options.screen);
        if (!hasOpened && !wanted.IsEmpty() && !(getActiveScreen() && getActiveScreen()->getID() == wanted))
            changeScreen(wanted, 1, mainScriptResource, CString(options.script));
        hasOpened = true;
        return 1;
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
    const ViewOptions& options;
    std::set<std::string> unknownClasses;
    bool isAddingScreen = false;
    bool hasOpened = false; // later the devtools bring the screens back
};

/// "menu", "menu.tgs" and "menu.tgx" name the same script.
std::string compiledName(const std::string& script)
{
    const fs::path path(script);
    const std::string ending = path.extension().string();
    return ending == ".tgs" || ending.empty() ? fs::path(path).replace_extension(".tgx").string() : script;
}

/// Compiled or as text, right or wrong.
bool isThere(const ViewOptions& options)
{
    const std::string text = fs::path(options.script).replace_extension(".tgs").string();
    for (const std::string& folder : options.devTools.sources)
        if (fs::exists(fs::path(folder) / text))
            return true;
    return findDataFile("UIG\\" + options.script) || findDataFile("UIG\\" + text);
}

int refuse(const std::string& why)
{
    std::cerr << "tgx view: " << why << '\n';
    return wrongCall;
}

int view(ViewOptions& options)
{
    options.script = compiledName(options.script);
    setDataDirectory(options.data);
    for (const std::string& folder : options.devTools.sources)
        if (!fs::is_directory(folder))
            return refuse("no folder " + folder + "; --source names a folder with scripts in text form");
    if (!isThere(options))
        return refuse("no script " + options.script + " in " + (fs::path(options.data) / "UIG").string() +
                      ", neither compiled nor as text; --source names another folder with its text");

    options.devTools.script = options.script;
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
        "recording.\n"
        "What has been chosen and typed stays when a script or a picture is read again.");
    command->callback([options] {
        if (int status = view(*options))
            throw CLI::RuntimeError(status);
    });
}
