#include "quality/statistics/Moments.h"

#include "quality/statistics/Average.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <vector>

namespace {

using statistics::Moments;

Moments momentsOf(const std::vector<double>& values)
{
    Moments moments;
    for (std::size_t i = 0; i < values.size(); ++i)
        moments.add(values[i], i);
    return moments;
}

} // namespace

TEST(Moments, AreThoseOfAHandCalculation)
{
    const Moments moments = momentsOf({2, 4, 4, -9, 4, 5, NAN, -5, 7, 9});
    EXPECT_DOUBLE_EQ(moments.mean(), 21.0 / 9);
    EXPECT_DOUBLE_EQ(moments.standardDeviation(), std::sqrt((313 - 441.0 / 9) / 8));
    EXPECT_DOUBLE_EQ(moments.rms(), std::sqrt(313.0 / 9));
    EXPECT_EQ(moments.minimum(), -9);
    EXPECT_EQ(moments.maximum(), 9);
    EXPECT_EQ(moments.largest(), -9); // the first of equal ones, with its sign
    EXPECT_EQ(moments.largestPlace(), 3U);
    EXPECT_EQ(momentsOf({NAN, 0}).largestPlace(), 1U);
}

TEST(Moments, KeepMillimetresOnCoordinatesOfMillions)
{
    std::mt19937 random(1);
    std::normal_distribution<double> noise(0, 0.001);
    std::vector<double> values(200000);
    for (double& value : values)
        value = 4e6 + noise(random);
    const long double mean = std::accumulate(values.begin(), values.end(), 0.0L) / 200000;
    long double squares = 0;
    for (const double value : values)
        squares += (value - mean) * (value - mean);
    const Moments moments = momentsOf(values);
    EXPECT_LT(std::fabs(moments.mean() - mean), 2e-9L);
    EXPECT_LT(std::fabs(moments.standardDeviation() - std::sqrt(squares / 199999)), 1e-12L);

    const Moments equal = momentsOf(std::vector<double>(1000, 4e6 + 0.1));
    EXPECT_EQ(equal.mean(), 4e6 + 0.1);
    EXPECT_EQ(equal.standardDeviation(), 0);
}

TEST(Moments, LeaveOutAndCountWhatIsNoNumber)
{
    const Moments one = momentsOf({NAN, 3, INFINITY, -INFINITY});
    EXPECT_EQ(one.leftOut(), 3U);
    EXPECT_EQ(one.mean(), 3);
    EXPECT_EQ(one.rms(), 3);
    EXPECT_TRUE(std::isnan(one.standardDeviation()));
    const Moments none = momentsOf({NAN});
    for (const double figure : {none.mean(), none.rms(), none.minimum(), none.largest()})
        EXPECT_TRUE(std::isnan(figure));

    statistics::Average average;
    EXPECT_TRUE(std::isnan(average.mean()) && std::isnan(average.maximum()));
    for (const double value : std::vector<double>{INFINITY, -4, 1, NAN})
        average.add(value);
    EXPECT_EQ((std::vector{average.mean(), average.minimum(), average.maximum()}),
              (std::vector{-1.5, -4.0, 1.0}));
}

TEST(Percentile95, IsTheNearestRankAbove)
{
    std::mt19937 random(1);
    const std::pair<int, int> ranks[] = {{1, 1},   {2, 2},   {19, 19},  {20, 19},
                                         {21, 20}, {40, 38}, {100, 95}, {101, 96}};
    for (const auto& [count, rank] : ranks) {
        std::vector<double> values(static_cast<std::size_t>(count));
        std::iota(values.begin(), values.end(), 1);
        std::shuffle(values.begin(), values.end(), random);
        EXPECT_EQ(statistics::percentile95(values), rank) << count;
    }
    EXPECT_TRUE(std::isnan(statistics::percentile95({})));
}

TEST(Shift, IsFlaggedWhenLargeAndBeyondTheSpread)
{
    EXPECT_FALSE(hasShift(momentsOf({5}))); // one value tells of no spread
    EXPECT_FALSE(hasShift(momentsOf({0.02, 0.02, 0.02})));
    EXPECT_TRUE(hasShift(momentsOf({-0.021, -0.021, -0.021})));
    EXPECT_FALSE(hasShift(momentsOf({0, 0.2})));
    std::vector<double> values; // mean 0.03; 3 times the deviation 0.0503 / 10 is 0.0151
    for (int i = 0; i < 50; ++i)
        values.insert(values.end(), {-0.02, 0.08});
    EXPECT_TRUE(hasShift(momentsOf(values)));
    values.resize(20); // 3 times 0.0513 / sqrt(20) is 0.0344
    EXPECT_FALSE(hasShift(momentsOf(values)));
}
