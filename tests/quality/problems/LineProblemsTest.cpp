#include "quality/problems/LineProblems.h"

#include "quality/problems/LineOrder.h"
#include "quality/problems/NameProblems.h"
#include "tests/quality/problems/MadeSurvey.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace {

using Rows = std::vector<std::string>;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

/// Receivers 1000 to 1005 of points 1001 to 1040, 40 m apart, which run to the north.
class LineProblems : public testing::Test
{
protected:
    void SetUp() override { survey.addGrid(1, 1000, 6, 0); }

    Rows rows() const { return rowsOf(survey.find(kLineFinder)); }
    DesignPoint& at(int line, int point) { return survey.designed(line, point); }
    void swapPlaces(DesignPoint& a, DesignPoint& b)
    {
        std::swap(a.north, b.north);
        std::swap(a.east, b.east);
    }
    void rename(int line, int point, int number)
    {
        DesignPoint moved = at(line, point);
        survey.design.erase(moved.lineNumber, moved.pointNumber);
        moved.pointNumber = MadeSurvey::name(line, number);
        survey.design.set(std::move(moved));
    }

    MadeSurvey survey;
};

TEST_F(LineProblems, AStakeAlongTheLineIsASpacing)
{
    at(1001, 1010).north += 15.9; // 40 % of 40 m is 16 m
    EXPECT_EQ(rows(), Rows{});
    at(1001, 1010).north += 0.2;
    EXPECT_EQ(rows(), Rows{"line_spacing 10011010 10011009"}) << "one row, not one a side";
    const ProblemList problems = survey.find(kLineFinder);
    EXPECT_NEAR(problems[0].value, 56.1, 1e-6);
    EXPECT_NEAR(problems[0].limit, 56, 1e-6);
    EXPECT_NEAR(problems[0].second, 40, 1e-6);
}

TEST_F(LineProblems, AStakeBesideTheLineIsASpikeButABendIsNone)
{
    at(1002, 1015).east += 18.5; // 25 degrees are 18.65 m
    EXPECT_EQ(rows(), Rows{});
    at(1002, 1015).east += 1;
    EXPECT_EQ(rows(), Rows{"azimuth_spike 10021015 10021014"});
    EXPECT_NEAR(survey.find(kLineFinder)[0].second, 19.5, 1e-6);
    at(1002, 1015).east -= 19.5;
    at(1003, 1001).east += 25; // the ends of a line, too
    at(1003, 1040).east -= 25;
    at(1004, 1002).east -= 25;
    EXPECT_EQ(rows(), (Rows{"azimuth_spike 10031001 10031002", "azimuth_spike 10031040 10031039",
                            "azimuth_spike 10041002 10041001"}));
}

TEST_F(LineProblems, AnAzimuthThatNoNeighbourHasIsTold)
{
    for (int point = 1001; point <= 1040; ++point)
        at(1001, point).azimuth = point < 1020 ? 350 : 10; // across north, where the line bends
    EXPECT_EQ(rows(), Rows{});
    at(1001, 1030).azimuth = 100;
    EXPECT_EQ(rows(), Rows{"azimuth_spike 10011030 10011029"});
}

TEST_F(LineProblems, MissingNumbersAreAGapUnlessTheyWerePlanned)
{
    survey.design.erase("1001", "10011010");
    for (int point = 1020; point < 1026; ++point)
        survey.design.erase("1001", MadeSurvey::name(1001, point)); // six are planned
    for (int line = 1003; line <= 1005; ++line)                     // a pond across three lines
        survey.design.erase(std::to_string(line), MadeSurvey::name(line, 1030));
    EXPECT_EQ(rows(), Rows{"number_gap 10011009 10011011"});
    EXPECT_EQ(survey.find(kLineFinder)[0].value, 1);
    survey.parameters.set("line_gap_max", "6");
    EXPECT_EQ(rows(), (Rows{"number_gap 10011009 10011011", "number_gap 10011019 10011026"}));
}

TEST_F(LineProblems, NumbersThatJumpBetweenNeighboursAreAGap)
{
    for (int point = 1040; point > 1012; --point)
        rename(1001, point, point + 100);
    EXPECT_EQ(rows(), Rows{"number_gap 10011012 10011113"});
}

TEST_F(LineProblems, WhatRunsAgainstTheLineIsReversed)
{
    swapPlaces(at(1000, 1007), at(1000, 1008));
    for (int i = 0; i < 5; ++i) // a stretch, a stretch at the end, and one at the beginning
        swapPlaces(at(1001, 1020 + i), at(1001, 1029 - i));
    swapPlaces(at(1002, 1039), at(1002, 1040));
    swapPlaces(at(1003, 1001), at(1003, 1003));
    EXPECT_EQ(rows(),
              (Rows{"reversed_order 10001007 10001008 2", "reversed_order 10011020 10011029 10",
                    "reversed_order 10021039 10021040 2", "reversed_order 10031001 10031003 3"}));
}

