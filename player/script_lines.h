#pragma once

#include "player/export.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tgx {

/// Where the lines of a compiled script come from.
class TGX_PLAYER_INTERNAL ScriptLines {
public:
    ScriptLines() = default; // not known
    /// map: as `tgx build --map` writes it, a line "OFFSET LINE FILE" for each line of the script. Of
    /// anything else nothing is known.
    explicit ScriptLines(std::string_view map);

    /// "menu.tgs:31" for the line that the byte at offset is in; "" when that is not known.
    std::string placeOf(unsigned offset) const;

private:
    struct Line {
        unsigned offset;
        std::string place; // FILE:LINE
    };
    std::vector<Line> lines; // in the order of offsets
};

/// Those of the scripts in the data directory that have a map beside them, "menu.tgx.map" for "menu.tgx",
/// which is not older.
class TGX_PLAYER_INTERNAL ScriptLinesOnDisk {
public:
    /// file: its name below UIG. Read when it is first asked for.
    const ScriptLines& of(const std::string& file);
    /// The files may have changed.
    void clear() { known.clear(); }

private:
    std::map<std::string, ScriptLines> known;
};

} // namespace tgx
