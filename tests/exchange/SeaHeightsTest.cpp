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

struct Run
{
    std::vector<double> heights;
    std::string told;
};

/// What comes out for points of elevation 50 and altitudes 100, 101, ...; the latitude of the point
/// number 1030 is none.
Run run(std::size_t count, ICoordTransform* transform, int geoidValid)
{
    Run result{std::vector<double>(count, -1), {}};
    basalt::Dictionary parameters;
    dic_set_value(parameters, "geoid_valid", geoidValid);
    dic_set_value(parameters, "geoid_file", "/no where/网格 %1.gtx");
    const auto summary = recomputeSeaHeights(transform, parameters, [&](const auto& visit) {
        for (std::size_t i = 0; i < count; ++i)
            visit({i == 1030 ? 95.0 : 40.0, 117, 100 + double(i), 50, &result.heights[i]});
    });
    result.told = summary.toText().toStdString();
    return result;
}

} // namespace

TEST(SeaHeights, AreElevationsWithoutAGeoidOrASystem)
{
    const std::vector<double> elevations(3, 50);
    CoordWjl service;
    service.initialise(lifting(), lifting());
    EXPECT_EQ(run(3, &service, 0).heights, elevations);
    EXPECT_EQ(run(3, nullptr, 1).heights, elevations);
    service.initialise(basalt::Dictionary(), basalt::Dictionary());
    EXPECT_EQ(run(3, &service, 1).heights, elevations);
}

TEST(SeaHeights, ComeFromTheTransformationOfTheAltitude)
{
    CoordWjl service;
    service.initialise(basalt::Dictionary(), lifting()); // direction 2 is the one that counts
    const std::vector<double> heights = run(2500, &service, 1).heights; // more than two blocks
    for (std::size_t i = 0; i < heights.size(); ++i)
        EXPECT_NEAR(heights[i], i == 1030 ? 50 : 107 + double(i), 1e-9) << i;
}

TEST(SeaHeights, ThatAreElevationsAreToldInNumbersWithTheGeoidFile)
{
    CoordWjl service;
    service.initialise(basalt::Dictionary(), lifting());
    EXPECT_EQ(run(1000, &service, 1).told, "");
    EXPECT_EQ(run(2500, &service, 0).told, "") << "no geoid is in use";
    const std::string told = run(2500, &service, 1).told;
    EXPECT_NE(told.find("1 of 2500. Geoid file \"/no where/网格 %1.gtx\": The position"),
              std::string::npos)
        << told;
    service.initialise(basalt::Dictionary(), basalt::Dictionary());
    EXPECT_NE(run(0, &service, 1).told.find("0 of 0. "), std::string::npos) << "before a result";
}
