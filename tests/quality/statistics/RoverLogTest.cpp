#include "quality/statistics/RoverLog.h"

#include "tests/quality/statistics/MadeSurvey.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace statistics;

TEST(RoverSessions, OfEqualAndOfMissingTimesHaveNoPace)
{
    MadeSurvey survey;
    for (const char* number : {"1", "2", "3", "4"})
        survey.measure("1", number).dateTime *= *number < '3' ? 0 : 1;
    const std::vector<RoverSession> sessions = roverSessionsOf(survey.sample());
    ASSERT_EQ(sessions.size(), 2U);
    EXPECT_EQ(sessions[0].day, KeyValue::kNoNumber);
    EXPECT_EQ(sessions[0].points(), 2U);
    EXPECT_TRUE(std::isnan(sessions[0].hours()) && std::isnan(sessions[0].pointsAnHour()));
    EXPECT_TRUE(std::isnan(sessions[0].longestGapMinutes));
    EXPECT_EQ(sessions[1].hours(), 0);
    EXPECT_EQ(sessions[1].longestGapMinutes, 0);
    EXPECT_TRUE(std::isnan(sessions[1].pointsAnHour()));
}
