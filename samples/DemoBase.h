#pragma once

#include "samples/Grid.h"

#include <string_view>

namespace demo {

/// One of the four reference stations around the survey.
struct DemoBase
{
    const char* id;
    LocalPlace place;
    double mastM; ///< height of the antenna above the ground
};

/// The height of its antenna above the ellipsoid, metres.
[[nodiscard]] double stationHeight(const DemoBase& station);

/// The station nearest to a place.
[[nodiscard]] const DemoBase& nearestStation(const LocalPlace& place);

/// The station with this id, which must exist.
[[nodiscard]] const DemoBase& baseStation(std::string_view id);

} // namespace demo
