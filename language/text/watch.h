#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace script_text {

/// Tells whether files have changed since they were first looked at: written, replaced, removed or come.
class WatchedFiles {
public:
    /// Looks at them now.
    explicit WatchedFiles(const std::vector<std::string>& paths);
    /// Looks at one more now.
    void add(const std::string& path);
    bool haveChanged() const;

private:
    struct State {
        std::filesystem::file_time_type time; // the smallest one when there is no file
        std::uintmax_t size;

        bool operator==(const State&) const = default;
    };
    static State stateOf(const std::string& path);

    std::vector<std::pair<std::string, State>> files;
};

} // namespace script_text
