#include "tools/tgx/commands.h"

#include <CLI/CLI.hpp>

int main(int argc, char** argv)
{
    CLI::App app("The bench of whoever writes an interface: compiles its scripts, shows what is in them, "
                 "checks and plays them.",
                 "tgx");
    app.set_version_flag("--version", "tgx " TGX_VERSION);
    app.require_subcommand(0,
                           1); // that there is one is asked below: an unknown one gets the better message so
    app.footer("tgx COMMAND --help tells more about each.\n"
               "Exit status: 0 done, 1 the input is at fault, 2 the call is.");
    addBuild(app);
    addDump(app);
    addCheck(app);
    addPlay(app);
    addTest(app);
    addView(app);
    addReference(app);

    try {
        app.parse(argc, argv);
        if (!app.get_subcommands().empty())
            return 0;
        std::cerr << app.help();
        return 2;
    } catch (const CLI::RuntimeError& ended) {
        return ended.get_exit_code();
    } catch (const CLI::ParseError& ended) {
        return app.exit(ended) == 0 ? 0 : 2; // help and version end here too
    }
}
