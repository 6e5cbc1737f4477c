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

struct Survey
{
    explicit Survey(std::size_t count) : seaHeights(count, -1)
    {
        for (std::size_t i = 0; i < count; ++i)
            points.push_back({40, 117, 100 + double(i), 50, &seaHeights[i]});
    }

    void walk(const std::function<void(const SeaHeightPoint&)>& visit) const
    {
        for (const SeaHeightPoint& point : points)
            visit(point);
    }

    void recompute(ICoordTransform* transform, int geoidValid)
    {
        basalt::Dictionary parameters;
        dic_set_value(parameters, "geoid_valid", geoidValid);
        recomputeSeaHeights(transform, parameters, [this](const auto& visit) { walk(visit); });
    }

    std::vector<double> seaHeights;
    std::vector<SeaHeightPoint> points;
};

} // namespace

TEST(SeaHeights, AreElevationsWithoutAGeoid)
{
    CoordWjl service;
    service.initialise(lifting(), lifting());
    Survey survey(3);
    survey.recompute(&service, 0);
    EXPECT_EQ(survey.seaHeights, (std::vector<double>{50, 50, 50}));
}

TEST(SeaHeights, ComeFromTheTransformationOfTheAltitude)
{
    CoordWjl service;
    service.initialise(basalt::Dictionary(), lifting()); // direction 2 is the one that counts
    Survey survey(2500);                                 // more than two blocks
    survey.points[1030].latitudeDeg = 95;
    survey.recompute(&service, 1);
    for (std::size_t i = 0; i < survey.points.size(); ++i)
        EXPECT_NEAR(survey.seaHeights[i], i == 1030 ? 50 : 107 + double(i), 1e-9) << i;
}

TEST(SeaHeights, AreElevationsWhereTheSystemFails)
{
    CoordWjl service;
    service.initialise(basalt::Dictionary(), basalt::Dictionary());
    Survey survey(2);
    survey.recompute(&service, 1);
    EXPECT_EQ(survey.seaHeights, (std::vector<double>{50, 50}));
    survey.seaHeights = {-1, -1};
    survey.recompute(nullptr, 1);
    EXPECT_EQ(survey.seaHeights, (std::vector<double>{50, 50}));
}
