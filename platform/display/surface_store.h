#pragma once

#include "platform/display/surface.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

/// The surfaces of a window, and the pixels of the files that they hold: surfaces of one name share them.
class SurfaceStore {
public:
    SurfaceStore() = default;
    ~SurfaceStore();
    SurfaceStore(const SurfaceStore&) = delete;
    SurfaceStore& operator=(const SurfaceStore&) = delete;

    /// Pixels of a file, as they are in the file. Decoded once while any surface holds them. Null when it
    /// cannot be loaded.
    ImageRef load(std::string_view name);
    /// The same, decoded anew, once for each name while reloadAll runs.
    ImageRef loadAnew(std::string_view name);
    void reloadAll();

    /// A new surface, owned here.
    surface* make(ddwin* window);
    bool owns(const surface* wanted) const { return surfaces.count(const_cast<surface*>(wanted)) > 0; }
    /// False for one that is not owned here.
    bool release(surface* released);
    int count() const { return static_cast<int>(surfaces.size()); }

private:
    struct TextHash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
    };
    void remember(std::string_view name, const ImageRef& image);

    std::unordered_set<surface*> surfaces;
    std::unordered_map<std::string, std::weak_ptr<Image>, TextHash, std::equal_to<>> images;
    std::size_t pruneAt = 64; // entries at which those whose image is gone are looked for
    bool isReloadingAll = false;
};
