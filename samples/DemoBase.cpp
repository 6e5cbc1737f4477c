#include "samples/DemoBase.h"

#include "samples/Terrain.h"

#include <QtGlobal>

#include <algorithm>
#include <array>

namespace demo {

namespace {

constexpr std::array<DemoBase, 4> kStations{{
    {"BASE01", {-350, 620}, 1.735},
    {"BASE02", {1980, 4240}, 1.812},
    {"BASE03", {4310, 1180}, 1.690},
    {"BASE04", {-280, 3410}, 1.748},
}};

} // namespace

double stationHeight(const DemoBase& station)
{
    return groundHeight(station.place) + station.mastM;
}

const DemoBase& nearestStation(const LocalPlace& place)
{
    return *std::min_element(kStations.begin(), kStations.end(),
                             [&](const DemoBase& a, const DemoBase& b) {
                                 return distance(a.place, place) < distance(b.place, place);
                             });
}

const DemoBase& baseStation(std::string_view id)
{
    const auto* const found =
        std::find_if(kStations.begin(), kStations.end(),
                     [&](const DemoBase& station) { return station.id == id; });
    Q_ASSERT(found != kStations.end());
    return *found;
}

} // namespace demo
