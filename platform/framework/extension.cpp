#include "platform/framework/extension.h"

#include <algorithm>
#include <vector>

namespace {

/// Never destroyed, because libraries leave the list while static objects are destroyed, in any order.
std::vector<AFX_EXTENSION_MODULE*>& loadedModules()
{
    static auto& modules = *new std::vector<AFX_EXTENSION_MODULE*>;
    return modules;
}

} // namespace

int AfxInitExtensionModule(AFX_EXTENSION_MODULE& module)
{
    if (module.initialised)
        return 0;
    module.initialised = 1;
    return 1;
}

void AfxTermExtensionModule(AFX_EXTENSION_MODULE& module)
{
    module.initialised = 0;
}

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& entered) : module(&entered)
{
    loadedModules().push_back(module);
}

CDynLinkLibrary::~CDynLinkLibrary()
{
    auto& modules = loadedModules();
    modules.erase(std::find(modules.begin(), modules.end(), module));
}

int CDynLinkLibrary::count()
{
    return static_cast<int>(loadedModules().size());
}
