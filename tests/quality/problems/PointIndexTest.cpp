#include "quality/problems/PointIndex.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

std::vector<std::size_t> numbersNear(const PointIndex& index, const PointPlace& place,
                                     std::size_t most, double withinM)
{
    std::vector<PointIndex::Found> found;
    index.nearest(place, most, withinM, found);
    std::vector<std::size_t> numbers;
    for (const auto& [number, distance] : found) {
        EXPECT_DOUBLE_EQ(distance, distanceM(place, index[number]));
        numbers.push_back(number);
    }
    return numbers;
}

using Numbers = std::vector<std::size_t>;

TEST(PointIndex, FindsWhatASearchOfAllPlacesFinds)
{
    std::mt19937 random(1);
    std::uniform_real_distribution<double> metres(0, 1000);
    const auto anywhere = [&] { return PointPlace{500000 + metres(random), 4e6 + metres(random)}; };
    std::vector<PointPlace> places(3000);
    std::ranges::generate(places, anywhere);
    const PointIndex index(places);
    for (int i = 0; i < 200; ++i) {
        const PointPlace place = anywhere();
        Numbers all(places.size());
        for (std::size_t number = 0; number < all.size(); ++number)
            all[number] = number;
        std::ranges::sort(all, {},
                          [&](std::size_t number) { return distanceM(place, places[number]); });
        all.resize(5);
        std::erase_if(all,
                      [&](std::size_t number) { return distanceM(place, places[number]) > 25; });
        EXPECT_EQ(numbersNear(index, place, 5, 25), all);
    }
}

TEST(PointIndex, APlaceOnTheLimitIsNear)
{
    const PointIndex index({{3, 4}});
    EXPECT_EQ(numbersNear(index, {0, 0}, 1, 5), Numbers{0});
    EXPECT_EQ(numbersNear(index, {0, 0}, 1, 4.999999), Numbers{});
    EXPECT_EQ(numbersNear(index, {3, 4}, 1, 0), Numbers{0});
}

TEST(PointIndex, WhatIsNoPlaceIsNeverFound)
{
    const PointIndex index({{kNaN, 0}, {1, 1}, {0, HUGE_VAL}, {1e300, 0}, {2, 2}});
    EXPECT_EQ(numbersNear(index, {0, 0}, 9, 1e6), (Numbers{1, 4}));
    EXPECT_EQ(numbersNear(index, {kNaN, 0}, 9, 1e6), Numbers{});
    EXPECT_EQ(numbersNear(index, {0, 0}, 9, kNaN), Numbers{});
    EXPECT_FALSE(PointIndex({}).nearest({0, 0}, 1e6).has_value());
}

TEST(PointIndex, ManyPlacesInOneCostNoMoreThanOthers)
{
    // Were all of them looked at, this would take hours.
    constexpr std::size_t kMany = 300000;
    const PointIndex index(std::vector<PointPlace>(kMany, {7, 7}));
    double sumM = 0;
    for (std::size_t i = 0; i < kMany; ++i) {
        sumM += index.nearest({7, 7}, 1)->distanceM;
        sumM += index.nearest({10, 3}, 9)->distanceM;
    }
    EXPECT_EQ(sumM, 5.0 * kMany);
}

} // namespace
