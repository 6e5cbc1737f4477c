#include "exchange/SameCoordSystem.h"

#include "basalt_utilities/Dictionary.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace {

using Values = std::vector<std::pair<const char*, double>>;

basalt::Dictionary dictionaryOf(const Values& values)
{
    basalt::Dictionary dictionary;
    for (const auto& [key, value] : values)
        dic_set_value(dictionary, key, value);
    return dictionary;
}

} // namespace

struct SameCase
{
    const char* name;
    Values first;
    Values second;
    bool isSame;
};

class SameSystem : public testing::TestWithParam<SameCase>
{
};

TEST_P(SameSystem, JudgesBothWaysRound)
{
    const SameCase& c = GetParam();
    EXPECT_EQ(sameCoordSystem(dictionaryOf(c.first), dictionaryOf(c.second)), c.isSame);
    EXPECT_EQ(sameCoordSystem(dictionaryOf(c.second), dictionaryOf(c.first)), c.isSame);
}

INSTANTIATE_TEST_SUITE_P(
    Projection, SameSystem,
    testing::Values(
        SameCase{"NothingAtAll", {}, {}, true},
        SameCase{"MissingIsZero", {{"org_lat", 0}}, {}, true},
        SameCase{
            "WithinTolerance", {{"false_east", 500000}}, {{"false_east", 500000.0000005}}, true},
        SameCase{
            "BeyondTolerance", {{"false_east", 500000}}, {{"false_east", 500000.000002}}, false},
        SameCase{"Kind", {{"project_type", 1}}, {{"project_type", 2}}, false},
        SameCase{"Geoid", {{"geoid_valid", 1}}, {{"geoid_valid", 0}}, true},
        SameCase{"OriginOfPlaneShift", {{"_4x0", 1}}, {{"_4x0", 2}}, true}),
    [](const auto& test) { return test.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Groups, SameSystem,
    testing::Values(
        SameCase{"EnabledZeroShift", {{"_7type", 0}}, {{"_7type", 3}}, true},
        SameCase{"EnabledShift", {}, {{"_7type", 3}, {"_7dx", 0.5}}, false},
        SameCase{
            "ParametersCancelNotOut", {}, {{"_7type", 3}, {"_7dx", 0.5}, {"_7dy", -0.5}}, false},
        SameCase{"DisabledShift", {{"_7dx", 1}}, {{"_7dx", 2}}, true},
        SameCase{"DisabledShiftBesideZero", {{"_7dx", 1}}, {{"_7type", 1}}, true},
        SameCase{"KindOfShift", {{"_7type", 1}, {"_7dx", 5}}, {{"_7type", 2}, {"_7dx", 5}}, false},
        SameCase{"KindOfZeroShift", {{"_7type", 1}}, {{"_7type", 2}}, false},
        SameCase{"SwitchOfPlaneShift",
                 {{"_4valid", 1}, {"_4dx", 3}},
                 {{"_4valid", 5}, {"_4dx", 3}},
                 true},
        SameCase{"PlaneShift", {{"_4valid", 1}, {"_4r", 3}}, {{"_4valid", 1}, {"_4r", 4}}, false},
        SameCase{"Constant", {}, {{"correct_valid", 1}, {"correct_dh", 0.1}}, false},
        SameCase{"HeightFit", {{"fit_valid", 1}, {"fit_y0", 9}}, {}, false},
        SameCase{"ConstantsOffBesideFitOn", {{"correct_dh", 1}}, {{"fit_valid", 2}}, true}),
    [](const auto& test) { return test.param.name; });

TEST(SameSystemKeys, EachOneCounts)
{
    for (const char* key :
         {"project_height", "ellipsoid_a", "ellipsoid_f", "org_lon", "org_lat", "false_north",
          "false_east", "factor", "cutting_radius", "parallel_1_lat", "parallel_2_lat", "p_r",
          "lon1", "lon2", "lat1", "lat2"})
        EXPECT_FALSE(sameCoordSystem(dictionaryOf({{key, 1}}), dictionaryOf({{key, 1.001}})))
            << key;
    using Group = std::pair<const char*, std::vector<const char*>>;
    for (const auto& [flag, keys] :
         {Group{"_7type", {"_7dx", "_7dy", "_7dz", "_7rx", "_7ry", "_7rz", "_7ppm"}},
          Group{"_4valid", {"_4dx", "_4dy", "_4r", "_4s"}},
          Group{"correct_valid", {"correct_dx", "correct_dy", "correct_dh"}},
          Group{
              "fit_valid",
              {"fit_a0", "fit_a1", "fit_a2", "fit_a3", "fit_a4", "fit_a5", "fit_x0", "fit_y0"}}}) {
        for (const char* key : keys)
            EXPECT_FALSE(sameCoordSystem(dictionaryOf({{flag, 1}, {key, 1}}),
                                         dictionaryOf({{flag, 1}, {key, 1.001}})))
                << key;
    }
}
