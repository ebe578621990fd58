#include "platform/system/module.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <vector>

struct PlatformModule {};

struct PlatformResource {
    const char* type;
    std::uint16_t id;
    const unsigned char* bytes;
    std::size_t size;
};

namespace {

/// Made on first use and never destroyed, because static objects of the executable add and remove resources
/// in any order.
std::vector<const PlatformResource*>& resources()
{
    static auto& entries = *new std::vector<const PlatformResource*>;
    return entries;
}

PlatformModule executable;

// An integer name is a pointer whose value is the id. No text is in the first 64 KiB of memory.
bool isInteger(const char* name)
{
    return reinterpret_cast<std::uintptr_t>(name) <= 0xFFFF;
}

} // namespace

HINSTANCE GetModuleHandleA(const char* name)
{
    return name ? nullptr : &executable;
}

const char* MAKEINTRESOURCEA(unsigned id)
{
    return reinterpret_cast<const char*>(std::uintptr_t{id & 0xFFFF});
}

HRSRC FindResourceA(HINSTANCE module, const char* name, const char* type)
{
    // Only the executable has resources, and all of them have integer names.
    if (module != &executable || !type || !isInteger(name))
        return nullptr;
    const auto id = static_cast<std::uint16_t>(reinterpret_cast<std::uintptr_t>(name));
    for (const PlatformResource* entry : resources()) {
        if (entry->id == id && std::strcmp(entry->type, type) == 0)
            return entry;
    }
    return nullptr;
}

HGLOBAL LoadResource(HINSTANCE, HRSRC resource)
{
    return resource ? resource->bytes : nullptr;
}

const void* LockResource(HGLOBAL loaded)
{
    return loaded;
}

unsigned SizeofResource(HINSTANCE, HRSRC resource)
{
    return resource ? static_cast<unsigned>(resource->size) : 0;
}

EmbeddedResource::EmbeddedResource(const char* type, unsigned id, const unsigned char* bytes,
                                   std::size_t size)
    : entry(new PlatformResource{type, static_cast<std::uint16_t>(id), bytes, size})
{
    resources().push_back(entry);
}

EmbeddedResource::~EmbeddedResource()
{
    auto& entries = resources();
    entries.erase(std::find(entries.begin(), entries.end(), entry));
    delete entry;
}
