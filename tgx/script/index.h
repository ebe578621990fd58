#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

/// Finds the lines of one stream that are asked for by name, without reading what lies before them each time.
class ScriptIndex {
public:
    struct Place {
        std::size_t position; // bytes from the start of the stream
        int line;             // 1 for the first
    };

    /// keepAlive holds bytes, unless they are memory that outlives the index.
    ScriptIndex(std::string_view bytes, std::shared_ptr<const void> keepAlive);

    /// The line behind the first SUBROUTINE line of that name.
    std::optional<Place> subroutine(std::string_view name) { return find(subroutines, name); }
    /// The first line whose token 1 is that string.
    std::optional<Place> window(std::string_view name) { return find(windows, name); }

private:
    struct Entry {
        std::string_view name; // inside bytes
        Place place;
    };
    /// One look goes through the lines. Only who asks a second time pays for a sorted table.
    struct Names {
        bool ofSubroutines;
        bool asked = false;
        bool sorted = false;
        std::vector<Entry> entries = {};
    };

    std::optional<Place> find(Names& names, std::string_view name);
    template<class Visit>
    void forEachName(bool ofSubroutines, Visit visit) const;

    std::string_view bytes;
    std::shared_ptr<const void> keepAlive;
    Names subroutines{true};
    Names windows{false};
};
