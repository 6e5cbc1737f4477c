#include "reports/RoverReport.h"

#include "tests/reports/ReportTest.h"

#include <cmath>

namespace {

class RoverLog : public ReportTest
{
protected:
    RoverLog() : ReportTest(writeRoverLog) {}

    SurveyPoint& measure(const char* number, double minutesAfterNoon, const char* rover = "R1",
                         const char* base = "B1")
    {
        SurveyPoint& point = m_made.measure("L1", number);
        point.dateTime = kNoon + std::int64_t(minutesAfterNoon * 60000);
        point.instrumentSerialNumber = rover;
        point.surveyor = "Li";
        point.baseStationId = base;
        return point;
    }

    /// The rows below the headings and their groups.
    [[nodiscard]] Rows rows(const char* sheet) const
    {
        Rows all = book().rows(QString::fromUtf8(sheet));
        all.erase(all.begin(), all.begin() + 2);
        return all;
    }
};

TEST_F(RoverLog, SplitsSessionsAtTheMidnightOfTheShownZone)
{
    measure("3", 11 * 60); // 23:00; numbers do not follow the times
    measure("2", 11.5 * 60);
    measure("1", 11 * 60 + 45).pointMark = 0;
    measure("1F", 12.5 * 60).solutionType = 5; // the same day in UTC
    const Outcome outcome = write();
    ASSERT_TRUE(outcome.isDone());
    EXPECT_EQ(outcome.text(),
              "Sessions: 2, gaps over 30 minutes: 0, bases: 1, of these moved: 0."_q);
    const auto sessions = rows("Sessions");
    ASSERT_EQ(sessions.size(), 2U);
    EXPECT_EQ(sessions[0].mid(0, 4), (QStringList{"45792"_q, "R1"_q, "Li"_q, "B1"_q}));
    EXPECT_NEAR(sessions[0][4].toDouble(), 45792 + 23 / 24.0, 1e-9);
    EXPECT_NEAR(sessions[0][5].toDouble(), 45792 + 23.75 / 24.0, 1e-9);
    EXPECT_EQ(sessions[0].mid(6, 8),
              (QStringList{"0.75"_q, "30"_q, "3"_q, "2"_q, "1"_q, "0"_q, "0"_q, "4"_q}));
    EXPECT_EQ(sessions[0].mid(24, 2), (QStringList{"3"_q, "0"_q})); // fixed, float
    EXPECT_EQ(sessions[1][0], "45793"_q);
    EXPECT_EQ(sessions[1].mid(6, 8),
              (QStringList{"0"_q, {}, "1"_q, "1"_q, "0"_q, "1"_q, "0"_q, {}}));
}

TEST_F(RoverLog, TellsWhatASessionMeasuredWith)
{
    m_quality.set("pdop_max", "2.5");
    SurveyPoint& first = measure("1", 0);
    first.pdop = 1.5;
    first.horizontalAccuracy = 0.25;
    first.antennaHeight = 1.8;
    first.referenceDistance = 500;
    SurveyPoint& second = measure("2", 1);
    second.pdop = 3;
    second.satelliteNumber = 5;
    second.horizontalAccuracy = 0.5;
    second.referenceDistance = 12000;
    SurveyPoint& third = measure("3", 2);
    third.pdop = std::nan("");
    third.antennaHeight = 1.8;
    ASSERT_TRUE(write().isDone());
    const QStringList session = rows("Sessions").at(0);
    EXPECT_EQ(session.mid(14, 4), (QStringList{"1"_q, "1"_q, "2.25"_q, "3"_q}));
    EXPECT_EQ(session.mid(19, 3), (QStringList{"5"_q, "0.25"_q, "0.5"_q}));
    EXPECT_EQ(session.mid(25, 4), (QStringList{"1.800; 2.000"_q, "1.8"_q, "2"_q, "2"_q}));
    EXPECT_EQ(session.last(), "12"_q);
    const QStringList rules = book().texts("Sessions"_q, "formula");
    for (const char* const rule :
         {"ABS(R3)>2.5)", "T3<6)", "AA3<0.5)", "ABS(AB3)>2.5)", "ABS(AE3)>10)"})
        EXPECT_FALSE(rules.filter(QLatin1String(rule)).empty()) << rule;
}

TEST_F(RoverLog, ListsGapsLongerThanHalfAnHour)
{
    measure("C10012034_12", 30).north += 40; // after exactly half an hour
    measure("9", 0);
    measure("8", 60.5, "R1", "B2").east += 30;
    ASSERT_TRUE(write().isDone());
    const auto gaps = rows("Gaps over 30 minutes");
    ASSERT_EQ(gaps.size(), 1U);
    EXPECT_EQ(gaps[0].mid(0, 3), (QStringList{"45792"_q, "R1"_q, "Li"_q}));
    EXPECT_NEAR(gaps[0][3].toDouble(), 45792.5 + 30 / 1440.0, 1e-9);
    EXPECT_EQ(gaps[0].mid(5), (QStringList{"30.5"_q, "L1"_q, "C10012034"_q, "B1"_q, "L1"_q, "8"_q,
                                           "B2"_q, "50"_q}));
}

TEST_F(RoverLog, TellsWhichBaseWasMovedSinceWhen)
{
    for (const auto& [key, value] :
         {std::pair("unit_m", "0.3048"), {"factor", "3.280839895013123"}, {"project_type", "1"}})
        m_coords.set(key, value);
    const auto place = [](SurveyPoint& point, double north) -> SurveyPoint& {
        point.referenceNorth = 4000 + north; // feet
        point.referenceEast = 500;
        return point;
    };
    place(measure("5", 0), 0).referenceDistance = 2500;
    place(measure("4", 10, "R2"), 0.015625); // rounding
    place(measure("2", 30), 1.5);
    place(measure("6", 0, "R1", ""), 0);
    place(measure("7", 1, "R1", ""), 100); // another one, perhaps
    ASSERT_TRUE(write().text().endsWith("bases: 2, of these moved: 1."_q));
    const Rows bases = rows("Bases");
    EXPECT_EQ(bases[0][0], "none given"_q);
    EXPECT_EQ(bases[0].mid(12, 6).join(QString()), QString());
    EXPECT_EQ(bases[1].mid(0, 4), (QStringList{"B1"_q, "R1; R2"_q, "1"_q, "3"_q}));
    EXPECT_EQ(bases[1].mid(11, 3), (QStringList{"L1 / 5"_q, "yes"_q, "1"_q}));
    EXPECT_EQ(bases[1][15], "L1 / 2"_q);
    EXPECT_NEAR(bases[1][16].toDouble(), 0.4572, 1e-9);
    EXPECT_EQ(bases[1][17], "0"_q);
}

TEST_F(RoverLog, OfNoResultsIsAWorkbook)
{
    ASSERT_TRUE(write().isDone());
    EXPECT_EQ(book().sheets(), (QStringList{"Summary"_q, "Sessions"_q, "Gaps over 30 minutes"_q,
                                            "Bases"_q, "Limits"_q}));
}

} // namespace
