#pragma once

#include <array>
#include <string_view>

/// Details of a vessel beyond its row in the fleet's table.
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

/// Returns the vessel with that name, or null if there is none.
const Vessel* findVessel(std::string_view name);
