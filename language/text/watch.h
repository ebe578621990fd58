#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace tgx::script_text {

/// Detects files that have been written, replaced, removed or created since they were added.
class WatchedFiles {
public:
    /// Records the current state of the files.
    explicit WatchedFiles(const std::vector<std::string>& paths);
    /// Records the current state of one more file.
    void add(const std::string& path);
    bool haveChanged() const;

private:
    struct State {
        std::filesystem::file_time_type time; // the earliest possible time if there is no file
        std::uintmax_t size;

        bool operator==(const State&) const = default;
    };
    static State stateOf(const std::string& path);

    std::vector<std::pair<std::string, State>> files;
};

} // namespace tgx::script_text
