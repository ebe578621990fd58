#include "tgx/frame/app.h"

#include "platform/display/host.h"
#include "platform/framework/extension.h"
#include "tgx/frame/mainwin.h"

#include <optional>
#include <stdexcept>

int gInterfaceSound = 1;

namespace {

/// Registers the toolkit as an extension module of the framework while its library is loaded.
class LibraryLoad {
public:
    LibraryLoad()
    {
        if (!AfxInitExtensionModule(module))
            throw std::runtime_error("the toolkit is loaded already");
        library.emplace(module);
    }
    ~LibraryLoad()
    {
        library.reset();
        AfxTermExtensionModule(module);
    }

private:
    AFX_EXTENSION_MODULE module;
    std::optional<CDynLinkLibrary> library;
};
const LibraryLoad libraryLoad;

} // namespace

AControlsApp::AControlsApp(const CString& program, const CString& company, const CString& versionText)
    : programName(program), companyName(company), version(versionText)
{
    pApp = this;
}

AControlsApp::~AControlsApp()
{
    if (pApp == this)
        pApp = nullptr;
}

int AControlsApp::Run()
{
    return mainWin ? runMainLoop(*mainWin, [this] { mainWin->onCloseRequest(); }) : 1;
}

tgx::Stage* tgx::stage()
{
    return getMainWin();
}
