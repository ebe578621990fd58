#include "tgx/script/index.h"

#include "tgx/script/reader.h"
#include "tgx/script/vocabulary.h"

#include <algorithm>

namespace tgx {

namespace {

/// Receives the tokens of a line and keeps the first two.
struct LineHead {
    int count = 0;
    int id = 0;             // id of token 0
    bool hasString = false; // token 1 is a string
    std::string_view name;

    void number(short) { keyword(numberToken); }
    void string(std::string_view text)
    {
        if (count == 1) {
            hasString = true;
            name = text;
        }
        keyword(stringToken);
    }
    void keyword(unsigned char first)
    {
        if (count++ == 0)
            id = first;
    }
};

} // namespace

ScriptIndex::ScriptIndex(std::string_view stream, std::shared_ptr<const void> owner)
    : bytes(stream), keepAlive(std::move(owner))
{}

/// Calls visit(name, place) for each line of the kind until it returns false.
template<class Visit>
void ScriptIndex::forEachName(bool ofSubroutines, Visit visit) const
{
    const char* const begin = bytes.data();
    const char* const end = begin + bytes.size();
    int line = 0;
    for (const char* pos = begin;;) {
        LineHead head;
        const char* next = scanLine(pos, end, head);
        if (!next)
            return;
        ++line;
        // A SUBROUTINE line without a string has an empty name.
        const bool wanted = ofSubroutines ? head.id == keyword::subroutine : head.hasString;
        if (wanted) {
            const char* place = ofSubroutines ? next : pos;
            if (!visit(head.name, Place{static_cast<std::size_t>(place - begin), line + ofSubroutines}))
                return;
        }
        pos = next;
    }
}

std::optional<ScriptIndex::Place> ScriptIndex::find(Names& names, std::string_view name)
{
    if (!names.wasSearched) {
        names.wasSearched = true;
        std::optional<Place> found;
        forEachName(names.ofSubroutines, [&](std::string_view other, Place place) {
            if (other == name)
                found = place;
            return !found;
        });
        return found;
    }
    const auto byName = [](const Entry& a, const Entry& b) { return a.name < b.name; };
    if (!names.isSorted) {
        names.isSorted = true;
        forEachName(names.ofSubroutines, [&](std::string_view other, Place place) {
            names.entries.push_back({other, place});
            return true;
        });
        // Stable, so that the first of several lines with the same name is found.
        std::stable_sort(names.entries.begin(), names.entries.end(), byName);
    }
    const auto found = std::lower_bound(names.entries.begin(), names.entries.end(), Entry{name, {}}, byName);
    if (found == names.entries.end() || found->name != name)
        return std::nullopt;
    return found->place;
}

} // namespace tgx
