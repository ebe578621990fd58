#include "platform/display/surface_store.h"

#include "platform/host/image_file.h"

#include <algorithm>

SurfaceStore::~SurfaceStore()
{
    for (surface* owned : surfaces)
        delete owned;
}

ImageRef SurfaceStore::load(std::string_view name)
{
    if (const auto found = images.find(name); found != images.end()) {
        // One that setPixel has written to is no longer what the file holds.
        if (ImageRef image = found->second.lock(); image && image->version == 0)
            return image;
    }
    ImageRef image = loadImageFile(name);
    if (image)
        remember(name, image);
    return image;
}

ImageRef SurfaceStore::loadAnew(std::string_view name)
{
    if (isReloadingAll)
        return load(name);
    ImageRef image = loadImageFile(name);
    if (image)
        remember(name, image);
    return image;
}

void SurfaceStore::remember(std::string_view name, const ImageRef& image)
{
    image->name = name;
    if (images.size() >= pruneAt) {
        std::erase_if(images, [](const auto& entry) { return entry.second.expired(); });
        pruneAt = std::max<std::size_t>(64, images.size() * 2);
    }
    images.insert_or_assign(std::string(name), image);
}

void SurfaceStore::reloadAll()
{
    images.clear();
    isReloadingAll = true;
    for (surface* owned : surfaces)
        if (*owned->filename)
            owned->reload();
    isReloadingAll = false;
}

surface* SurfaceStore::make(ddwin* window)
{
    auto* made = new surface(window);
    surfaces.insert(made);
    return made;
}

bool SurfaceStore::release(surface* released)
{
    if (surfaces.erase(released) == 0)
        return false;
    delete released;
    return true;
}
