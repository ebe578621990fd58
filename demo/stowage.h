#pragma once

#include <string>
#include <vector>

/// What is on the quay and what is in the hold: places row by row from the deck down, each row from aft to
/// forward.
class Stowage {
public:
    static constexpr int placesInRow = 5;
    static constexpr int rows = 3;
    static constexpr int places = placesInRow * rows;
    static constexpr int ashore = -1;
    static constexpr int nothing = -1; // in place of a lot

    struct Lot {
        std::string name;
        int kind; // frame of goods.png
        int tons;
        int place = ashore;
    };

    std::vector<Lot> lots;
    Lot& at(int lot) { return lots.at(static_cast<std::size_t>(lot)); }
    const Lot& at(int lot) const { return lots.at(static_cast<std::size_t>(lot)); }

    /// "A1" is the aftermost place right below the deck.
    static std::string placeName(int place);
    /// ashore for a name that no place has.
    static int placeCalled(const std::string& name);

    /// The lot in a place, or nothing.
    int lotAt(int place) const;
    /// From the bottom up, or ashore when the hold is full.
    int firstFreePlace() const;
    int tonsIn(int firstPlace, int endPlace) const;
    int tonsStowed() const { return tonsIn(0, places); }
    int lotsStowed() const;
    /// What the mate thinks of it, the worst first.
    std::vector<std::string> remarks() const;
};
