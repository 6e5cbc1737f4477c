#include "lum_sdk/Host.h"
#include "project/DataProcessDataManager.h"
#include "quality/problems/NameProblems.h"
#include "tests/project/TestProject.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

/// A design line that runs to the north-east, 141 m from point to point.
class PointRenaming : public testing::Test
{
protected:
    void SetUp() override
    {
        for (int i = 0; i < 4; ++i) {
            DesignPoint point = designPoint("1001", number(i), 1);
            point.north = 1000 + 100 * i;
            point.east = 2000 + 100 * i;
            point.elevation = 50 + i;
            manager.designPoints().set(point);
        }
        manager.setEditHandler([this](const auto& edit) { last = edit; });
    }

    static std::string number(int i) { return "1001" + std::to_string(2001 + i); }
    /// A result under the name of a point, one metre to the east and two to the north of another.
    void stake(const std::string& name, int at)
    {
        SurveyPoint result = surveyPoint("1001", name, "staked at " + std::to_string(at));
        result.north = 1002 + 100 * at;
        result.east = 2001 + 100 * at;
        result.transversalDeviation = 99;
        manager.surveyPoints().set(result);
    }
    int rename(const std::vector<Renaming>& renamings)
    {
        return manager.renameResults(renamings, &outcome);
    }
    static Renaming renaming(const std::string& from, const std::string& to)
    {
        return {{"1001", from}, {"1001", to}};
    }
    /// "name: remarks" of all results.
    std::vector<std::string> results()
    {
        std::vector<std::string> texts;
        for (const auto& [line, points] : manager.surveyPoints()) {
            for (const SurveyPoint& point : points)
                texts.push_back(point.pointNumber + ": " + point.remarks);
        }
        return texts;
    }

    Host host;
    DataProcessDataManager manager{&host};
    Outcome outcome = Outcome::done();
    std::shared_ptr<Edit> last;
};

using Texts = std::vector<std::string>;

TEST_F(PointRenaming, TheDesignPositionAndTheDeviationsFollowTheName)
{
    stake(number(1), 2);
    ASSERT_EQ(rename({renaming(number(1), number(2))}), 1);
    const SurveyPoint* const result = manager.surveyPoints().find("1001", number(2));
    ASSERT_NE(result, nullptr);
    EXPECT_EQ(result->designNorth, 1200);
    EXPECT_EQ(result->designEast, 2200);
    EXPECT_EQ(result->designElevation, 52);
    EXPECT_EQ(result->pointMark, 1);
    EXPECT_NEAR(result->longitudinalDeviation, 3 / std::sqrt(2), 1e-9);
    EXPECT_NEAR(result->transversalDeviation, -1 / std::sqrt(2), 1e-9) << "to the left";
    EXPECT_EQ(last->title(), QStringLiteral("Rename a result"));

    ASSERT_EQ(manager.exchange(last, true), 1);
    EXPECT_EQ(results(), Texts{number(1) + ": staked at 2"});
    EXPECT_EQ(manager.surveyPoints().find("1001", number(1))->transversalDeviation, 99);
}

TEST_F(PointRenaming, TheDirectionOfALineIsThatOfItsNumbers)
{
    for (int i = 0; i < 4; ++i) { // "998" to "1001", which a text has in another order
        DesignPoint point = *manager.designPoints().find("1001", number(i));
        point.pointNumber = std::to_string(998 + i);
        manager.designPoints().set(point);
    }
    stake("7", 2);
    ASSERT_EQ(rename({renaming("7", "1000")}), 1);
    EXPECT_NEAR(manager.surveyPoints().find("1001", "1000")->longitudinalDeviation,
                3 / std::sqrt(2), 1e-9);
}

TEST_F(PointRenaming, NamesAreExchangedAndShiftedAtOnce)
{
    stake(number(0), 1);
    stake(number(1), 0);
    ASSERT_EQ(rename({renaming(number(0), number(1)), renaming(number(1), number(0))}), 1);
    EXPECT_EQ(results(), (Texts{number(0) + ": staked at 0", number(1) + ": staked at 1"}));
    ASSERT_EQ(manager.exchange(last, true), 1);
    EXPECT_EQ(results(), (Texts{number(0) + ": staked at 1", number(1) + ": staked at 0"}));

    ASSERT_EQ(rename({renaming(number(0), number(1)), renaming(number(1), number(2))}), 1);
    EXPECT_EQ(results(), (Texts{number(1) + ": staked at 1", number(2) + ": staked at 0"}));
    EXPECT_EQ(last->title(), QStringLiteral("Rename 2 results"));
}

TEST_F(PointRenaming, NothingIsReplaced)
{
    stake(number(0), 1);
    stake(number(1), 1);
    const Texts before = results();
    last.reset();
    EXPECT_EQ(rename({renaming(number(0), number(1))}), 0);
    EXPECT_TRUE(outcome.text().contains(QString::fromStdString(number(1))));
    EXPECT_EQ(rename({renaming(number(0), number(3)), renaming(number(1), number(3))}), 0);
    EXPECT_EQ(rename({renaming(number(2), number(3))}), 0) << "there is none";
    EXPECT_EQ(rename({renaming(number(0), "a,b")}), 0);
    EXPECT_EQ(rename({renaming(number(0), "")}), 0);
    EXPECT_EQ(results(), before);
    EXPECT_EQ(last, nullptr) << "no edit for the menu";
}

TEST_F(PointRenaming, ACheckPointGetsTheNextCounter)
{
    stake(number(0), 1);
    stake(number(1), 1);
    stake("C" + number(1) + "_0", 1);
    ASSERT_EQ(rename({renaming(number(0), "C" + number(1))}), 1);
    EXPECT_EQ(results().back(), "C" + number(1) + "_1: staked at 1");
    EXPECT_EQ(manager.surveyPoints().find("1001", "C" + number(1) + "_1")->designNorth, 1100);
}

} // namespace
