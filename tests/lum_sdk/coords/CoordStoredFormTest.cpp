#include "lum_sdk/coords/CoordStoredForm.h"

#include "tests/lum_sdk/coords/CoordFixture.h"

namespace {

basalt::Dictionary stored(const char* list)
{
    basalt::Dictionary parameters = dictionaryOf(list);
    lum::toStoredForm(parameters);
    return parameters;
}

} // namespace

TEST(CoordStoredForm, HoldsWhatTheProjectionUses)
{
    for (const auto& [given, expected] :
         {std::pair("project_type=2,org_lon=115",
                    "project_type=2,org_lon=117,factor=0.9996,false_east=500000"),
          std::pair("project_type=2,org_lon=-58,org_lat=-30,parallel_1_lat=20,parallel_2_lat=40,"
                    "factor=1,false_east=39500000,false_north=10000000",
                    "project_type=2,org_lon=-57,org_lat=0,parallel_1_lat=0,parallel_2_lat=0,"
                    "factor=0.9996,false_east=500000,false_north=10000000"),
          // the first zone, from the other side
          std::pair("project_type=2,org_lon=181",
                    "project_type=2,org_lon=-177,factor=0.9996,false_east=500000"),
          // right texts stay
          std::pair("project_type=2,org_lon=117.0,factor=0.99960,false_east=5e5,org_lat=0.0",
                    "project_type=2,org_lon=117.0,factor=0.99960,false_east=5e5,org_lat=0.0"),
          // what the projection does not read becomes 0
          std::pair("project_type=1,org_lat=4,p_r=5,lat1=1,lon1=2,lat2=3,lon2=4,cutting_radius=9,"
                    "project_height=70,factor=0.999",
                    "project_type=1,org_lat=4,p_r=0,lat1=0,lon1=0,lat2=0,lon2=0,cutting_radius=0,"
                    "project_height=70,factor=0.999"),
          std::pair("project_type=1,factor=0", "project_type=1,factor=1"),
          std::pair("project_type=99,p_r=5", "project_type=99,p_r=5"),
          std::pair("_7type=2,_7rx=1,_7px=5", "_7type=2,_7rx=1,_7px=5"),
          std::pair("_7type=3,_7rx=1", "_7type=3,_7rx=1")})
        EXPECT_EQ(dictionary_to_csa(stored(given)), expected) << given;
}

TEST(CoordStoredForm, AShiftWithoutItsPivotLeadsToTheSamePlace)
{
    const char* const about =
        "ellipsoid_a=6378206.4,ellipsoid_f=294.978698213898,project_type=1,org_lon=-99,"
        "_7type=3,_7dx=8,_7dy=-160,_7dz=-176,_7rx=1.5,_7ry=-0.7,_7rz=2.25,_7ppm=3.5,"
        "_7px=-820000,_7py=-5490000,_7pz=3120000";
    const basalt::Dictionary without = stored(about);
    EXPECT_EQ(without.text("_7type"), "2");
    EXPECT_FALSE(without.contains("_7px") || without.contains("_7py") || without.contains("_7pz"));
    expectNear(CoordService(without).toGrid(29.5, -98.5, 120),
               CoordService(dictionaryOf(about)).toGrid(29.5, -98.5, 120), 1e-6);
}
