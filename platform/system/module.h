#pragma once

#include "platform/export.h"

#include <cstddef>

/// A loaded module: the executable or a shared library.
using HINSTANCE = struct PlatformModule*;
using HRSRC = const struct PlatformResource*;
using HGLOBAL = const void*;

/// The executable, for a null name; null for any other.
TGX_PLATFORM_API HINSTANCE GetModuleHandleA(const char* name);

/// An integer resource name: the low 16 bits of id.
TGX_PLATFORM_API const char* MAKEINTRESOURCEA(unsigned id);
/// name is what MAKEINTRESOURCEA gives, or text. Null when the module has no such resource.
TGX_PLATFORM_API HRSRC FindResourceA(HINSTANCE module, const char* name, const char* type);
TGX_PLATFORM_API HGLOBAL LoadResource(HINSTANCE module, HRSRC resource);
/// The bytes, in place; they live as long as the module.
TGX_PLATFORM_API const void* LockResource(HGLOBAL loaded);
TGX_PLATFORM_API unsigned SizeofResource(HINSTANCE module, HRSRC resource);

/// Enters a resource into the executable for as long as the object lives. tgx_embed_scripts writes one of
/// these for each script. Not owned: bytes and type must outlive the object.
class TGX_PLATFORM_API EmbeddedResource {
public:
    EmbeddedResource(const char* type, unsigned id, const unsigned char* bytes, std::size_t size);
    ~EmbeddedResource();
    EmbeddedResource(const EmbeddedResource&) = delete;
    EmbeddedResource& operator=(const EmbeddedResource&) = delete;

private:
    const PlatformResource* entry;
};
