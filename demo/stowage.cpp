#include "demo/stowage.h"

#include <algorithm>
#include <cstdlib>

namespace {

enum Goods { Slate, Coal, Timber, Wool, Casks, Glass, Mail, Piano };

constexpr int heavy = 30;      // tons; too much on top of fragile goods
constexpr int tolerated = 100; // tolerated imbalance, tons times places

bool isFragile(int kind)
{
    return kind == Glass || kind == Piano;
}

bool takesSmell(int kind)
{
    return kind == Wool || kind == Mail;
}

bool areNeighbours(int a, int b)
{
    const int across = std::abs(a % Stowage::placesInRow - b % Stowage::placesInRow);
    const int down = std::abs(a / Stowage::placesInRow - b / Stowage::placesInRow);
    return across + down == 1;
}

std::string asPlaced(const Stowage::Lot& lot)
{
    return lot.name + " in " + Stowage::placeName(lot.place);
}

} // namespace

std::string Stowage::placeName(int place)
{
    return {static_cast<char>('A' + place / placesInRow), static_cast<char>('1' + place % placesInRow)};
}

int Stowage::findPlace(const std::string& name)
{
    for (int place = 0; place < places; ++place)
        if (placeName(place) == name)
            return place;
    return ashore;
}

int Stowage::lotAt(int place) const
{
    const auto found =
        std::find_if(lots.begin(), lots.end(), [=](const Lot& lot) { return lot.place == place; });
    return place == ashore || found == lots.end() ? nothing : static_cast<int>(found - lots.begin());
}

int Stowage::firstFreePlace() const
{
    for (int row = rows - 1; row >= 0; --row)
        for (int place = row * placesInRow; place < (row + 1) * placesInRow; ++place)
            if (lotAt(place) == nothing)
                return place;
    return ashore;
}

int Stowage::tonsIn(int firstPlace, int endPlace) const
{
    int tons = 0;
    for (const Lot& lot : lots)
        if (lot.place >= firstPlace && lot.place < endPlace)
            tons += lot.tons;
    return tons;
}

int Stowage::lotsStowed() const
{
    return static_cast<int>(
        std::count_if(lots.begin(), lots.end(), [](const Lot& lot) { return lot.place != ashore; }));
}

std::vector<std::string> Stowage::remarks() const
{
    if (lotsStowed() == 0)
        return {"She is empty. I can recommend nothing under it, and nothing on top."};
    std::vector<std::string> found;
    if (tonsIn(0, placesInRow) > tonsIn(places - placesInRow, places))
        found.push_back(
            "There is more below the deck than on her bottom. She will roll like a cask, and so shall we.");
    for (const Lot& lot : lots) {
        if (lot.place < placesInRow || !isFragile(lot.kind))
            continue;
        const int above = lotAt(lot.place - placesInRow);
        if (above != nothing && at(above).tons >= heavy)
            found.push_back(asPlaced(lot) + ", and on top of it: " + asPlaced(at(above)) +
                            ". Somebody else may open that hatch.");
    }
    for (const Lot& fish : lots)
        for (const Lot& lot : lots)
            if (fish.kind == Casks && fish.place != ashore && lot.place != ashore && takesSmell(lot.kind) &&
                areNeighbours(fish.place, lot.place))
                found.push_back(asPlaced(fish) + ", and right beside it: " + asPlaced(lot) +
                                ". They will know us by it.");
    int balance = 0;
    for (const Lot& lot : lots)
        if (lot.place != ashore)
            balance += lot.tons * (lot.place % placesInRow - placesInRow / 2);
    if (std::abs(balance) > tolerated)
        found.push_back(balance > 0 ? "She is down by the head. We shall be sailing uphill all the way."
                                    : "She is down by the stern. The cook will have to steer, he sees more.");
    if (found.empty())
        found.push_back("I have looked twice, and there is nothing to say. I shall go and look again.");
    return found;
}
