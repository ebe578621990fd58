#pragma once

#include <array>
#include <string_view>

/// What the company knows of a vessel beyond its row in the fleet's table.
struct Vessel {
    static constexpr int burnsNone = -1;

    const char* name; // as in the table
    const char* picture;
    const char* kind;
    const char* master;
    const char* built;
    const char* signal;
    int tons;
    int condition;                                 // percent
    int coal;                                      // percent, or burnsNone
    std::array<std::array<const char*, 2>, 2> log; // date and entry
};

/// Null for a name that is no vessel's.
const Vessel* vesselCalled(std::string_view name);
