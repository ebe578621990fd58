#pragma once

#include <string>
#include <vector>

/// The lots on the quay and in the hold. Places are numbered row by row from the deck down, and from aft to
/// forward in each row.
class Stowage {
public:
    static constexpr int placesInRow = 5;
    static constexpr int rows = 3;
    static constexpr int places = placesInRow * rows;
    static constexpr int ashore = -1;
    static constexpr int nothing = -1; // instead of a lot: none

    struct Lot {
        std::string name;
        int kind; // frame number in goods.png
        int tons;
        int place = ashore;
    };

    std::vector<Lot> lots;
    Lot& at(int lot) { return lots.at(static_cast<std::size_t>(lot)); }
    const Lot& at(int lot) const { return lots.at(static_cast<std::size_t>(lot)); }

    /// Returns the name of a place: "A1" is the aftermost place right below the deck.
    static std::string placeName(int place);
    /// Returns the place with that name, or ashore if there is none.
    static int findPlace(const std::string& name);

    /// Returns the lot in a place, or nothing.
    int lotAt(int place) const;
    /// Returns the first free place from the bottom up, or ashore if the hold is full.
    int firstFreePlace() const;
    int tonsIn(int firstPlace, int endPlace) const;
    int tonsStowed() const { return tonsIn(0, places); }
    int lotsStowed() const;
    /// Returns the mate's remarks about the stowage, the worst first.
    std::vector<std::string> remarks() const;
};
