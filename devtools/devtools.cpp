#include "devtools/devtools.h"

#include "devtools/workbench.h"

DevTools::DevTools(AMainWin& game, DevToolsOptions options)
    : workbench(std::make_unique<Workbench>(game, std::move(options)))
{}

DevTools::~DevTools() = default;
