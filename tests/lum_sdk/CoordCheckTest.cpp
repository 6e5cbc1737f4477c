#include "lum_sdk/coords/CoordCheck.h"

#include "tests/lum_sdk/CoordFixture.h"

#include <gtest/gtest.h>

namespace {

/// A working system with some values changed.
basalt::Dictionary systemWith(const char* changes)
{
    basalt::Dictionary system;
    EXPECT_TRUE(csa_to_dictionary(system, "ellipsoid_a=6378137,ellipsoid_f=298.257223563,"
                                          "project_type=1,org_lon=117,factor=0.9996"));
    EXPECT_TRUE(csa_to_dictionary(system, changes));
    return system;
}

} // namespace

struct CheckCase
{
    const char* name;
    const char* changes;
    const char* key; ///< of the parameter at fault; empty when there is none
};

class CoordCheck : public testing::TestWithParam<CheckCase>
{
};

TEST_P(CoordCheck, NamesTheParameterAtFault)
{
    const auto fault = lum::checkCoordParameters(systemWith(GetParam().changes));
    EXPECT_EQ(fault.key, GetParam().key);
    EXPECT_EQ(bool(fault), fault.key != "");
    EXPECT_NE(fault.message.find(fault.key), std::string::npos) << fault.message;
}

INSTANTIATE_TEST_SUITE_P(
    Parameters, CoordCheck,
    testing::Values(
        CheckCase{"Good", "", ""}, CheckCase{"NoAxis", "ellipsoid_a=0", "ellipsoid_a"},
        CheckCase{"Flattening", "ellipsoid_f=0.0033", "ellipsoid_f"},
        CheckCase{"NotFinite", "_7type=1,_7ry=nan", "_7ry"},
        CheckCase{"NoProjection", "project_type=0", "project_type"},
        CheckCase{"UnknownProjection", "project_type=40", "project_type"},
        CheckCase{"Height", "project_height=200000", "project_height"},
        CheckCase{"Latitude", "org_lat=90.5", "org_lat"},
        CheckCase{"Longitude", "org_lon=-361", "org_lon"},
        CheckCase{"LongitudeOfUtm", "project_type=2,org_lon=1e10", "org_lon"},
        CheckCase{"NoNumber", "org_lon=abc", "org_lon"},
        CheckCase{"UnitBehind", "org_lon=117E", "org_lon"},
        CheckCase{"CommaForPoint", "ellipsoid_f=\"298,257\"", "ellipsoid_f"},
        CheckCase{"PartOfACode", "project_type=2.7", "project_type"},
        CheckCase{"ExponentIsNoCode", "project_type=1e1", "project_type"},
        CheckCase{"CodeOfARealColumn", "project_type=1.0", ""},
        CheckCase{"EmptyIsMissing", "org_lon=", ""},
        CheckCase{"Parallels", "project_type=8,parallel_1_lat=-20,parallel_2_lat=20",
                  "parallel_1_lat"},
        CheckCase{"CentralLine", "project_type=5,org_lat=4", "p_r"},
        CheckCase{"Factor", "factor=-1", "factor"},
        CheckCase{"Radius", "project_type=6,org_lat=52,cutting_radius=7e6", "cutting_radius"},
        CheckCase{"Shift", "_7type=4", "_7type"}, CheckCase{"Pivot", "_7type=3,_7rz=1", "_7px"},
        CheckCase{"PlaneScale", "_4valid=1,_4s=-1", "_4s"},
        CheckCase{"NoGeoid", "geoid_valid=1", "geoid_file"},
        CheckCase{"LostGeoid", "geoid_valid=1,geoid_file=/nowhere/a.gtx", "geoid_file"}),
    [](const auto& test) { return test.param.name; });

TEST(CoordCheck, KrovakMarksTheEllipsoid)
{
    const auto fault = lum::checkCoordParameters(systemWith("project_type=11,org_lat=49.5"));
    EXPECT_EQ(fault.key, "ellipsoid_name"); // chosen by name rather than typed
    EXPECT_NE(fault.message.find("Bessel 1841"), std::string::npos) << fault.message;
}
