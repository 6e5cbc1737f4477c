#pragma once

#include "samples/Grid.h"

#include <string_view>

namespace demo {

/// One of the four reference stations around the survey.
struct BaseStation
{
    const char* id;
    GridPlace place;
    double mastM; ///< of the antenna above the ground
};

/// Of its antenna, above the ellipsoid, metres.
[[nodiscard]] double stationHeight(const BaseStation& station);

/// The one that is nearest to a place.
[[nodiscard]] const BaseStation& nearestStation(const GridPlace& place);

/// One of them by its id.
[[nodiscard]] const BaseStation& baseStation(std::string_view id);

} // namespace demo
