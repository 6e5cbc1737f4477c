#include "quality/QualityLimits.h"
#include "reports/SurveyResultsReport.h"
#include "tests/reports/ReportTest.h"

#include <cmath>

namespace {

class SurveyResults : public ReportTest
{
protected:
    SurveyResults() : ReportTest(writeSurveyResults) {}

    /// A result at a design position of 5000, 3000, 10.
    static SurveyPoint result(const char* line, const char* number, double dN, double dE,
                              double dH = 0)
    {
        SurveyPoint point = surveyPoint(line, number);
        point.pointMark = 1;
        point.designNorth = 5000;
        point.designEast = 3000;
        point.designElevation = 10;
        point.north = 5000 + dN;
        point.east = 3000 + dE;
        point.elevation = 10 + dH;
        point.dateTime = kNoon;
        return point;
    }
};

TEST_F(SurveyResults, ListsDesignPointsWithoutAResultOfTheirName)
{
    for (const char* number : {"1001", "1002", "1003"})
        m_design.set({"L1", number, 1.5, 2.5, 3.5, 0, 1, 0});
    m_design.set({"L2", "1001", 1.5, 2.5, 3.5, 0, 0, 0});
    m_survey.set(result("L1", "1001", 0, 0));
    m_survey.set(result("L1", "1002F", 0, 0)); // a resurvey
    m_survey.set(result("L3", "1003", 0, 0));  // of another line
    ASSERT_TRUE(write().isDone());
    EXPECT_EQ(rows("Not staked"), (Rows{{"L1"_q, "1002"_q, "R"_q, "1.5"_q, "2.5"_q, "3.5"_q},
                                        {"L1"_q, "1003"_q, "R"_q, "1.5"_q, "2.5"_q, "3.5"_q},
                                        {"L2"_q, "1001"_q, "S"_q, "1.5"_q, "2.5"_q, "3.5"_q}}));
    EXPECT_EQ(summary("Receivers").mid(0, 4),
              (QStringList{"3"_q, "1"_q, "0.3333333333333333"_q, "2"_q}));
    EXPECT_EQ(summary("Sources").mid(0, 4), (QStringList{"1"_q, "0"_q, "0"_q, "1"_q}));
}

TEST_F(SurveyResults, MovesHaveADirectionFromGridNorth)
{
    const struct
    {
        double dN, dE;
        const char* distance;
        const char* bearing;
    } moves[] = {{2, 0, "2", "0"},       {0, 2, "2", "90"},
                 {-3, 4, "5", "126.87"}, {-2, 0, "2", "180"},
                 {0, -2, "2", "270"},    {4096, -0.0625, "4096.000000476837", "0"},
                 {0, 0, "0", ""}};
    for (const auto& [dN, dE, distance, bearing] : moves) {
        m_survey.set(result("L", "1", dN, dE, 0.25));
        ASSERT_TRUE(write().isDone());
        EXPECT_EQ(rows("Moved", {"Distance (m)"_q, "Bearing (°)"_q, "dH (m)"_q}),
                  (Rows{{QLatin1String(distance), QLatin1String(bearing), "0.25"_q}}));
    }
}

TEST_F(SurveyResults, CountsWhatIsFartherThanTheLimit)
{
    m_quality.set("design_hor_diff", "5.1");
    m_survey.set(result("L", "1", 5.1, 0)); // on the limit, though 5005.1 - 5000 is above 5.1
    m_survey.set(result("L", "2", 3, 4.5));
    SurveyPoint river = result("L", "3", -30, 40);
    river.obstacle = "river";
    m_survey.set(river);
    SurveyPoint none = result("L", "4", 0, 0);
    none.designNorth = 0;
    m_survey.set(none);
    m_survey.set(result("L", "5", std::nan(""), 0));
    const Outcome outcome = write();
    ASSERT_TRUE(outcome.isDone());
    EXPECT_EQ(outcome.text(), "Results: 5, design points not staked: 0, farther from the design "
                              "than the limit: 2."_q);
    EXPECT_EQ(rows("Moved", {"Point"_q}), (Rows{{"1"_q}, {"2"_q}, {"3"_q}}));
    EXPECT_EQ(book().texts("Moved"_q, "formula").at(0), "AND(ISNUMBER(E2),ABS(E2)>5.100001)"_q);
    EXPECT_EQ(summary("Points judged"), QStringList{"3"_q});
    EXPECT_EQ(summary("Points not judged"), QStringList{"2"_q});
    EXPECT_EQ(summary("river"), QStringList{"1"_q});
    EXPECT_EQ(rows("Results").size(), 5U);
}

TEST_F(SurveyResults, KnowsFeetAndSouthernAxes)
{
    m_coords.set("unit_m", "0.3048");
    m_coords.set("factor", "3.280839895013123");
    m_coords.set("axis_direction", "SW"); // a greater northing lies to the south
    m_coords.set("project_type", "1");
    m_survey.set(result("L", "1", 10, 0));
    ASSERT_TRUE(write().isDone());
    const auto moved =
        rows("Moved", {"Distance (m)"_q, "Bearing (°)"_q, "Design north (ft)"_q}).at(0);
    EXPECT_NEAR(moved[0].toDouble(), 3.048, 1e-12);
    EXPECT_EQ(moved.mid(1), (QStringList{"180"_q, "5000"_q}));
    EXPECT_TRUE(summary("Projection").value(0).contains("Transverse Mercator"_q));
    EXPECT_TRUE(summary("Projection").value(0).contains("False easting 0 ft"_q));
}

TEST_F(SurveyResults, HoldsEveryResultWithItsFieldsAsNumbersAndDates)
{
    SurveyPoint check = result("L1", "C10012034_10", 0, 0);
    check.latitude = 39.123456789;
    check.solutionType = 4;
    check.startTime = 0;
    m_survey.set(check);
    check.pointNumber = "C10012034_2";
    check.surveyor = "Li";
    check.dateTime = kNoon - 1000;
    m_survey.set(check);
    ASSERT_TRUE(write().isDone());
    const auto results =
        rows("Results", {"point num"_q, "surveyor"_q, "latitude (°)"_q, "solution type"_q, "time"_q,
                         "start time"_q, "north (m)"_q});
    ASSERT_EQ(results.size(), 2U); // in the order of their counters
    EXPECT_EQ(results[0].mid(0, 4),
              (QStringList{"C10012034"_q, "Li"_q, "39.123456789"_q, "fixed"_q}));
    EXPECT_EQ(results[1][4], "45792.5"_q);
    EXPECT_EQ(results[1].mid(5), (QStringList{{}, "5000"_q}));

    m_choice.fromMs = kNoon;
    ASSERT_TRUE(write().isDone());
    EXPECT_EQ(rows("Results", {"surveyor"_q}), Rows{{QString()}});
    m_choice = {{}, kNoon, {"Li"_q}, {}};
    ASSERT_TRUE(write().isDone());
    EXPECT_EQ(rows("Results", {"surveyor"_q}), Rows{{"Li"_q}});
    m_choice.surveyors = QStringList{"Wang"_q};
    ASSERT_TRUE(write().isDone());
    EXPECT_TRUE(rows("Results").empty());
}

} // namespace
