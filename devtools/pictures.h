#pragma once

#include <filesystem>
#include <map>
#include <string>

/// Tells whether a picture of the data directory has been written, has come or gone since the last look.
class WatchedPictures {
public:
    /// Looks. Always false the first time.
    bool haveChanged();

private:
    using Times = std::map<std::string, std::filesystem::file_time_type>; // by path
    static Times look();

    Times known;
    bool hasLooked = false;
};
