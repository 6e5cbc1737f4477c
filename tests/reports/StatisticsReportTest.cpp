#include "reports/StatisticsReport.h"

#include "lum_sdk/events/ProgressReporter.h"
#include "reports/ReportInput.h"
#include "tests/quality/statistics/MadeSurvey.h"
#include "tests/support/Literals.h"
#include "tests/support/TestFolder.h"
#include "tests/support/WorkbookReader.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using Rows = std::vector<QStringList>;

class StatisticsReport : public testing::Test
{
protected:
    [[nodiscard]] QString path() const { return m_folder.path("统计 1.xlsx"); }

    Outcome write()
    {
        return writeQualityStatistics(path(), {m_made.design, m_made.results, m_quality, m_coords,
                                               "P"_q, "p"_q, "1.0"_q, m_choice, m_progress});
    }

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

    /// The cells below the heading of some columns; all of them when none is named.
    [[nodiscard]] Rows rows(const char* sheet, const QStringList& columns = {}) const
    {
        const Rows all = WorkbookReader(path()).rows(QString::fromUtf8(sheet));
        Rows chosen;
        for (std::size_t row = 1; row < all.size(); ++row) {
            QStringList& cells = chosen.emplace_back();
            for (const QString& column : columns.isEmpty() ? all[0] : columns)
                cells << all[row].value(all[0].indexOf(column));
        }
        return chosen;
    }

    /// The rows of the summary that begin with this text, without it.
    [[nodiscard]] Rows summary(const char* label) const
    {
        Rows found;
        for (const QStringList& row : WorkbookReader(path()).rows("Summary"_q)) {
            if (row.value(0) == QString::fromUtf8(label))
                found.push_back(row.mid(1));
        }
        return found;
    }

    TestFolder m_folder;
    MadeSurvey m_made;
    basalt::Dictionary m_quality;
    basalt::Dictionary m_coords;
    ReportChoice m_choice;
    ProgressReporter m_progress{nullptr};
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

    EXPECT_EQ(rows("Lines", {"Line"_q, "Designed"_q, "Staked"_q, "Staked (%)"_q, "Left"_q,
                             "Not planned"_q, "Within limits"_q, "Over limit"_q, "Not judged"_q,
                             "Within limits (%)"_q, "Maximum at"_q, "Fewest satellites"_q,
                             "Worst PDOP"_q, "Fixed (%)"_q, "Shift"_q}),
              (Rows{{"1"_q,
                     "4"_q,
                     "3"_q,
                     "0.75"_q,
                     "1"_q,
                     "1"_q,
                     "3"_q,
                     "1"_q,
                     "0"_q,
                     "0.75"_q,
                     "1 / 13"_q,
                     "7"_q,
                     "2.5"_q,
                     "0.75"_q,
                     {}},
                    {"2"_q,
                     "1"_q,
                     "0"_q,
                     "0"_q,
                     "1"_q,
                     "0"_q,
                     "0"_q,
                     "0"_q,
                     "0"_q,
                     {},
                     {},
                     {},
                     {},
                     {},
                     {}}}));
    const Rows lines = rows("Lines", {"Mean dE (m)"_q, "Std. dev. dE (m)"_q, "Mean dN (m)"_q,
                                      "Std. dev. dN (m)"_q, "Mean dH (m)"_q, "Std. dev. dH (m)"_q,
                                      "RMS 2D (m)"_q, "95 % 2D (m)"_q, "Maximum 2D (m)"_q,
                                      "Mean hor. accuracy (m)"_q, "Mean vert. accuracy (m)"_q});
    // dE 0.3 -0.1 3 0, dN 0.4 0 4 0, dH 0.1 0.3 -0.1 0.5; n - 1 = 3.
    expectNear(lines[0], {0.8, std::sqrt(6.54 / 3), 1.1, std::sqrt(11.32 / 3), 0.2,
                          std::sqrt(0.2 / 3), std::sqrt((0.25 + 0.01 + 25) / 4), 5, 5, 0.015, 0});
    EXPECT_EQ(summary("Sources")[0],
              (QStringList{"1"_q, "0"_q, "0"_q, "1"_q, "0"_q, "0"_q, "0"_q}));
    EXPECT_EQ(summary("Receivers")[0],
              (QStringList{"4"_q, "3"_q, "0.75"_q, "1"_q, "1"_q, "1"_q, "0"_q}));
    expectNear(summary("Height")[0].mid(0, 5),
               {0.2, std::sqrt(0.2 / 3), std::sqrt(0.36 / 4), 0.5, 0.5});
    EXPECT_EQ(summary("North")[0].mid(5), (QStringList{"1"_q, "13"_q}));
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
    EXPECT_EQ(rows("Rovers", QStringList{"Rover"_q} + counts).back(),
              (QStringList{"B"_q, "1"_q, "0.2"_q, {}, {}, {}}));
    EXPECT_EQ(rows("Surveyors", {"Surveyor"_q, "Staked"_q}),
              (Rows{{"none given"_q, "1"_q}, {"Li"_q, "1"_q}, {"Wang"_q, "2"_q}}));
    // Base B1: 0.05 and 0.07 m, their mean 0.06 is above 3 x 0.0141 / root of 2 = 0.03.
    EXPECT_EQ(rows("Bases", {"Base"_q, "Shift"_q}),
              (Rows{{"none given"_q, {}}, {"B1"_q, "dH"_q}, {"B2"_q, {}}}));
    EXPECT_EQ(summary("Base B1").size(), 1U);
    EXPECT_TRUE(summary("Base B2").empty());
    // What has no day is in the second row, and not on the curve.
    EXPECT_TRUE(WorkbookReader(path()).part("xl/charts/chart1.xml"_q).contains("Days!$A$3:$A$4"));

