#include "lum_desktop_sdkx/coords/CoordSystemRows.h"

#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/KeyList.h"
#include "lum_sdk/CoordWjl.h"
#include "lum_sdk/Text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace {

basalt::Dictionary parameters(const char* list)
{
    basalt::Dictionary result;
    EXPECT_TRUE(csa_to_dictionary(result, list));
    return result;
}

std::string shownOf(const basalt::Dictionary& from)
{
    std::string result;
    auto rows = CoordSystemRows::visibilities(from);
    std::sort(rows.begin(), rows.end(), [](const auto& a, const auto& b) { return a.key < b.key; });
    for (const auto& [key, isShown] : rows) {
        if (isShown)
            result.append(result.empty() ? "" : " ").append(key.toStdString());
    }
    return result;
}

/// Grid position of a place in Texas, metres.
CoordTriple gridOf(const basalt::Dictionary& system)
{
    CoordWjl service;
    CoordTriple grid;
    EXPECT_EQ(service.initialise(system, system), 0);
    EXPECT_EQ(
        service.transform(2, 1, 2, 4, 29.5, -98.5, 120, &grid.first, &grid.second, &grid.third), 0);
    return grid;
}

} // namespace

struct ShownCase
{
    const char* name;
    const char* parameters;
    const char* shown;
};

class CoordRowsShown : public testing::TestWithParam<ShownCase>
{
};

TEST_P(CoordRowsShown, AreThoseThatCount)
{
    EXPECT_EQ(shownOf(parameters(GetParam().parameters)), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(
    CoordSystemRows, CoordRowsShown,
    testing::Values(
        ShownCase{"NothingSet", "", ""},
        ShownCase{"UnknownProjection", "project_type=99", "project_height"},
        ShownCase{"Utm", "project_type=2", "false_north org_lon project_height"},
        ShownCase{"Cassini", "project_type=9",
                  "factor false_east false_north org_lat org_lon project_height"},
        ShownCase{"Oblique", "project_type=5",
                  "factor false_east false_north lat1 lat2 lon1 lon2 org_lat org_lon p_r "
                  "parallel_1_lat project_height"},
        ShownCase{"PositionVector", "_7type=1", "_7dx _7dy _7dz _7ppm _7rx _7ry _7rz"},
        ShownCase{"AboutAPivot", "_7type=3", "_7dx _7dy _7dz _7ppm _7px _7py _7pz _7rx _7ry _7rz"},
        ShownCase{"PlaneShift", "_4valid=5,correct_valid=0", "_4dx _4dy _4r _4s _4x0 _4y0"},
        ShownCase{"HeightsAlone", "ver_valid=1,geoid_valid=1",
                  "geoid_file ver_h ver_x0 ver_x_slope ver_y0 ver_y_slope"}),
    [](const auto& test) { return test.param.name; });

struct EllipsoidCase
{
    const char* name;
    const char* parameters;
    const char* ellipsoid;
};

class EllipsoidName : public testing::TestWithParam<EllipsoidCase>
{
};

TEST_P(EllipsoidName, FollowsAxisAndFlattening)
{
    EXPECT_EQ(CoordSystemRows::ellipsoidName(parameters(GetParam().parameters)).toStdString(),
              GetParam().ellipsoid);
}

INSTANTIATE_TEST_SUITE_P(
    CoordSystemRows, EllipsoidName,
    testing::Values(
        EllipsoidCase{"Known", "ellipsoid_a=6378245,ellipsoid_f=298.3", "Krassowsky 1940"},
        EllipsoidCase{"FirstOfTwo", "ellipsoid_a=6378137,ellipsoid_f=298.257222101", "GRS 1980"},
        EllipsoidCase{"SecondOfTwoStays",
                      "ellipsoid_name=CGCS2000,ellipsoid_a=6378137,ellipsoid_f=298.257222101",
                      "CGCS2000"},
        EllipsoidCase{"NeighbourInFlattening", "ellipsoid_a=6378137,ellipsoid_f=298.257223563",
                      "WGS 84"},
        EllipsoidCase{"NameNoLongerFits",
                      "ellipsoid_name=WGS 84,ellipsoid_a=6378137.1,ellipsoid_f=298.257223563",
                      "Custom"},
        EllipsoidCase{"NothingSet", "", "Custom"}),
    [](const auto& test) { return test.param.name; });

TEST(CoordSystemRows, PlaneUnitIsToldByTheFactor)
{
    EXPECT_EQ(CoordSystemRows::planeUnit(parameters("factor=0.9996")), QStringLiteral("m"));
    EXPECT_EQ(CoordSystemRows::planeUnit(parameters("")), QStringLiteral("m"));
    EXPECT_EQ(CoordSystemRows::planeUnit(parameters("factor=3.280833333")), QStringLiteral("ft"));
    EXPECT_EQ(CoordSystemRows::planeUnit(parameters("factor=4.97")), QString()); // links
    EXPECT_EQ(CoordSystemRows::planeUnit(parameters("project_type=2,factor=3.2808")),
              QStringLiteral("m")); // UTM has a factor of its own
}

TEST(CoordSystemRows, AShiftWithoutItsPivotLeadsToTheSamePlace)
{
    const basalt::Dictionary about =
        parameters("ellipsoid_a=6378206.4,ellipsoid_f=294.978698213898,project_type=1,org_lon=-99,"
                   "_7type=3,_7dx=8,_7dy=-160,_7dz=-176,_7rx=1.5,_7ry=-0.7,_7rz=2.25,_7ppm=3.5,"
                   "_7px=-820000,_7py=-5490000,_7pz=3120000");
    basalt::Dictionary without(about);
    CoordSystemRows::dropPivot(without);
    EXPECT_EQ(without.text("_7type"), "2");
    EXPECT_FALSE(without.contains("_7px") || without.contains("_7py") || without.contains("_7pz"));
    const CoordTriple there = gridOf(about);
    const CoordTriple here = gridOf(without);
    EXPECT_NEAR(here.first, there.first, 1e-6);
    EXPECT_NEAR(here.second, there.second, 1e-6);
    EXPECT_NEAR(here.third, there.third, 1e-6);

    for (const char* const kept : {"_7type=2,_7rx=1,_7px=5", "_7type=3,_7rx=1", "_7type=-1"}) {
        basalt::Dictionary other = parameters(kept);
        CoordSystemRows::dropPivot(other);
        EXPECT_EQ(dictionary_to_csa(other), kept);
    }
}
