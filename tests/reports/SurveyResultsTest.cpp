#include "basalt_utilities/Dictionary.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "quality/QualityLimits.h"
#include "reports/ReportInput.h"
#include "reports/SurveyResultsReport.h"
#include "tests/support/Literals.h"
#include "tests/support/TestFolder.h"
#include "tests/support/WorkbookReader.h"

#include <QDir>

#include <cmath>

namespace {

constexpr std::int64_t kNoon = 1747281600000; // 2025-05-15 12:00 in Shanghai

/// A result at a design position of 5000, 3000, 10.
SurveyPoint result(const char* line, const char* number, double dN, double dE, double dH = 0)
{
    SurveyPoint point;
    point.lineNumber = line;
    point.pointNumber = number;
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

class SurveyResults : public testing::Test
{
protected:
    [[nodiscard]] QString path() const { return m_folder.path("报告 1.xlsx"); }

    Outcome write()
    {
        return writeSurveyResults(path(),
                                  {m_design, m_survey, m_quality, m_coords, "测区"_q,
                                   "/p/测区.kelx"_q, "Skyquill 1.0"_q, m_choice, m_progress});
    }

    /// The rows of a sheet, without the headings; of these columns when any are named.
    [[nodiscard]] std::vector<QStringList> rows(const char* sheet,
                                                const QStringList& columns = {}) const
    {
        const auto all = WorkbookReader(path()).rows(QString::fromUtf8(sheet));
        std::vector<QStringList> chosen;
        for (std::size_t row = 1; row < all.size(); ++row) {
            QStringList& cells = chosen.emplace_back();
            for (const QString& column : columns.isEmpty() ? all[0] : columns)
                cells << all[row].value(all[0].indexOf(column));
        }
        return chosen;
    }

    /// The cells of the row of the summary that begins with this text.
    [[nodiscard]] QStringList summary(const char* label) const
    {
        for (const QStringList& row : WorkbookReader(path()).rows("Summary"_q)) {
            if (row.value(0) == QString::fromUtf8(label))
                return row.mid(1);
        }
        return {};
    }

    TestFolder m_folder;
    DesignPoints m_design;
    SurveyPoints m_survey;
    basalt::Dictionary m_quality;
    basalt::Dictionary m_coords;
    ReportChoice m_choice;
    ProgressReporter m_progress{nullptr};
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
    EXPECT_EQ(rows("Not staked"),
              (std::vector<QStringList>{{"L1"_q, "1002"_q, "R"_q, "1.5"_q, "2.5"_q, "3.5"_q},
                                        {"L1"_q, "1003"_q, "R"_q, "1.5"_q, "2.5"_q, "3.5"_q},
                                        {"L2"_q, "1001"_q, "S"_q, "1.5"_q, "2.5"_q, "3.5"_q}}));
    EXPECT_EQ(summary("Receivers").mid(0, 4),
              (QStringList{"3"_q, "1"_q, "0.3333333333333333"_q, "2"_q}));
    EXPECT_EQ(summary("Sources").mid(0, 4), (QStringList{"1"_q, "0"_q, "0"_q, "1"_q}));
}

struct MoveCase
{
    const char* name;
    double dN, dE;
    const char* distance;
    const char* bearing;
};

class Moves : public SurveyResults, public testing::WithParamInterface<MoveCase>
{
};

TEST_P(Moves, HaveADirectionFromGridNorth)
{
    const MoveCase& move = GetParam();
    m_survey.set(result("L", "1", move.dN, move.dE, 0.25));
    ASSERT_TRUE(write().isDone());
    const QStringList columns{"Distance (m)"_q, "Bearing (°)"_q, "dH (m)"_q};
    EXPECT_EQ(rows("Moved", columns),
              (std::vector<QStringList>{{QString::fromLatin1(move.distance),
                                         QString::fromLatin1(move.bearing), "0.25"_q}}));
}

INSTANTIATE_TEST_SUITE_P(
    Directions, Moves,
    testing::Values(MoveCase{"North", 2, 0, "2", "0"}, MoveCase{"East", 0, 2, "2", "90"},
                    MoveCase{"SouthEast", -3, 4, "5", "126.87"},
                    MoveCase{"South", -2, 0, "2", "180"}, MoveCase{"West", 0, -2, "2", "270"},
                    MoveCase{"JustWestOfNorth", 4096, -0.0625, "4096.000000476837", "0"},
                    MoveCase{"Nowhere", 0, 0, "0", ""}),
    [](const auto& test) { return test.param.name; });

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
    EXPECT_EQ(rows("Moved", {"Point"_q}), (std::vector<QStringList>{{"1"_q}, {"2"_q}, {"3"_q}}));
    EXPECT_EQ(WorkbookReader(path()).texts("Moved"_q, "formula").at(0),
              "AND(ISNUMBER(E2),ABS(E2)>5.100001)"_q);
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
    EXPECT_EQ(rows("Results", {"surveyor"_q}), std::vector<QStringList>{{QString()}});
    EXPECT_EQ(summary("Period"),
              QStringList{"from 2025/05/15 12:00:00"_q} + QStringList({{}, {}, {}, {}, {}, {}}));
    m_choice = {{}, kNoon, {"Li"_q}, {}};
    ASSERT_TRUE(write().isDone());
    EXPECT_EQ(rows("Results", {"surveyor"_q}), std::vector<QStringList>{{"Li"_q}});
    m_choice.surveyors = QStringList{"Wang"_q};
    ASSERT_TRUE(write().isDone());
    EXPECT_TRUE(rows("Results").empty());
}

TEST_F(SurveyResults, NamesEveryLimitInForce)
{
    m_quality.set("pdop_max", "2.5");
    m_quality.set("sat_num_min", "-7");
    ASSERT_TRUE(write().isDone());
    const auto limits = rows("Limits");
    ASSERT_GT(limits.size(), kQualityParameters.size());
    EXPECT_EQ(
        limits[0],
        (QStringList{
            "Horizontal distance from design, max."_q, "design_hor_diff"_q, "0.5"_q, "m"_q, {}}));
    EXPECT_EQ(limits[8].mid(0, 3), (QStringList{"PDOP, max."_q, "pdop_max"_q, "2.5"_q}));
    EXPECT_EQ(limits[13].mid(2),
              (QStringList{"-7"_q, {}, "The minus does not count: the limit is 7."_q}));
    EXPECT_EQ(limits[16][2], "F"_q);
    EXPECT_TRUE(summary("Satellites").value(0).contains("PDOP, max. 2.5;"_q));
}

TEST_F(SurveyResults, LeavesNothingWhenItIsCancelled)
{
    m_folder.write("报告 1.xlsx", "old");
    for (int number = 0; number < 3000; ++number)
        m_survey.set(result("L", std::to_string(number).c_str(), 0, 0));
    int asked = 0;
    m_choice.isCancelled = [&] { return ++asked == 3; };
    EXPECT_EQ(write().kind(), Outcome::Kind::Refused);
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden),
              QStringList{"报告 1.xlsx"_q});
    EXPECT_EQ(TestFolder::read(path()), "old");
}

} // namespace
