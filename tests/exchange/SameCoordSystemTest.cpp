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

struct Pair
{
    const char* name;
    Values first;
    Values second;
};

/// Judges each pair both ways round.
void expectAll(bool areSame, const std::vector<Pair>& pairs)
{
    for (const auto& [name, first, second] : pairs) {
        EXPECT_EQ(sameCoordSystem(dictionaryOf(first), dictionaryOf(second)), areSame) << name;
        EXPECT_EQ(sameCoordSystem(dictionaryOf(second), dictionaryOf(first)), areSame) << name;
    }
}

} // namespace

TEST(SameCoordSystem, DespiteDifferencesWithoutEffect)
{
    expectAll(true,
              {{"nothing at all", {}, {}},
               {"missing is zero", {{"org_lat", 0}}, {}},
               {"tolerance", {{"false_east", 500000}}, {{"false_east", 500000.0000005}}},
               {"geoid", {{"geoid_valid", 1}}, {{"geoid_valid", 0}}},
               {"origin of the plane shift", {{"_4x0", 1}}, {{"_4x0", 2}}},
               {"zero shift that is on", {{"_7type", 0}}, {{"_7type", 3}}},
               {"shifts that are off", {{"_7dx", 1}}, {{"_7dx", 2}}},
               {"off beside zero", {{"_7dx", 1}}, {{"_7type", 1}}},
               {"value of a switch", {{"_4valid", 1}, {"_4dx", 3}}, {{"_4valid", 5}, {"_4dx", 3}}},
               {"constants off beside fit on", {{"correct_dh", 1}}, {{"fit_valid", 2}}}});
}

TEST(SameCoordSystem, NotWithAxesTheOtherWay)
{
    basalt::Dictionary turned = dictionaryOf({{"project_type", 11}});
    const basalt::Dictionary usual = turned;
    for (const auto& [axes, areSame] :
         {std::pair("SW", false), std::pair("NE", true), std::pair("1", true)}) {
        turned.set("axis_direction", axes);
        EXPECT_EQ(sameCoordSystem(usual, turned), areSame) << axes;
    }
}

TEST(SameCoordSystem, NotWithDifferencesThatShow)
{
    expectAll(false, {{"tolerance", {{"false_east", 500000}}, {{"false_east", 500000.000002}}},
                      {"projection", {{"project_type", 1}}, {{"project_type", 2}}},
                      {"shift on", {}, {{"_7type", 3}, {"_7dx", 0.5}}},
                      {"no cancelling", {}, {{"_7type", 3}, {"_7dx", 0.5}, {"_7dy", -0.5}}},
                      {"kind of shift", {{"_7type", 1}, {"_7dx", 5}}, {{"_7type", 2}, {"_7dx", 5}}},
                      {"kind of zero shift", {{"_7type", 1}}, {{"_7type", 2}}},
                      {"constant", {}, {{"correct_valid", 1}, {"correct_dh", 0.1}}},
                      {"height fit", {{"fit_valid", 1}, {"fit_y0", 9}}, {}}});
    const auto expectCounts = [](const char* flag, const std::vector<const char*>& keys) {
        for (const char* key : keys)
            expectAll(false, {{key, {{flag, 1}, {key, 1}}, {{flag, 1}, {key, 1.001}}}});
    };
    expectCounts("of all",
                 {"project_height", "ellipsoid_a", "ellipsoid_f", "org_lon", "org_lat",
                  "false_north", "false_east", "factor", "cutting_radius", "parallel_1_lat",
                  "parallel_2_lat", "p_r", "lon1", "lon2", "lat1", "lat2"});
    expectCounts("_7type", {"_7dx", "_7dy", "_7dz", "_7rx", "_7ry", "_7rz", "_7ppm"});
    expectCounts("_4valid", {"_4dx", "_4dy", "_4r", "_4s"});
    expectCounts("correct_valid", {"correct_dx", "correct_dy", "correct_dh"});
    expectCounts("fit_valid",
                 {"fit_a0", "fit_a1", "fit_a2", "fit_a3", "fit_a4", "fit_a5", "fit_x0", "fit_y0"});
}
