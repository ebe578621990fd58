#include "platform/display/surface_store.h"

#include "platform/framework/datadir.h"
#include "platform/limits.h"
#include "platform/media/image_file.h"

#include <optional>
#include <sys/stat.h>

SurfaceStore::~SurfaceStore()
{
    for (surface* owned : surfaces)
        delete owned;
}

ImageRef SurfaceStore::load(std::string_view name)
{
    if (const auto found = images.find(name); found != images.end()) {
        // After setPixel, an image no longer matches the file.
        if (ImageRef image = found->second.lock(); image && image->version == 0)
            return image;
    }
    return decode(name);
}

ImageRef SurfaceStore::reload(std::string_view name)
{
    if (isReloadingAll)
        return load(name);
    failures.clear();
    return decode(name);
}

ImageRef SurfaceStore::decode(std::string_view name)
{
    constexpr std::size_t maxFailures = 4096;
    constexpr std::size_t maxRequested = 16'384; // limited, because scripts choose the names
    if (requested.size() < maxRequested)
        requested.emplace(name);
    const std::optional<std::string> path = findDataFile(name);
    struct stat status;
    if (!path || ::stat(path->c_str(), &status) != 0)
        return nullptr;
    Failure file{status.st_size,
                 {status.st_mtim.tv_sec, status.st_mtim.tv_nsec},
                 {status.st_ctim.tv_sec, status.st_ctim.tv_nsec}};
    const auto hasNoRoomFor = [](long long pixels) { return livePixelCount() + pixels > limits::livePixels; };
    if (const auto known = failures.find(*path); known != failures.end() && known->second.isOf(file)) {
        const long long room = known->second.room;
        if (room > 0 && hasNoRoomFor(room))
            makeRoom();
        if (room == 0 || hasNoRoomFor(room))
            return nullptr;
    }
    ImageRef image = loadImageFile(name, &file.room);
    if (!image && file.room > 0 && !(loadedThisFrame.empty() && unused.empty())) {
        makeRoom();
        image = loadImageFile(name, &file.room);
    }
    if (image) {
        remember(name, image);
        return image;
    }
    if (failures.size() >= maxFailures)
        failures.clear();
    failures.insert_or_assign(*path, file);
    return nullptr;
}

void SurfaceStore::remember(std::string_view name, const ImageRef& image)
{
    image->name = name;
    loadedThisFrame.push_back(image);
    if (images.size() >= pruneAt) {
        std::erase_if(images, [](const auto& entry) { return entry.second.expired(); });
        pruneAt = std::max<std::size_t>(64, images.size() * 2);
    }
    images.insert_or_assign(std::string(name), image);
}

void SurfaceStore::reloadAll()
{
    images.clear();
    failures.clear();
    loadedThisFrame.clear();
    isReloadingAll = true;
    for (surface* owned : surfaces)
        if (*owned->filename && !owned->isDropped)
            owned->reload();
    isReloadingAll = false;
}

void SurfaceStore::letGo(surface* wanted)
{
    if (owns(wanted) && wanted->isOfFile)
        unused.insert(wanted);
}

void SurfaceStore::makeRoom()
{
    loadedThisFrame.clear();
    for (surface* each : unused) {
        // Skips surfaces that are shown again, and modified ones, whose pixels the file does not have.
        if (each->refs || !each->image || !each->isOfFile || each->image->version != 0)
            continue;
        each->image.reset();
        each->isDropped = true;
    }
    unused.clear();
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
    unused.erase(released);
    delete released;
    return true;
}
