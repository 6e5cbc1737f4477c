#include "samples/BaseStation.h"

#include <algorithm>
#include <array>

namespace demo {

namespace {

// The last is the town's.
constexpr std::array<BaseStation, 4> kStations{{
    {"BASE01", {-350, 620}, 1.735},
    {"BASE02", {1980, 4240}, 1.812},
    {"BASE03", {4310, 1180}, 1.690},
    {kTownStation, {-9600, -7900}, 4.250},
}};

} // namespace

const BaseStation& nearestStation(const GridPlace& place)
{
    return *std::min_element(kStations.begin(), kStations.end() - 1,
                             [&](const BaseStation& a, const BaseStation& b) {
                                 return distance(a.place, place) < distance(b.place, place);
                             });
}

const BaseStation& baseStation(std::string_view id)
{
    return *std::find_if(kStations.begin(), kStations.end() - 1,
                         [&](const BaseStation& station) { return station.id == id; });
}

} // namespace demo
