#include "devtools/pictures.h"

#include "platform/system/datadir.h"

#include <algorithm>
#include <utility>

namespace fs = std::filesystem;

namespace {

/// Beyond it a folder is no data directory of a game, and would take too long to look through.
constexpr std::size_t mostFiles = 20'000;

bool isPicture(const fs::path& path)
{
    std::string ending = path.extension().string();
    std::transform(ending.begin(), ending.end(), ending.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; });
    return ending == ".bmp" || ending == ".png" || ending == ".jpg" || ending == ".jpeg" ||
           ending == ".gif" || ending == ".pcx";
}

} // namespace

WatchedPictures::Times WatchedPictures::look()
{
    Times times;
    std::error_code failure;
    std::size_t files = 0;
    fs::recursive_directory_iterator entry(dataDirectory(), failure);
    for (const fs::recursive_directory_iterator end; !failure && entry != end && files < mostFiles;
         entry.increment(failure), ++files) {
        std::error_code gone; // meanwhile
        if (!isPicture(entry->path()) || !entry->is_regular_file(gone))
            continue;
        const fs::file_time_type time = entry->last_write_time(gone);
        if (!gone)
            times.emplace(entry->path().string(), time);
    }
    return times;
}

bool WatchedPictures::haveChanged()
{
    Times now = look();
    const bool differs = hasLooked && now != known;
    hasLooked = true;
    known = std::move(now);
    return differs;
}
