#pragma once

#include "samples/Grid.h"

#include <string_view>

namespace demo {

/// A reference station of the survey.
struct BaseStation
{
    const char* id;
    GridPlace place;
    double mastM; ///< of the antenna above the ground
};

/// A fixed point in the next town, farther off than results may be from their station.
inline constexpr const char* kTownStation = "BASE04";

/// The one of the three on the survey's ground that is nearest.
[[nodiscard]] const BaseStation& nearestStation(const GridPlace& place);

/// One of the four by its id.
[[nodiscard]] const BaseStation& baseStation(std::string_view id);

} // namespace demo
