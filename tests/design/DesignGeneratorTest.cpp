#include "design/DesignGenerator.h"

#include "basalt_utilities/Dictionary.h"
#include "design/DesignFields.h"
#include "design/DesignGrid.h"
#include "lum_sdk/events/ProgressReporter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

TEST(DesignGenerator, PositionsHoldFarFromTheStart)
{
    ProgressReporter nobody(nullptr);
    // 359 deg 59 min 59.999 s and 123 deg 45 min 6.789 s, worked out in long double.
    for (const auto& [text, degrees] : std::initializer_list<std::pair<const char*, long double>>{
             {"359.5959999", 359 + 59.0L / 60 + 59.999L / 3600},
             {"123.4506789", 123 + 45.0L / 60 + 6.789L / 3600},
             {"-0.3030", -(30.0L / 60 + 30.0L / 3600)}}) {
        basalt::Dictionary parameters;
        for (const auto& [key, value] : {std::pair("r_line_start_num", "1"),
                                         {"r_line_step", "1"},
                                         {"r_pt_start_num", "1"},
                                         {"r_pt_step", "1"},
                                         {"r_line_dist", "37.5"},
                                         {"r_pt_dist", "12.5"},
                                         {"calc_r_start_north", "5000000.1234"},
                                         {"calc_r_start_east", "20500000.4321"},
                                         {"calc_r_start_azi", text}})
            parameters.set(key, value);
        DesignPoints points;
        ASSERT_TRUE(generateDesign(parameters, DesignLines::Receiver, points, nobody).isDone());
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

TEST(DesignFaults, StoredTextsKeepAllDigits)
{
    const auto stored = [](const char* key, const char* text) {
        return storedText(*findDesignParameter(key), QString::fromUtf8(text));
    };
    EXPECT_EQ(stored("calc_r_start_north", " 5000000.1234 "), "5000000.1234");
    EXPECT_EQ(stored("calc_r_start_north", "5e6"), "5000000");
    EXPECT_EQ(stored("r_pt_dist", "12.5"), "12.5");
    EXPECT_EQ(stored("r_line_end_num", "+0010"), "10");
    EXPECT_EQ(stored("calc_r_start_azi", "-0.3030"), "-0.303000000");
    EXPECT_EQ(stored("calc_r_start_azi", "44.59599999999"), "45.000000000"); // not 60 seconds
    EXPECT_EQ(stored("calc_r_start_azi", "359.5959999"), "359.595999900");
}
