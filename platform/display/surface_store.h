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

/// The surfaces of a window, and the pixels of the files that they hold: surfaces of one name share them.
class SurfaceStore {
public:
    SurfaceStore() = default;
    ~SurfaceStore();
    SurfaceStore(const SurfaceStore&) = delete;
    SurfaceStore& operator=(const SurfaceStore&) = delete;

    /// Pixels of a file, as they are in the file. Decoded once while any surface holds them, and within a
    /// frame. Null when it cannot be loaded; a file that failed is not decoded again until it changes or is
    /// loaded anew.
    ImageRef load(std::string_view name);
    /// The same, decoded anew, once for each name while reloadAll runs.
    ImageRef loadAnew(std::string_view name);
    void reloadAll();
    /// The names that were looked for on the disk, found or not.
    const std::set<std::string, std::less<>>& getAskedNames() const { return asked; }
    /// What no one shows any more may drop its pixels, if a file holds them.
    void letGo(surface* wanted);
    /// Drops the pixels of files that no one shows: those that were loaded within the frame only, and those
    /// of surfaces that were let go of.
    void makeRoom();
    void endFrame() { makeRoom(); }

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
    /// A file as it was when it failed.
    struct Failure {
        std::int64_t size = 0;
        std::int64_t modified[2] = {}; // seconds and nanoseconds
        std::int64_t changed[2] = {};
        long long room = 0; // pixels that it needs; 0 for a broken file

        bool isOf(const Failure& file) const
        {
            return size == file.size && std::equal(modified, modified + 2, file.modified) &&
                   std::equal(changed, changed + 2, file.changed);
        }
    };
    ImageRef decode(std::string_view name);
    void remember(std::string_view name, const ImageRef& image);

    std::unordered_set<surface*> surfaces;
    std::unordered_set<surface*> unused; // let go of since the frame began
    std::unordered_map<std::string, std::weak_ptr<Image>, TextHash, std::equal_to<>> images;
    std::unordered_map<std::string, Failure> failures; // by path
    std::set<std::string, std::less<>> asked;
    std::vector<ImageRef> fresh; // loaded since the frame began: pictures named in turn are decoded once
    std::size_t pruneAt = 64;    // entries at which those whose image is gone are looked for
    bool isReloadingAll = false;
};
