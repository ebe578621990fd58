#pragma once

#include <filesystem>
#include <map>
#include <string>

class AMainWin;

namespace tgx {

/// Notices when a picture that the game has requested is written, created or deleted.
class WatchedPictures {
public:
    /// Returns whether any picture has changed since the last call. One that was requested after it does not
    /// count.
    bool haveChanged(const AMainWin& game);

private:
    std::map<std::string, std::filesystem::file_time_type> known; // by name; min() if there is no file
};

} // namespace tgx