    m_choice.surveyors = QStringList{"Wang"_q};
    ASSERT_TRUE(write().isDone());
    EXPECT_EQ(summary("All")[0].mid(0, 4), (QStringList{"5"_q, "2"_q, "0.4"_q, "1"_q}));
}

TEST_F(StatisticsReport, CountsClassesOfDistance)
{
    for (const char* number : {"11", "12", "13", "14"})
        m_made.plan("1", number);
    measure("11", 0.05, 0, 0); // on the end of its class
    measure("12", 0, 0.06, 0);
    measure("13", 6, 0, 0).pointMark = 0;
    measure("14", std::nan(""), 0, 0);
    ASSERT_TRUE(write().isDone());
    const Rows rows = WorkbookReader(path()).rows("Distribution"_q);
    const auto row = [&](std::size_t place) { return rows[place + 3]; }; // below three of headings
    EXPECT_EQ(row(0).mid(0, 8), (QStringList{"up to 0.05"_q, "1"_q, "0.3333333333333333"_q, "1"_q,
                                             "0.3333333333333333"_q, "1"_q, "0.5"_q, "1"_q}));
    EXPECT_EQ(row(1).mid(3, 1), QStringList{"2"_q});
    EXPECT_EQ(row(8).mid(0, 4), (QStringList{"over 5"_q, "1"_q, "0.3333333333333333"_q, "3"_q}));
    EXPECT_EQ(row(8).mid(9), (QStringList{"1"_q, "1"_q, "1"_q, "1"_q})); // sources
    EXPECT_EQ(row(10).value(1) + row(11).value(1), "31"_q);
    EXPECT_EQ(summary("Points not judged")[0], QStringList{"1"_q});
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
    const std::vector<std::pair<const char*, std::vector<double>>> figures{
        {"Pairs", {2, 2, 2, 2}},
        {"Mean", {0.015, -0.02, 0.025, 0.04}},
        {"Std. dev.", {0.0212132, 0.0282843, 0.0353553, 0.0282843}},
        {"RMS", {0.0212132, 0.0282843, 0.0353553, 0.0447214}},
        {"RMS / √2", {0.015, 0.02, 0.025, 0.0316228}},
        {"95 %", {0.03, 0.04, 0.05, 0.06}},
        {"Maximum", {0.03, -0.04, 0.05, 0.06}}};
    for (std::size_t i = 0; i < figures.size(); ++i) {
        EXPECT_EQ(pairs[i + 4][0], QString::fromUtf8(figures[i].first));
        expectNear(pairs[i + 4].mid(1), figures[i].second);
    }
    EXPECT_EQ(
        rows("Resurveys", {"First point"_q, "Second point"_q, "First rover"_q, "Second rover"_q,
                           "First base"_q, "Second base"_q, "Hours between"_q, "First time"_q})[0],
        (QStringList{"11"_q, "11F"_q, "A"_q, "B"_q, "B1"_q, "B2"_q, "24"_q,
                     "45499.83333333333"_q}));
    EXPECT_EQ(WorkbookReader(path()).attributes("Resurveys"_q, "autoFilter", "ref"),
              QStringList{"A1:R4"_q}); // without the figures
    EXPECT_EQ(rows("Repeats", {"First point"_q, "Second point"_q, "Finding"_q})[0],
              (QStringList{"10010011"_q, "C10010011"_q, {}}));
    EXPECT_EQ(summary("Resurveys")[0][0], "2"_q);
    EXPECT_NEAR(summary("Repeats")[0][5].toDouble(), 0.005 / std::sqrt(2), 1e-9);
}

TEST_F(StatisticsReport, OfNothingIsAWorkbookOfBlanks)
{
    ASSERT_TRUE(write().isDone());
    EXPECT_EQ(WorkbookReader(path()).sheets(),
              (QStringList{"Summary"_q, "Lines"_q, "Days"_q, "Rovers"_q, "Surveyors"_q, "Bases"_q,
                           "Distribution"_q, "Resurveys"_q, "Repeats"_q, "Limits"_q}));
    EXPECT_EQ(summary("East")[0], QStringList({{}, {}, {}, {}, {}, {}, {}}));
    EXPECT_EQ(rows("Limits", {"Limit or figure"_q}).back(), QStringList{"Distribution"_q});
}

} // namespace
