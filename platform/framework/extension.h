#pragma once

#include "platform/export.h"

/// Identifies a shared library to the framework while it is loaded.
struct AFX_EXTENSION_MODULE {
    int initialised = 0;
};

/// Registers the library that owns module. Returns 1, or 0 if it is already registered; loading then fails.
TGX_PLATFORM_API int AfxInitExtensionModule(AFX_EXTENSION_MODULE& module);
/// Removes the registration.
TGX_PLATFORM_API void AfxTermExtensionModule(AFX_EXTENSION_MODULE& module);

/// Keeps an extension module in the framework's list for the lifetime of the object.
class TGX_PLATFORM_API CDynLinkLibrary {
public:
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& module);
    ~CDynLinkLibrary();
    CDynLinkLibrary(const CDynLinkLibrary&) = delete;
    CDynLinkLibrary& operator=(const CDynLinkLibrary&) = delete;
    /// Returns the number of modules in the list.
    static int count();

private:
    AFX_EXTENSION_MODULE* module;
};
