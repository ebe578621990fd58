#include "language/text/watch.h"

#include <algorithm>

namespace tgx::script_text {

WatchedFiles::WatchedFiles(const std::vector<std::string>& paths)
{
    for (const std::string& path : paths)
        add(path);
}

void WatchedFiles::add(const std::string& path)
{
    files.emplace_back(path, stateOf(path));
}

bool WatchedFiles::haveChanged() const
{
    return std::any_of(files.begin(), files.end(),
                       [](const auto& file) { return !(stateOf(file.first) == file.second); });
}

WatchedFiles::State WatchedFiles::stateOf(const std::string& path)
{
    std::error_code failure;
    const auto time = std::filesystem::last_write_time(path, failure);
    const auto size = failure ? 0 : std::filesystem::file_size(path, failure);
    if (failure)
        return {std::filesystem::file_time_type::min(), 0};
    return {time, size};
}

} // namespace tgx::script_text
