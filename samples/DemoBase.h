#pragma once

#include "samples/Grid.h"

#include <string_view>

namespace demo {

/// One of the four reference stations around the survey.
struct DemoBase
{
    const char* id;
    LocalPlace place;
    double mastM; ///< of the antenna above the ground
};

/// Of its antenna, above the ellipsoid, metres.
[[nodiscard]] double stationHeight(const DemoBase& station);

/// The one that is nearest to a place.
[[nodiscard]] const DemoBase& nearestStation(const LocalPlace& place);

/// One of them by its id.
[[nodiscard]] const DemoBase& baseStation(std::string_view id);

} // namespace demo
