#include "quality/statistics/RoverLog.h"

#include "tests/quality/statistics/MadeSurvey.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace statistics;

constexpr std::int64_t kMinuteMs = 60000;

/// \param minute after noon, UTC
SurveyPoint& measure(MadeSurvey& survey, const char* number, double minute, const char* base = "B1")
{
    SurveyPoint& point = survey.measure("1", number);
    point.dateTime += static_cast<std::int64_t>(minute * kMinuteMs);
    point.instrumentSerialNumber = "R1";
    point.surveyor = "Li";
    point.baseStationId = base;
    return point;
}

} // namespace

TEST(RoverSessions, TellWhatARoverDidWithABaseOnADay)
{
    MadeSurvey survey;
    measure(survey, "9", 0).antennaHeight = 2; // numbers do not follow the times
    measure(survey, "8", 20).antennaHeight = 1.8;
    measure(survey, "7", 25).antennaHeight = 2;
    measure(survey, "7F", 75).pdop = 2.5;
    measure(survey, "C00000008_0", 80).satelliteNumber = 4; // too few
    measure(survey, "6", 90).pointMark = 0;
    SurveyPoint& last = measure(survey, "5", 120);
    last.solutionType = 5;
    last.antennaHeight = NAN;
    last.referenceDistance = 3000;
    measure(survey, "4", 60, "B2");
    const std::vector<RoverSession> sessions = roverSessionsOf(survey.sample());
    ASSERT_EQ(sessions.size(), 2U);
    const RoverSession& session = sessions[0];
    EXPECT_EQ(session.rover + session.surveyor + session.base, "R1LiB1");
    EXPECT_EQ(session.day, 19930);
    EXPECT_EQ(session.firstMs, MadeSurvey::kNoonMs);
    EXPECT_EQ(session.pointsAnHour(), 3.5);
    EXPECT_EQ(session.longestGapMinutes, 50);
    using Counts = std::vector<std::size_t>;
    EXPECT_EQ((Counts{session.receivers, session.sources, session.resurveys, session.repeats}),
              (Counts{6, 1, 1, 1}));
    EXPECT_EQ((Counts{session.failed, session.notJudged}), (Counts{1, 1}));
    EXPECT_EQ((std::vector{session.pdop.maximum(), session.satellites.minimum(),
                           session.baseDistanceM.maximum()}),
              (std::vector{2.5, 4.0, 3000.0}));
    EXPECT_EQ(session.solutions, (std::map<int, std::size_t>{{4, 6}, {5, 1}}));
    EXPECT_EQ(session.antennaHeightsM, (std::vector{1.8, 2.0}));
    EXPECT_EQ(session.antennaChanges, 2U);

    EXPECT_EQ(sessions[1].hours(), 0); // of a single point
    EXPECT_TRUE(std::isnan(sessions[1].pointsAnHour()));
    EXPECT_TRUE(std::isnan(sessions[1].longestGapMinutes));
}

TEST(RoverSessions, OfEqualAndOfMissingTimesHaveNoPace)
{
    MadeSurvey survey;
    for (const char* number : {"1", "2", "3", "4"})
        measure(survey, number, 0).dateTime *= *number < '3' ? 0 : 1;
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

TEST(Bases, TellThatABaseWasMoved)
{
    MadeSurvey survey;
    survey.limits.planeUnitM = 0.5;
    const auto place = [](SurveyPoint& point, double north, double altitude) {
        point.referenceNorth = 4000000 + north;
        point.referenceEast = 500000;
        point.referenceAltitude = altitude;
    };
    place(measure(survey, "3", 10), 0, 100);
    place(measure(survey, "2", 2000), -3, 100.25);
    place(measure(survey, "1", 20), 1, 99.875);
    place(measure(survey, "6", 30), 0, 100.015625); // rounding
    measure(survey, "0", 0);                        // the first, but without a position of the base
    measure(survey, "4", 0).dateTime = 0;
    measure(survey, "5", 0, "B2").dateTime = 0;
    survey.results.find("1", "2")->instrumentSerialNumber = "R2";
    const std::vector<BaseUse> bases = basesOf(survey.sample());
    ASSERT_EQ(bases.size(), 2U);
    EXPECT_EQ(bases[0].first->pointNumber, "3");
    EXPECT_EQ(bases[0].movedM, 1.5);
    EXPECT_EQ(bases[0].movedHeightM, 0.25);
    EXPECT_EQ((std::vector{bases[0].results, bases[0].days, bases[0].rovers}),
              (std::vector<std::size_t>{6, 2, 2}));
    EXPECT_EQ(bases[0].elsewhere, 2U);
    EXPECT_EQ(bases[0].firstElsewhere->pointNumber, "1");
    EXPECT_EQ(bases[0].firstMs, MadeSurvey::kNoonMs);
    EXPECT_EQ(bases[0].lastMs, MadeSurvey::kNoonMs + 2000 * kMinuteMs);
    EXPECT_EQ(bases[1].firstMs, 0);
    EXPECT_EQ(bases[1].movedM, 0);
}