TEST_F(LineProblems, AWholeLineThatRunsTheOtherWayIsReversed)
{
    for (int i = 0; i < 20; ++i)
        swapPlaces(at(1004, 1001 + i), at(1004, 1040 - i));
    EXPECT_EQ(rows(), Rows{"reversed_order 1004 40"});
}

TEST_F(LineProblems, TwoPointsInOnePlaceAreToldOnce)
{
    at(1003, 1020).north = at(1001, 1010).north + 0.4;
    at(1003, 1020).east = at(1001, 1010).east + 0.3; // 0.5 m: on the limit
    const Rows found = rows();
    EXPECT_EQ(std::ranges::count(found, "coincident 10031020 10011010"), 1);
    EXPECT_EQ(std::ranges::count_if(found, [](const auto& row) { return row.starts_with("coin"); }),
              1);
    at(1003, 1020).north += 0.01;
    EXPECT_EQ(std::ranges::count(rows(), "coincident 10031020 10011010"), 0);
}

TEST_F(LineProblems, PointsOfAnotherLineBetweenThoseOfALineAreOneRow)
{
    for (int point = 1001; point <= 1003; ++point) // in the middles of the steps of line 1002
        survey.add(2000, point, at(1002, 1010).east + 3,
                   at(1002, 1010).north + 20 + (point - 1001) * 40, 1);
    EXPECT_EQ(rows(), Rows{"interleaved 10021010 20001001 3"});
    survey.design.erase("2000", "20001002");
    EXPECT_EQ(rows(), Rows{}) << "two points may belong to a line that crosses";
}

TEST_F(LineProblems, PointsThatTwoLinesHaveExchangedAreInterleaved)
{
    for (int point = 1010; point <= 1018; point += 2)
        swapPlaces(at(1001, point), at(1002, point));
    EXPECT_EQ(rows(), Rows{"interleaved 10011010 10021010 9"});
}

TEST_F(LineProblems, AHeightAboveAllNeighboursIsAJumpButASlopeIsNone)
{
    for (int point = 1001; point <= 1040; ++point)
        at(1005, point).elevation = 25 * (point - 1000); // steep
    at(1001, 1010).elevation += 20;
    at(1002, 1020).elevation -= 40; // two beside each other
    at(1002, 1021).elevation -= 40;
    at(1003, 1001).elevation += 40;
    survey.result(1004, 1030).elevation += 20;
    for (int point = 1015; point <= 1040; ++point)
        at(1000, point).elevation += 60; // a cliff
    EXPECT_EQ(rows(), (Rows{"height_jump 10011010 10011009", "height_jump 10021020 10021019",
                            "height_jump 10021021 10021020", "height_jump 10031001 10031002",
                            "height_jump 10041030 10041029"}));
    survey.parameters.set("line_height_max", "0");
    EXPECT_EQ(rows(), Rows{});
}

TEST_F(LineProblems, VeryManyOfAKindInALineAreOneRow)
{
    for (int point = 1001; point <= 1040; ++point) { // a line twice, under another name
        DesignPoint again = at(1002, point);
        again.lineNumber = "1009";
        again.pointNumber = MadeSurvey::name(1009, point);
        survey.design.set(std::move(again));
    }
    EXPECT_EQ(rows(), Rows{"coincident 10091001 10021001 39"});
}

TEST_F(LineProblems, AFewAmongThousandsAreARowEach)
{
    survey.addWay(
        1009, 3000, [](int /*point*/) { return 0; }, 6e5);
    for (int point = 1100; point < 4000; point += 100)
        survey.designed(1009, point).elevation += 60;
    EXPECT_EQ(rows().size(), 29U);
}

TEST(LineProblemsOfResults, ResultsWithoutADesignAreALineOfTheirOwn)
{
    MadeSurvey survey;
    survey.addGrid(1, 1000, 6, 0);
    survey.design.clear();
    for (int point = 1005; point <= 1040; point += 5) // moved aside from obstacles
        survey.result(1001, point).east += 30;
    survey.result(1001, 1010).north += 15;
    EXPECT_EQ(rowsOf(survey.find(kLineFinder)), Rows{});
    survey.result(1002, 1010).east += 500;
    survey.result(1003, 1010).north += 500;
    survey.result(1004, 1010).north = survey.result(1000, 1030).north;
    survey.result(1004, 1010).east = survey.result(1000, 1030).east;
    survey.results.erase("1005", "10051020");
    const Rows found = rowsOf(survey.find(kLineFinder));
    for (const char* row : {"azimuth_spike 10021010 10021009", "number_gap 10051019 10051021",
                            "coincident 10041010 10001030"})
        EXPECT_EQ(std::ranges::count(found, row), 1) << row;
    EXPECT_TRUE(std::ranges::any_of(
        found, [](const std::string& row) { return row.find("10031010") != std::string::npos; }));
}

