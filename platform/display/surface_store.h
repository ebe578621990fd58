#pragma once

#include "platform/display/surface.h"

#include <algorithm>
#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

/// Owns the surfaces of a window and finds the pixels for their files. Surfaces with the same file name share
/// pixels.
class SurfaceStore {
public:
    SurfaceStore() = default;
    ~SurfaceStore();
    SurfaceStore(const SurfaceStore&) = delete;
    SurfaceStore& operator=(const SurfaceStore&) = delete;

    /// Returns the unmodified pixels of a file. They are decoded only once while any surface uses them, and
    /// only once in a frame. Returns null if the file cannot be loaded. A file that failed is not decoded
    /// again until it changes or is reloaded.
    ImageRef load(std::string_view name);
    /// Like load, but always decodes the file, except that reloadAll decodes each name only once.
    ImageRef reload(std::string_view name);
    void reloadAll();
    /// Returns all names that were looked up on the disk, whether found or not.
    const std::set<std::string, std::less<>>& getRequestedNames() const { return requested; }
    /// Marks a surface as no longer shown, so that its pixels may be dropped if it was loaded from a file.
    void letGo(surface* wanted);
    /// Drops the pixels of files that are not shown: those loaded in this frame that no surface uses, and
    /// those of surfaces passed to letGo.
    void makeRoom();
    void endFrame() { makeRoom(); }

    /// Makes a surface, owned by the store.
    surface* make(ddwin* window);
    bool owns(const surface* wanted) const { return surfaces.count(const_cast<surface*>(wanted)) > 0; }
    /// Deletes a surface. Returns false if the store does not own it.
    bool release(surface* released);
    int count() const { return static_cast<int>(surfaces.size()); }

private:
    struct TextHash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
    };
    /// The state of a file when it failed to load.
    struct Failure {
        std::int64_t size = 0;
        std::int64_t modified[2] = {}; // seconds and nanoseconds
        std::int64_t changed[2] = {};
        long long room = 0; // number of pixels that it needs; 0 for a broken file

        bool isOf(const Failure& file) const
        {
            return size == file.size && std::equal(modified, modified + 2, file.modified) &&
                   std::equal(changed, changed + 2, file.changed);
        }
    };
    ImageRef decode(std::string_view name);
    void remember(std::string_view name, const ImageRef& image);

    std::unordered_set<surface*> surfaces;
    std::unordered_set<surface*> unused; // passed to letGo since the frame began
    std::unordered_map<std::string, std::weak_ptr<Image>, TextHash, std::equal_to<>> images;
    std::unordered_map<std::string, Failure> failures; // key: path
    std::set<std::string, std::less<>> requested;
    std::vector<ImageRef> loadedThisFrame; // kept until the frame ends, so that none is decoded twice
    std::size_t pruneAt = 64;              // number of entries at which expired ones are removed
    bool isReloadingAll = false;
};
