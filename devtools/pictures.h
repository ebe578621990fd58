#pragma once

#include <filesystem>
#include <map>
#include <string>

class AMainWin;

/// Tells whether a picture that the game has asked for has been written, has come or gone since the last
/// look.
class WatchedPictures {
public:
    /// Looks. One that was not asked for at the last look has not changed.
    bool haveChanged(const AMainWin& game);

private:
    std::map<std::string, std::filesystem::file_time_type> known; // by name; the smallest time: there is none
};
