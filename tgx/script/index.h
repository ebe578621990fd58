#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace tgx {

/// Finds lines of one stream by name, without reading everything before them each time.
class ScriptIndex {
public:
    struct Place {
        std::size_t position; // bytes from the start of the stream
        int line;             // line number, from 1
    };

    /// keepAlive owns bytes, unless they are memory that outlives the index anyway.
    ScriptIndex(std::string_view bytes, std::shared_ptr<const void> keepAlive);

    /// Returns the line after the first SUBROUTINE line of that name.
    std::optional<Place> subroutine(std::string_view name) { return find(subroutines, name); }
    /// Returns the first line whose token 1 is that string.
    std::optional<Place> window(std::string_view name) { return find(windows, name); }

private:
    struct Entry {
        std::string_view name; // inside bytes
        Place place;
    };
    /// The names of one kind. The first search reads the lines; the second one builds a sorted table.
    struct Names {
        bool ofSubroutines;
        bool wasSearched = false;
        bool isSorted = false;
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

} // namespace tgx
