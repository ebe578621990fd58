#include "devtools/devtools.h"

#include "devtools/workbench.h"

namespace tgx {

DevTools::DevTools(AMainWin& game, DevToolsOptions options)
    : workbench(std::make_unique<Workbench>(game, std::move(options)))
{}

DevTools::~DevTools() = default;

} // namespace tgx
