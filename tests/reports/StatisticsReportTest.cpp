#include "reports/StatisticsReport.h"

#include "tests/reports/ReportTest.h"

#include <cmath>

namespace {

class StatisticsReport : public ReportTest
{
protected:
    StatisticsReport() : ReportTest(writeQualityStatistics) {}

    /// A result at a distance from its design position, at noon of a day.
    SurveyPoint& measure(const char* number, double dE, double dN, double dH, int day = 0)
    {
        SurveyPoint& point = m_made.measure("1", number);
        point.east += dE;
        point.north += dN;
        point.elevation += dH;
        point.dateTime = MadeSurvey::kNoonMs + day * 86400000LL;
        return point;
    }
};

void expectNear(const QStringList& cells, const std::vector<double>& expected)
{
    ASSERT_EQ(std::size_t(cells.size()), expected.size());
    for (int i = 0; i < cells.size(); ++i)
        EXPECT_NEAR(cells[i].toDouble(), expected[std::size_t(i)], 1e-6) << i;
}

TEST_F(StatisticsReport, TellsTheFiguresOfALine)
{
    for (const char* number : {"11", "12", "13", "14"})
        m_made.plan("1", number, 1);
    m_made.plan("2", "11", 0); // a line that nobody has begun
    measure("11", 0.3, 0.4, 0.1).satelliteNumber = 7;
    measure("12", -0.1, 0, 0.3).horizontalAccuracy = 0.06;
    measure("13", 3, 4, -0.1).pdop = 2.5; // too far
    measure("99", 0, 0, 0.5).solutionType = 5;
    measure("12F", 9, 9, 9); // checks a point and is none of the figures
    ASSERT_TRUE(write().isDone());

    const Rows counts =
        rows("Lines", {"Designed"_q, "Staked"_q, "Left"_q, "Not planned"_q, "Within limits"_q,
                       "Over limit"_q, "Within limits (%)"_q, "Maximum at"_q, "Fewest satellites"_q,
                       "Worst PDOP"_q, "Fixed (%)"_q});
    EXPECT_EQ(counts[0].join(QLatin1Char('|')), "4|3|1|1|3|1|0.75|1 / 13|7|2.5|0.75"_q);
    EXPECT_EQ(counts[1].join(QLatin1Char('|')), "1|0|1|0|0|0|||||"_q);
    const Rows lines = rows("Lines", {"Mean dE (m)"_q, "Std. dev. dE (m)"_q, "Mean dN (m)"_q,
                                      "Std. dev. dN (m)"_q, "Mean dH (m)"_q, "Std. dev. dH (m)"_q,
                                      "RMS 2D (m)"_q, "95 % 2D (m)"_q, "Maximum 2D (m)"_q,
                                      "Mean hor. accuracy (m)"_q, "Mean vert. accuracy (m)"_q});
    // dE 0.3 -0.1 3 0, dN 0.4 0 4 0, dH 0.1 0.3 -0.1 0.5; n - 1 = 3.
    expectNear(lines[0], {0.8, std::sqrt(6.54 / 3), 1.1, std::sqrt(11.32 / 3), 0.2,
                          std::sqrt(0.2 / 3), std::sqrt((0.25 + 0.01 + 25) / 4), 5, 5, 0.015, 0});
    EXPECT_EQ(summary("Sources"), (QStringList{"1"_q, "0"_q, "0"_q, "1"_q, "0"_q, "0"_q, "0"_q}));
    EXPECT_EQ(summary("Receivers"),
              (QStringList{"4"_q, "3"_q, "0.75"_q, "1"_q, "1"_q, "1"_q, "0"_q}));
    expectNear(summary("Height").mid(0, 5),
               {0.2, std::sqrt(0.2 / 3), std::sqrt(0.36 / 4), 0.5, 0.5});
    EXPECT_EQ(summary("North").mid(5), (QStringList{"1"_q, "13"_q}));
}

TEST_F(StatisticsReport, GroupsByDayRoverSurveyorAndBase)
{
    for (const char* number : {"11", "12", "13", "14", "15"})
        m_made.plan("1", number);
    const auto set = [](SurveyPoint& point, const char* rover, const char* crew, const char* base) {
        point.instrumentSerialNumber = rover;
        point.surveyor = crew;
        point.baseStationId = base;
    };
    set(measure("11", 0, 0, 0.05, 1), "A", "Li", "B1");
    set(measure("12", 0, 0, 0.07, 0), "A", "Wang", "B1");
    set(measure("13", 0, 0, 0, 1), "B", "Wang", "B2");
    measure("14", 0, 0, 0).dateTime = 0;
    const Outcome outcome = write();
    ASSERT_TRUE(outcome.isDone());
    EXPECT_TRUE(outcome.text().startsWith("Staked: 4 of 5 design points, within limits: 4 of 4"_q));

    const QStringList counts{"Staked"_q, "Staked (%)"_q, "Designed"_q, "Left"_q, "Shift"_q};
    EXPECT_EQ(
        rows("Days", QStringList{"Day"_q, "Staked until then"_q, "Designed in all"_q} + counts),
        (Rows{{"none given"_q, "1"_q, "5"_q, "1"_q, "0.2"_q, {}, {}, {}},
              {"45499"_q, "2"_q, "5"_q, "1"_q, "0.2"_q, {}, {}, {}},
              {"45500"_q, "4"_q, "5"_q, "2"_q, "0.4"_q, {}, {}, {}}}));
    EXPECT_EQ(rows("Surveyors", {"Surveyor"_q, "Staked"_q}),
              (Rows{{"none given"_q, "1"_q}, {"Li"_q, "1"_q}, {"Wang"_q, "2"_q}}));
    // Base B1: 0.05 and 0.07 m, their mean 0.06 is above 3 x 0.0141 / root of 2 = 0.03.
    EXPECT_EQ(rows("Bases", {"Base"_q, "Shift"_q}),
              (Rows{{"none given"_q, {}}, {"B1"_q, "dH"_q}, {"B2"_q, {}}}));
    EXPECT_FALSE(summary("Base B1").empty());
    EXPECT_TRUE(summary("Base B2").empty());
    // What has no day is in the second row, and not on the curve.
    EXPECT_TRUE(book().part("xl/charts/chart1.xml"_q).contains("Days!$A$3:$A$4"));

    m_choice.surveyors = QStringList{"Wang"_q};
    ASSERT_TRUE(write().isDone());
    EXPECT_EQ(summary("All").mid(0, 4), (QStringList{"5"_q, "2"_q, "0.4"_q, "1"_q}));
}

TEST_F(StatisticsReport, ComparesPointsMeasuredTwice)
{
    SurveyPoint& first = measure("11", 0, 0, 0);
    first.instrumentSerialNumber = "A";
    first.baseStationId = "B1";
    SurveyPoint& second = measure("11F", 0.03, -0.04, 0.02, 1);
    second.instrumentSerialNumber = "B";
    second.baseStationId = "B2";
    measure("12", 0, 0, 0);
    measure("12F", 0, 0, 0.06);
    measure("13F", 0, 0, 0);
    measure("10010011", 0, 0, 0);
    measure("C10010011_0", 0.003, 0.004, 0);
    ASSERT_TRUE(write().isDone());

    const QStringList differences{"Finding"_q, "dE second - first (m)"_q, "dN second - first (m)"_q,
                                  "2D (m)"_q, "dH second - first (m)"_q};
    const Rows pairs = rows("Resurveys", differences);
    ASSERT_EQ(pairs.size(), 11U);
    EXPECT_EQ(pairs[0][0], "beyond tolerance"_q);
    expectNear(pairs[0].mid(1), {0.03, -0.04, 0.05, 0.02});
    EXPECT_EQ(pairs[2], (QStringList{"no first measurement"_q, {}, {}, {}, {}}));
    EXPECT_EQ(pairs[8][0], "RMS / √2"_q);
    expectNear(pairs[8].mid(1), {0.015, 0.02, 0.025, 0.0316228});
    EXPECT_EQ(pairs[10][0], "Maximum"_q);
    expectNear(pairs[10].mid(1), {0.03, -0.04, 0.05, 0.06});
    EXPECT_EQ(
        rows("Resurveys", {"First point"_q, "Second point"_q, "First rover"_q, "Second rover"_q,
                           "First base"_q, "Second base"_q, "Hours between"_q, "First time"_q})[0],
        (QStringList{"11"_q, "11F"_q, "A"_q, "B"_q, "B1"_q, "B2"_q, "24"_q,
                     "45499.83333333333"_q}));
    EXPECT_EQ(book().attributes("Resurveys"_q, "autoFilter", "ref"),
              QStringList{"A1:R4"_q}); // without the figures
    EXPECT_EQ(rows("Repeats", {"First point"_q, "Second point"_q, "Finding"_q})[0],
              (QStringList{"10010011"_q, "C10010011"_q, {}}));
    EXPECT_EQ(summary("Resurveys")[0], "2"_q);
    EXPECT_NEAR(summary("Repeats")[5].toDouble(), 0.005 / std::sqrt(2), 1e-9);
}

TEST_F(StatisticsReport, OfNothingIsAWorkbookOfBlanks)
{
    ASSERT_TRUE(write().isDone());
    EXPECT_EQ(book().sheets(),
              (QStringList{"Summary"_q, "Lines"_q, "Days"_q, "Rovers"_q, "Surveyors"_q, "Bases"_q,
                           "Distribution"_q, "Resurveys"_q, "Repeats"_q, "Limits"_q}));
    EXPECT_EQ(summary("East"), QStringList({{}, {}, {}, {}, {}, {}, {}}));
    EXPECT_EQ(rows("Limits", {"Limit or figure"_q}).back(), QStringList{"Distribution"_q});
}

} // namespace
