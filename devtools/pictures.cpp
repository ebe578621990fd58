#include "devtools/pictures.h"

#include "platform/framework/datadir.h"
#include "tgx/frame/mainwin.h"

#include <optional>

namespace fs = std::filesystem;

namespace tgx {

namespace {

fs::file_time_type timeOf(const std::string& name)
{
    const std::optional<std::string> path = findDataFile(name);
    std::error_code failure;
    const fs::file_time_type time = path ? fs::last_write_time(*path, failure) : fs::file_time_type::min();
    return failure ? fs::file_time_type::min() : time;
}

} // namespace

bool WatchedPictures::haveChanged(const AMainWin& game)
{
    bool isChanged = false;
    for (const std::string& name : game.getPictureNames()) {
        const fs::file_time_type now = timeOf(name);
        const auto [entry, isNew] = known.emplace(name, now);
        isChanged = isChanged || (!isNew && entry->second != now);
        entry->second = now;
    }
    return isChanged;
}

} // namespace tgx
