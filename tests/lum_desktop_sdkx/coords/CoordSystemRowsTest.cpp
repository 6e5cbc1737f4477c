#include "lum_desktop_sdkx/coords/CoordSystemRows.h"

#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/KeyList.h"
#include "lum_sdk/Text.h"
#include "tests/support/Literals.h"

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

} // namespace

TEST(CoordSystemRows, ShowThoseThatCount)
{
    const std::pair<const char*, const char*> kCases[] = {
        {"", ""},
        {"project_type=99", "project_height"},
        {"project_type=2", "false_north org_lon project_height"},
        {"project_type=9", "factor false_east false_north org_lat org_lon project_height"},
        {"project_type=5", "factor false_east false_north lat1 lat2 lon1 lon2 org_lat org_lon p_r "
                           "parallel_1_lat project_height"},
        {"_7type=1", "_7dx _7dy _7dz _7ppm _7rx _7ry _7rz"},
        {"_7type=3", "_7dx _7dy _7dz _7ppm _7px _7py _7pz _7rx _7ry _7rz"},
        {"_4valid=5,correct_valid=0", "_4dx _4dy _4r _4s _4x0 _4y0"},
        {"ver_valid=1,geoid_valid=1,correct_valid=1",
         "correct_dh correct_dx correct_dy geoid_file ver_h ver_x0 ver_x_slope ver_y0 "
         "ver_y_slope"}};
    for (const auto& [list, shown] : kCases)
        EXPECT_EQ(shownOf(parameters(list)), shown) << list;
}

TEST(CoordSystemRows, EllipsoidIsNamedByAxisAndFlattening)
{
    const std::pair<const char*, const char*> kCases[] = {
        {"ellipsoid_a=6378245,ellipsoid_f=298.3", "Krassowsky 1940"},
        {"ellipsoid_a=6378137,ellipsoid_f=298.257222101", "GRS 1980"},
        {"ellipsoid_name=CGCS2000,ellipsoid_a=6378137,ellipsoid_f=298.257222101", "CGCS2000"},
        {"ellipsoid_a=6378137,ellipsoid_f=298.257223563", "WGS 84"},
        {"ellipsoid_name=WGS 84,ellipsoid_a=6378137.1,ellipsoid_f=298.257223563", "Custom"},
        {"", "Custom"}};
    for (const auto& [list, name] : kCases)
        EXPECT_EQ(CoordSystemRows::ellipsoidName(parameters(list)).toStdString(), name) << list;
}

TEST(CoordSystemRows, CaptionFollowsTheProjection)
{
    EXPECT_EQ(CoordSystemRows::firstParallelCaption(parameters("project_type=5")),
              "Rectified grid angle"_q);
}
