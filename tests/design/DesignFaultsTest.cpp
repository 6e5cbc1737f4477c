#include "design/DesignFaults.h"

#include "basalt_utilities/Dictionary.h"
#include "design/DesignGenerator.h"
#include "lum_sdk/events/ProgressReporter.h"

#include <gtest/gtest.h>

namespace {

std::string faultIn(const char* key, const QString& text)
{
    const auto fault = faultOf(*findDesignParameter(key), text);
    return fault ? fault->text.toStdString() : "";
}

struct Refusal
{
    const char* key;
    const char* value;
    const char* text;
};

} // namespace

TEST(DesignFaults, TextsThatAreNoNumberOfTheirKind)
{
    for (const Refusal& refusal : {
             Refusal{"r_line_dist", " ", "R-Line Dist: there is no value."},
             {"s_pt_dist", "fifteen", "S-Point Dist: \"fifteen\" is not a number."},
             {"s_pt_dist", "15,5", "S-Point Dist: \"15,5\" is not a number."},
             {"s_pt_dist", "nan", "S-Point Dist: \"nan\" is not a number."},
             {"s_line_dist", "1e308", "S-Line Dist: 1e308 is too large. At most 10,000,000."},
             {"calc_r_start_north", "-inf",
              "Start North (Receive Line): -inf is too large. At most 1,000,000,000."},
             {"calc_s_start_azi", "12.60",
              "Azimuth (Send Line): 12.60 has more than 59 minutes or seconds (dd.mmss)."},
             {"calc_s_start_azi", "-12.0060",
              "Azimuth (Send Line): -12.0060 has more than 59 minutes or seconds (dd.mmss)."},
             {"calc_s_start_azi", "361", "Azimuth (Send Line): 361 is too large. At most 360."},
             {"r_line_end_num", "10.0", "R-Line End No.: \"10.0\" is not a whole number."},
             {"r_line_end_num", "3000000000",
              "R-Line End No.: 3000000000 is not between -2,147,483,648 and 2,147,483,647."},
             {"r_line_end_num", "99999999999999999999",
              "R-Line End No.: \"99999999999999999999\" is not a whole number."},
             {"r_pt_base", "-1", "R-Point Base: -1 is not between 0 and 100."},
             {"r_pt_base", "1000000000", "R-Point Base: 1000000000 is not between 0 and 100."},
             {"r_pt_step", "0", "R-Point Step: a step of 0 is not allowed."},
         })
        EXPECT_EQ(faultIn(refusal.key, QString::fromUtf8(refusal.value)), refusal.text);
    for (const char* angle : {"0", "-0.00", "12.34", "359.5959999", "-359.595999999", "360"})
        EXPECT_EQ(faultIn("calc_r_start_azi", QLatin1String(angle)), "") << angle;
    EXPECT_EQ(faultIn("r_pt_base", QStringLiteral("40")), "");
    EXPECT_EQ(faultIn("r_line_step", QStringLiteral("-3")), "");
}

TEST(DesignFaults, GridsThatNeverEndOrAreTooLargeChangeNothing)
{
    ProgressReporter nobody(nullptr);
    DesignPoints points;
    DesignPoint old;
    old.lineNumber = old.pointNumber = "1";
    points.set(old);
    for (const Refusal& refusal : {
             Refusal{"s_line_step", "-10",
                     "S-Line Step: with a step of -10 the numbers from 0 never reach 1000."},
             {"s_pt_step", "-2147483648",
              "S-Point Step: with a step of -2147483648 the numbers from 0 never reach 1000."},
             {"s_pt_end_num", "2147483647",
              "S-Point End No.: the grid would have 101 lines x 214,748,365 points. At most "
              "20,000,000 points in all."},
             {"s_pt_end_num", "1980100",
              "The design would have 20,009,312 points. At most 20,000,000 points in all."},
             {"s_line_step", "0", "S-Line Step: a step of 0 is not allowed."},
             {"s_line_dist", "near", "S-Line Dist: \"near\" is not a number."},
         }) {
        basalt::Dictionary parameters;
        parameters.set(refusal.key, refusal.value);
        const Outcome outcome = generateDesign(parameters, DesignLines::Both, points, nobody);
        EXPECT_EQ(outcome.kind(), Outcome::Kind::Refused);
        EXPECT_EQ(outcome.text().toStdString(), refusal.text);
        EXPECT_EQ(points.pointCount(), 1U);
        EXPECT_TRUE(generateDesign(parameters, DesignLines::Receiver, points, nobody).isDone());
        points.clear();
        points.set(old);
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
