#pragma once

#include "platform/export.h"

#include <cstddef>

/// A loaded module: the executable or a shared library.
using HINSTANCE = struct PlatformModule*;
using HRSRC = const struct PlatformResource*;
using HGLOBAL = const void*;

/// Returns the executable for a null name, and null for any other name.
TGX_PLATFORM_API HINSTANCE GetModuleHandleA(const char* name);

/// Returns an integer resource name: the low 16 bits of id.
TGX_PLATFORM_API const char* MAKEINTRESOURCEA(unsigned id);
/// Returns the resource, or null if the module does not have it. name is a result of MAKEINTRESOURCEA or
/// text.
TGX_PLATFORM_API HRSRC FindResourceA(HINSTANCE module, const char* name, const char* type);
TGX_PLATFORM_API HGLOBAL LoadResource(HINSTANCE module, HRSRC resource);
/// Returns the bytes, without copying. They stay valid as long as the module.
TGX_PLATFORM_API const void* LockResource(HGLOBAL loaded);
TGX_PLATFORM_API unsigned SizeofResource(HINSTANCE module, HRSRC resource);

/// Adds a resource to the executable for the lifetime of the object. tgx_embed_scripts generates one of these
/// for each script. Not owned: bytes and type must outlive the object.
class TGX_PLATFORM_API EmbeddedResource {
public:
    EmbeddedResource(const char* type, unsigned id, const unsigned char* bytes, std::size_t size);
    ~EmbeddedResource();
    EmbeddedResource(const EmbeddedResource&) = delete;
    EmbeddedResource& operator=(const EmbeddedResource&) = delete;

private:
    const PlatformResource* entry;
};