TEST(LineOrder, NumbersAreReadFromTheEnd)
{
    const auto read = [](const char* text) { return numberParts(text).number; };
    EXPECT_EQ(read("10052034"), 10052034);
    EXPECT_EQ(read("1005-2034"), 2034);
    EXPECT_EQ(numberParts("1005-2034").prefix, "1005-");
    EXPECT_EQ(read("1001.5"), 1001.5);
    EXPECT_EQ(read("99999999999999999999"), 999999999999999);
    EXPECT_TRUE(std::isnan(read("10052034A")));
    EXPECT_TRUE(std::isnan(read("")));
    EXPECT_TRUE(std::isnan(read(".")));
}

/// A clean survey, and what makes it look odd.
struct CleanCase
{
    const char* name;
    void (*make)(MadeSurvey& survey);
};

class CleanSurvey : public testing::TestWithParam<CleanCase>
{
};

TEST_P(CleanSurvey, HasNoRow)
{
    MadeSurvey survey;
    GetParam().make(survey);
    ASSERT_GT(survey.results.pointCount(), 0U);
    EXPECT_EQ(rowsOf(survey.find(kLineFinder)), Rows{});
    EXPECT_EQ(rowsOf(survey.find(kNameFinder)), Rows{});
}

void makeSpread(MadeSurvey& survey)
{
    survey.addGrid(1, 1000, 20);
    survey.addGrid(0, 5000, 20, 162);
}

/// Receivers and sources in the same places, in lines of the same names.
void makeSamePlaces(MadeSurvey& survey)
{
    survey.addGrid(1, 1000, 10);
    DesignPoints sources;
    for (const auto& [number, line] : survey.design) {
        for (const DesignPoint& point : line) {
            DesignPoint source = point;
            source.pointNumber = std::to_string(std::stoi(point.pointNumber) + 5000);
            source.type = 0;
            sources.set(std::move(source));
        }
    }
    for (const auto& [number, line] : sources) {
        for (const DesignPoint& point : line)
            survey.stake(point, survey.aside(0.3), survey.aside(0.3));
    }
    survey.design.merge(std::move(sources));
}

void makeZigzag(MadeSurvey& survey)
{
    survey.addWay(101, 200, [](int point) { return point % 2 == 0 ? 100.0 : -100.0; });
    survey.addWay(
        102, 200, [](int point) { return point % 2 == 0 ? 140.0 : -140.0; }, 510000);
}

/// Numbers without zeros in front, so that "10" stands before "9", and every second one further on.
void makeOtherNumbers(MadeSurvey& survey)
{
    for (int point = 1; point <= 120; point += point < 60 ? 1 : 2) {
        DesignPoint place{"L1", std::to_string(point), 4e6 + 25.0 * point, 5e5, 0, 0, 1, 1};
        survey.stake(place, 0.1, 0.1);
        survey.design.set(std::move(place));
    }
    for (int block = 0; block < 30; ++block) { // four points, and a gap for the road
        for (int place = 0; place < 4; ++place) {
            DesignPoint point{"L2", std::to_string(101 + 8 * block + place), 4e6, 0, 0, 0, 0, 1};
            point.east = 5e5 + 25.0 * (8 * block + place);
            survey.design.set(point);
            point.lineNumber = "L3"; // whose numbers know nothing of the gaps
            point.pointNumber = std::to_string(101 + 4 * block + place);
            point.north += 300;
            survey.design.set(std::move(point));
        }
    }
}

/// A lake in the middle, in US survey feet, and a design without elevations.
void makeLake(MadeSurvey& survey)
{
    survey.planeUnitM = 1200.0 / 3937;
    makeSpread(survey);
    const DesignPoint middle = survey.designed(1010, 1020);
    const auto isInLake = [&](const auto& point) {
        return std::hypot(point.north - middle.north, point.east - middle.east) <
               470 / survey.planeUnitM;
    };
    const auto empty = [&](auto& points) {
        PointNames names;
        for (const auto& [number, line] : points) {
            for (const auto& point : line) {
                if (isInLake(point))
                    names.of(number).push_back(point.pointNumber);
            }
        }
        points.extract(names);
    };
    empty(survey.design);
    empty(survey.results);
    for (auto& [number, line] : survey.design) {
        for (DesignPoint& point : line)
            point.elevation = 0;
    }
}

INSTANTIATE_TEST_SUITE_P(Lines, CleanSurvey,
                         testing::Values(CleanCase{"SamePlaces", makeSamePlaces},
                                         CleanCase{"Zigzag", makeZigzag},
                                         CleanCase{"OtherNumbers", makeOtherNumbers},
                                         CleanCase{"LakeInFeet", makeLake}),
                         [](const auto& test) { return test.param.name; });

} // namespace
