#include "reports/QualityReport.h"

#include "samples/ResultCompleter.h"
#include "tests/reports/ReportTest.h"

#include <QDir>

#include <cmath>

namespace {

class QualityReport : public ReportTest
{
protected:
    QualityReport() : ReportTest(writeQualityReport) {}

    /// A result at its design position that passes every test.
    static SurveyPoint good(const char* line, const char* number)
    {
        SurveyPoint point = MadeSurvey().measure(line, number);
        point.horizontalAccuracy = point.verticalAccuracy = 0.25;
        point.referenceDistance = 2500;
        point.dateTime = kNoon;
        return point;
    }
    void addTooFar(const char* line, const char* number, double dN)
    {
        SurveyPoint point = good(line, number);
        point.north += dN;
        m_survey.set(point);
    }
};

TEST_F(QualityReport, ListsWhatFailedWithItsWorstTest)
{
    m_survey.set(good("L", "1"));
    addTooFar("L", "2", 0.5); // on the limit
    addTooFar("L", "3", -1);
    SurveyPoint several = good("L", "4");
    several.east += 1;                // 2 times the limit
    several.horizontalAccuracy = 5;   // 10 times
    several.satelliteNumber = 2;      // a third of it
    several.referenceDistance = 1e4;  // on the limit
    several.qualityStandard = 100000; // of an older check
    m_survey.set(several);
    SurveyPoint low = good("L", "5");
    low.antennaHeight = 0.125;
    low.satelliteNumber = 2;
    m_survey.set(low);
    SurveyPoint beside = good("L", "6");
    beside.transversalDeviation = -0.75;
    m_survey.set(beside);
    ASSERT_TRUE(write().isDone());
    EXPECT_EQ(rows("Failures", {"Point"_q, "Code"_q, "What failed"_q, "Worst test"_q, "Value"_q,
                                "Limit"_q, "Value / limit"_q}),
              (Rows{{"3"_q, "1"_q, "Distance from design"_q, "Distance from design (m)"_q, "1"_q,
                     "0.5"_q, "2"_q},
                    {"4"_q, "1001001"_q, "Distance from design; Horizontal accuracy; Satellites"_q,
                     "Horizontal accuracy (m)"_q, "5"_q, "0.5"_q, "10"_q},
                    {"5"_q, "1020000"_q, "Antenna too low; Satellites"_q, "Antenna too low (m)"_q,
                     "0.125"_q, "0.5"_q, "0.25"_q},
                    {"6"_q, "10000000"_q, "Across the line"_q, "Across the line (m)"_q, "-0.75"_q,
                     "0.5"_q, "1.5"_q}}));
    EXPECT_EQ(
        rows("Failures", {"Time"_q, "dE (m)"_q, "dN (m)"_q, "d2D (m)"_q, "Base (km)"_q}).at(1),
        (QStringList{"45792.5"_q, "1"_q, "0"_q, "1"_q, "10"_q}));
}

TEST_F(QualityReport, MeasuresInMetresAlsoInAProjectInFeet)
{
    m_coords.set("unit_m", "0.3048");
    m_coords.set("factor", "3.280839895013123");
    m_coords.set("project_type", "1");
    addTooFar("L", "1", 1.5); // 0.457 m
    SurveyPoint beside = good("L", "2");
    beside.longitudinalDeviation = 2.5;
    m_survey.set(beside);
    ASSERT_TRUE(write().isDone());
    EXPECT_EQ(rows("Failures", {"Point"_q, "Value"_q, "Along (m)"_q}),
              (Rows{{"2"_q, "0.762"_q, "0.762"_q}}));
}

TEST_F(QualityReport, GivesEveryLineItsVerdict)
{
    for (const char* line : {"1", "2", "3", "4", "5", "6"}) {
        m_made.plan(line, "1");
        m_made.plan(line, "2");
    }
    for (const char* line : {"1", "2", "6", "7"})
        m_survey.set(good(line, "1"));
    m_survey.set(good("1", "2"));
    m_survey.set(good("1", "2F")); // a resurvey stakes nothing
    addTooFar("3", "1", 2);
    addTooFar("3", "2", -3);
    addTooFar("4", "1", 2);
    SurveyPoint lost = good("6", "2");
    lost.north = std::nan("");
    m_survey.set(lost);
    const QStringList columns{"Line"_q,          "Verdict"_q, "Staked"_q,     "Left"_q,
                              "Within limits"_q, "Failed"_q,  "Not judged"_q, "Worst point"_q};
    ASSERT_TRUE(write().isDone());
    const auto row = [](const char* cells) {
        return QString::fromUtf8(cells).split(QLatin1Char('|'));
    };
    EXPECT_EQ(
        rows("Lines", columns),
        (Rows{row("1|in order|2|0|3|0|0|"), row("2|not complete|1|1|1|0|0|"),
              row("3|has failed points|2|0|0|2|0|2"),
              row("4|has failed points, not complete|1|1|0|1|0|1"), row("5|not staked|0|2|0|0|0|"),
              row("6|not all judged|2|0|1|0|1|"), row("7|not in the design|0|0|1|0|0|")}));
    m_choice.fromMs = kNoon + 1;
    ASSERT_TRUE(write().isDone());
    EXPECT_EQ(rows("Lines", columns).at(2), row("3|no result chosen|2|0|0|0|0|"));
}

TEST_F(QualityReport, SumsUpByTestKindAndLine)
{
    m_survey.set(good("1", "1"));
    addTooFar("1", "2", 2);
    addTooFar("2", "1", 2);
    SurveyPoint source = good("3", "1");
    source.pointMark = 0;
    source.pdop = source.vdop = 4;
    m_survey.set(source);
    source.pointNumber = "2";
    m_survey.set(source);
    source.pointNumber = "3";
    source.pdop = 1;
    source.designNorth = source.designEast = 0;
    m_survey.set(source);
    EXPECT_EQ(write().text(), "Results judged: 6, failed: 5, on lines: 3, not judged: 0."_q);
    const Rows tests = summaryFrom("Test");
    EXPECT_EQ(tests.at(1), (QStringList{"VDOP"_q, "6"_q, "3"_q, "0.5"_q, "0 / 3"_q, "0"_q,
                                        "3 / 3"_q, "1"_q})); // the most failed first
    EXPECT_EQ(tests.at(2), (QStringList{"Distance from design"_q, "5"_q, "2"_q, "0.4"_q, "2 / 3"_q,
                                        "0.6666666666666666"_q, "0 / 2"_q, "0"_q}));
    EXPECT_EQ(tests.at(3).at(0), "PDOP"_q);
    EXPECT_EQ(tests.at(4).at(2), "0"_q);
    EXPECT_EQ(summaryFrom("Sources").at(0).mid(3),
              (QStringList{"3"_q, "0"_q, "3"_q, "1"_q, "0"_q}));
    // The worst lines from the top down: three of them, in two columns.
    const Rows lines = summaryFrom("Line");
    EXPECT_EQ(lines.at(1), (QStringList{"3"_q, "3"_q, "3"_q, "1"_q, "1"_q, "2"_q, "1"_q, "0.5"_q}));
    EXPECT_EQ(lines.at(2).mid(0, 4), (QStringList{"2"_q, "1"_q, "1"_q, "1"_q}));
}

TEST_F(QualityReport, SaysThatNothingFailedAndLeavesNothingWhenCancelled)
{
    m_survey.set(good("1", "1"));
    ASSERT_TRUE(write().isDone());
    EXPECT_EQ(summaryFrom("No result failed a test.").size(), 1U); // no chart, no worst lines
    EXPECT_TRUE(rows("Failures", {"Line"_q}).empty());

    m_folder.write("报告 1.xlsx", "old");
    for (int number = 0; number < 2000; ++number)
        addTooFar("2", std::to_string(number).c_str(), 9);
    int asked = 0;
    m_choice.isCancelled = [&] { return ++asked == 2; };
    EXPECT_EQ(write().kind(), Outcome::Kind::Refused);
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
    EXPECT_EQ(TestFolder::read(path()), "old");
}

} // namespace
