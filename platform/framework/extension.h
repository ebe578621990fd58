#pragma once

#include "platform/export.h"

/// What a shared library tells the framework about itself while it is loaded.
struct AFX_EXTENSION_MODULE {
    int initialised = 0;
};

/// Registers the library that owns module. 1, or 0 when it is registered already: the load then fails.
TGX_PLATFORM_API int AfxInitExtensionModule(AFX_EXTENSION_MODULE& module);
/// Takes the registration back.
TGX_PLATFORM_API void AfxTermExtensionModule(AFX_EXTENSION_MODULE& module);

/// Enters an extension module into the framework's list for as long as the object lives.
class TGX_PLATFORM_API CDynLinkLibrary {
public:
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& module);
    ~CDynLinkLibrary();
    CDynLinkLibrary(const CDynLinkLibrary&) = delete;
    CDynLinkLibrary& operator=(const CDynLinkLibrary&) = delete;
    /// Number of modules in the list.
    static int count();

private:
    AFX_EXTENSION_MODULE* module;
};
