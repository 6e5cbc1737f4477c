#include "design/DesignGenerator.h"

#include "basalt_utilities/Dictionary.h"
#include "design/DesignFaults.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "tests/support/EventLog.h"

#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>
#include <numbers>

namespace {

using Values = std::initializer_list<std::pair<const char*, const char*>>;

basalt::Dictionary parameters(Values values)
{
    basalt::Dictionary dictionary;
    for (const auto& [key, value] : values)
        dictionary.set(key, value);
    return dictionary;
}

struct Generated
{
    Outcome outcome;
    DesignPoints points;
};

Generated generated(Values values, DesignLines lines = DesignLines::Receiver)
{
    ProgressReporter nobody(nullptr);
    DesignPoints points;
    const Outcome outcome = generateDesign(parameters(values), lines, points, nobody);
    return {outcome, points};
}

std::vector<std::string> numbersOf(const DesignPoints& points)
{
    std::vector<std::string> numbers;
    for (const auto& [number, line] : points) {
        for (const DesignPoint& point : line)
            numbers.push_back(number + '/' + point.pointNumber);
    }
    return numbers;
}

using Numbers = std::vector<std::string>;

} // namespace

TEST(DesignGenerator, NumbersArePaddedAndNeverCut)
{
    EXPECT_EQ(numbersOf(generated({{"r_line_start_num", "12345"},
                                   {"r_line_end_num", "12345"},
                                   {"r_pt_start_num", "-5"},
                                   {"r_pt_end_num", "9"},
                                   {"r_pt_step", "7"},
                                   {"calc_r_pt_start_num", "-100"}})
                            .points),
              (Numbers{"12345/12345-005", "12345/123450002", "12345/123450009"}));
    EXPECT_EQ(numbersOf(generated({{"r_line_end_num", "0"},
                                   {"r_line_base", "0"},
                                   {"r_pt_end_num", "0"},
                                   {"r_pt_base", "40"}})
                            .points),
              (Numbers{"0/0" + std::string(40, '0')}));
    // The last number of all does not lead beyond it.
    EXPECT_EQ(numbersOf(generated({{"r_line_start_num", "2147483647"},
                                   {"r_line_end_num", "2147483647"},
                                   {"r_pt_end_num", "0"}})
                            .points),
              (Numbers{"2147483647/21474836470000"}));
}

TEST(DesignGenerator, TheFirstLineLiesAtTheStartWhateverItsNumber)
{
    const auto [outcome, points] = generated({{"calc_r_line_start_num", "500"},
                                              {"calc_r_pt_start_num", "995"},
                                              {"calc_r_start_north", "4000000.25"},
                                              {"calc_r_start_east", "-3.5"},
                                              {"r_recvrse_recvline", "1"}});
    EXPECT_EQ(points.lineCount(), 51U);
    EXPECT_EQ(points.begin()->first, "0500");
    const DesignPoint& first = *points.begin()->second.begin();
    EXPECT_EQ(first.pointNumber, "05000995");
    EXPECT_DOUBLE_EQ(first.north, 4000000.25);
    EXPECT_DOUBLE_EQ(first.east, -3.5);
    EXPECT_NEAR(points.find("0510", "05100995")->east, -18.5, 1e-9); // to the left
}

TEST(DesignGenerator, PositionsHoldFarFromTheStart)
{
    // 359 deg 59 min 59.999 s and 123 deg 45 min 6.789 s, worked out in long double.
    for (const auto& [text, degrees] : std::initializer_list<std::pair<const char*, long double>>{
             {"359.5959999", 359 + 59.0L / 60 + 59.999L / 3600},
             {"123.4506789", 123 + 45.0L / 60 + 6.789L / 3600},
             {"-0.3030", -(30.0L / 60 + 30.0L / 3600)}}) {
        const auto points = generated({{"r_line_start_num", "1"},
                                       {"r_line_step", "1"},
                                       {"r_pt_start_num", "1"},
                                       {"r_pt_step", "1"},
                                       {"r_line_dist", "37.5"},
                                       {"r_pt_dist", "12.5"},
                                       {"calc_r_start_north", "5000000.1234"},
                                       {"calc_r_start_east", "20500000.4321"},
                                       {"calc_r_start_azi", text}})
                                .points;
        const DesignPoint* const point = points.find("1000", "10001000");
        ASSERT_NE(point, nullptr);
        const long double azimuth = degrees * std::numbers::pi_v<long double> / 180;
        const long double along = 999 * 12.5L;
        const long double across = 999 * 37.5L;
        EXPECT_NEAR(static_cast<double>(point->north - 5000000.1234L -
                                        (along * std::cos(azimuth) - across * std::sin(azimuth))),
                    0, 1e-4)
            << text;
        EXPECT_NEAR(static_cast<double>(point->east - 20500000.4321L -
                                        (along * std::sin(azimuth) + across * std::cos(azimuth))),
                    0, 1e-4)
            << text;
    }
}

TEST(DesignGenerator, SourcesLieOverReceiversOfTheSameNumbers)
{
    const Values values = {{"s_line_end_num", "10"}, {"s_pt_base", "3"}};
    const auto both = generated(values, DesignLines::Both);
    EXPECT_EQ(both.outcome.text().toStdString(),
              "10,401 design points generated; 2 receiver points had the "
              "numbers of source points and were left out");
    EXPECT_EQ(sharedPoints(DesignGrid::from(parameters(values), GridKind::Receiver),
                           DesignGrid::from(parameters(values), GridKind::Source)),
              2);
    EXPECT_EQ(both.points.begin()->second.begin()->type, 0);
}
