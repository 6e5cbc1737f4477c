#include "map/DesignMarks.h"
#include "map/MarkExtent.h"
#include "map/SurveyMarks.h"
#include "tests/map/TestSurvey.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
const ToMap kTurned = [](double north, double east) { return QPointF(east, north); };

DesignPoints pointsOf(const std::vector<DesignPoint>& list)
{
    DesignPoints points;
    for (const DesignPoint& point : list)
        points.set(point);
    return points;
}

DesignMarks marksOf(const DesignPoints& points)
{
    return {points, kTurned};
}

std::string nameOf(const DesignMarks& marks, double north, double east, double reach)
{
    const auto found = marks.table().nearest({north, east}, reach);
    return found ? std::string(marks.table().name(found->mark)) : "";
}

} // namespace

TEST(MarkExtent, IsTheMappedRectangle)
{
    const struct
    {
        const char* name;
        std::vector<DesignPoint> points;
        QRectF expected;
    } kCases[] = {
        {"nothing stands at the origin", {}, {0, 0, 10, 10}},
        {"one place", {{"1", "1", 70, 20}, {"2", "1", 70, 20}}, {20, 70, 10, 10}},
        {"a north-south line", {{"1", "1", -70, 20}, {"1", "2", 80, 20}}, {20, -70, 10, 150}},
        {"below a tenth of a micrometre is nothing",
         {{"1", "1", 0, 0}, {"1", "2", 1.1e-7, 0.9e-7}},
         {0, 0, 10, 1.1e-7}},
        {"far points count", {{"1", "1", 0, 0}, {"2", "1", 1e12, -1e12}}, {-1e12, 0, 1e12, 1e12}},
        {"broken points do not",
         {{"1", "1", kNaN, 5},
          {"1", "2", 30, 40},
          {"1", "3", 50, -kNaN},
          {"1", "4", 60, 80},
          {"1", "5", HUGE_VAL, 80}},
         {40, 30, 40, 30}}};
    for (const auto& [name, points, expected] : kCases)
        EXPECT_EQ(markExtent(marksOf(pointsOf(points)).table().gridBounds(), kTurned), expected)
            << name;
    const ToMap southAndWest = [](double north, double east) { return QPointF(-east, -north); };
    EXPECT_EQ(markExtent(marksOf(pointsOf(kCases[2].points)).table().gridBounds(), southAndWest),
              QRectF(-20, -80, 10, 150));
}

TEST(MarkTableNearest, KeepsTheFirstOfEqualsAndTheLimit)
{
    // In the order of bytes line "10" comes before line "9".
    const DesignMarks marks =
        marksOf(pointsOf({{"9", "a", 0, 100}, {"10", "b", 0, 300}, {"9", "c", 1000, 0}}));
    EXPECT_EQ(nameOf(marks, 0, 200, 101), "b");
    EXPECT_EQ(nameOf(marks, 0, 199.9, 101), "a");
    EXPECT_EQ(nameOf(marks, 0, 200, 100), "") << "at the limit is outside";
    EXPECT_EQ(nameOf(marks, 1000, 9.9, 10), "c");
    EXPECT_EQ(nameOf(marks, 1009.9, 0, 10), "c");
    EXPECT_EQ(nameOf(marks, 1010, 0, 10), "");
    EXPECT_EQ(nameOf(marks, 1000, -10, 10), "");
    EXPECT_EQ(nameOf(marks, kNaN, 0, 1e9), "");
    EXPECT_EQ(nameOf(marksOf({}), 0, 0, 1e9), "");
}

TEST(MarkTableNearest, FindsWhatALookAtEveryPointFinds)
{
    std::mt19937 random(7);
    std::uniform_int_distribution<int> coarse(0, 60); // many ties
    DesignPoints points;
    for (int i = 0; i < 2000; ++i)
        points.set({std::to_string(i % 17), std::to_string(i), double(coarse(random)),
                    double(coarse(random))});
    const DesignMarks marks = marksOf(points);
    for (int i = 0; i < 500; ++i) {
        const double north = coarse(random) + 0.5;
        const double east = coarse(random);
        double best = 3;
        std::string expected;
        for (const auto& [number, line] : points) {
            for (const DesignPoint& point : line) {
                const double distance = std::hypot(point.north - north, point.east - east);
                if (distance < best) {
                    best = distance;
                    expected = point.pointNumber;
                }
            }
        }
        ASSERT_EQ(nameOf(marks, north, east, 3), expected) << north << ' ' << east;
    }
}

TEST(MarkTableFind, FindsTheFirstOfThatNameWithItsLine)
{
    DesignPoints points = TestSurvey().design(3, 200, 1);
    points.set({"0999", "10021077", 1, 2});
    points.set({"9", "broken", kNaN, 2});
    const DesignMarks marks = marksOf(points);
    const MarkTable& table = marks.table();
    ASSERT_EQ(table.lines().size(), 4U) << "a line of broken points is none";
    EXPECT_EQ(table.lineOf(*table.find("10021077")).number, "0999");
    EXPECT_EQ(table.lineOf(*table.find("10021200")).number, "1002");
    EXPECT_EQ(table.lineOf(*table.find("10031001")).number, "1003");
    EXPECT_EQ(table.place(*table.find("10021100")), QPointF(500000 + 99 * 25, 4400100));
    for (const char* name : {"", "1002", "100210777", "99", "broken"})
        EXPECT_FALSE(table.find(name)) << name;
    EXPECT_EQ(marks.typeOf(1), 1);
    EXPECT_EQ(marks.typeOf(2), 0);
}

TEST(SurveyMarks, ShareABaseStationWithinATenthOfAMillimetre)
{
    SurveyPoints points;
    int number = 100;
    for (const double offset : {0.0, 0.000001, -0.0000099, 0.0000101, 0.00001005, 300.0, 0.0}) {
        SurveyPoint point = surveyPoint("1", std::to_string(++number));
        point.referenceNorth = 4400000 + offset;
        point.referenceEast = 500000;
        point.referenceAltitude = number;
        points.set(point);
    }
    const SurveyMarks marks(points, kTurned);
    std::vector<std::uint32_t> bases;
    for (MarkTable::Index mark = 0; mark < marks.table().size(); ++mark)
        bases.push_back(marks.ties(mark).base);
    EXPECT_EQ(bases, (std::vector<std::uint32_t>{0, 0, 0, 1, 1, 2, 0}));
    EXPECT_EQ(marks.bases()[1].altitudeM, 104) << "the first result tells of the station";
    EXPECT_EQ(marks.basePlaces()[2], QPointF(500000, 4400300));
    EXPECT_TRUE(SurveyMarks({}, kTurned).gridBounds().isEmpty());
}
