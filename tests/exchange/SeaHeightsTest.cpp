#include "exchange/SeaHeights.h"

#include "basalt_utilities/Dictionary.h"
#include "lum_sdk/coords/CoordWjl.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

/// A system that lifts every height by 7 metres.
basalt::Dictionary lifting()
{
    basalt::Dictionary system;
    for (const auto& [key, value] :
         {std::pair("ellipsoid_a", 6378137.0), std::pair("ellipsoid_f", 298.257222101),
          std::pair("project_type", 1.0), std::pair("org_lon", 117.0),
          std::pair("correct_valid", 1.0), std::pair("correct_dh", 7.0)})
        dic_set_value(system, key, value);
    return system;
}

/// What comes out for points of elevation 50 and altitudes 100, 101, ...; the latitude of the point
/// number 1030 is none.
std::vector<double> heights(std::size_t count, ICoordTransform* transform, int geoidValid)
{
    std::vector<double> result(count, -1);
    basalt::Dictionary parameters;
    dic_set_value(parameters, "geoid_valid", geoidValid);
    recomputeSeaHeights(transform, parameters, [&](const auto& visit) {
        for (std::size_t i = 0; i < count; ++i)
            visit({i == 1030 ? 95.0 : 40.0, 117, 100 + double(i), 50, &result[i]});
    });
    return result;
}

} // namespace

TEST(SeaHeights, AreElevationsWithoutAGeoidOrASystem)
{
    const std::vector<double> elevations(3, 50);
    CoordWjl service;
    service.initialise(lifting(), lifting());
    EXPECT_EQ(heights(3, &service, 0), elevations);
    EXPECT_EQ(heights(3, nullptr, 1), elevations);
    service.initialise(basalt::Dictionary(), basalt::Dictionary());
    EXPECT_EQ(heights(3, &service, 1), elevations);
}

TEST(SeaHeights, ComeFromTheTransformationOfTheAltitude)
{
    CoordWjl service;
    service.initialise(basalt::Dictionary(), lifting()); // direction 2 is the one that counts
    const std::vector<double> all = heights(2500, &service, 1); // more than two blocks
    for (std::size_t i = 0; i < all.size(); ++i)
        EXPECT_NEAR(all[i], i == 1030 ? 50 : 107 + double(i), 1e-9) << i;
}
