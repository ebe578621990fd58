#include "player/script_lines.h"

#include "platform/framework/datadir.h"
#include "player/files.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <sstream>

namespace fs = std::filesystem;

namespace tgx {

namespace {

/// "" without one, and for one that is older than the script.
std::string readMap(const std::string& file)
{
    const std::optional<std::string> script = findDataFile("UIG\\" + file);
    const std::optional<std::string> map = findDataFile("UIG\\" + file + ".map");
    std::error_code failure;
    if (!script || !map || fs::last_write_time(*map, failure) < fs::last_write_time(*script, failure))
        return "";
    return readWhole(*map).value_or("");
}

} // namespace

ScriptLines::ScriptLines(std::string_view map)
{
    std::istringstream entries{std::string(map)};
    for (std::string entry; std::getline(entries, entry);) {
        std::istringstream fields(entry);
        unsigned offset = 0;
        int number = 0;
        std::string file;
        if (!(fields >> offset >> number) || fields.get() != ' ' || !std::getline(fields, file) ||
            (!lines.empty() && offset < lines.back().offset)) {
            lines.clear();
            return;
        }
        lines.push_back({offset, file + ':' + std::to_string(number)});
    }
}

std::string ScriptLines::placeOf(unsigned offset) const
{
    const auto next = std::upper_bound(lines.begin(), lines.end(), offset,
                                       [](unsigned at, const Line& each) { return at < each.offset; });
    return next == lines.begin() ? "" : std::prev(next)->place;
}

const ScriptLines& ScriptLinesOnDisk::of(const std::string& file)
{
    const auto found = known.find(file);
    return found != known.end() ? found->second
                                : known.emplace(file, ScriptLines(readMap(file))).first->second;
}

} // namespace tgx
