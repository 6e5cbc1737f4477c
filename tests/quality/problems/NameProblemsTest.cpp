#include "quality/problems/NameProblems.h"

#include "tests/quality/problems/MadeSurvey.h"

#include <gtest/gtest.h>

namespace {

using Rows = std::vector<std::string>;

/// Receivers 1000 to 1005, points 1001 to 1040.
class NameProblems : public testing::Test
{
protected:
    void SetUp() override { survey.addGrid(1, 1000, 6); }

    /// The result of a point gets the name of another one, which has none of its own.
    void misname(int line, int point, int otherLine, int otherPoint)
    {
        SurveyPoint result = survey.result(line, point);
        survey.results.erase(result.lineNumber, result.pointNumber);
        result.lineNumber = std::to_string(otherLine);
        result.pointNumber = MadeSurvey::name(otherLine, otherPoint);
        survey.results.set(std::move(result));
    }
    Rows rows() const { return rowsOf(survey.find(kNameFinder)); }
    /// "old > new" of all proposals.
    Rows proposals() const
    {
        Rows texts;
        const ProblemList problems = survey.find(kNameFinder);
        for (const Problem& problem : problems) {
            for (const auto& [from, to] : proposalOf(problem))
                texts.push_back(from.line + '/' + from.point + " > " + to.line + '/' + to.point);
        }
        return texts;
    }

    MadeSurvey survey;
};

TEST_F(NameProblems, AResultOfTheNextPointIsProbablyThatPoint)
{
    misname(1002, 1020, 1002, 1021);
    EXPECT_EQ(rows(), Rows{"wrong_name 10021021 10021020 2"}) << "then 1021 is missing";
    EXPECT_EQ(proposals(), Rows{"1002/10021021 > 1002/10021020"});

    const ProblemList problems = survey.find(kNameFinder);
    EXPECT_NEAR(problems[0].value, 40, 0.5);
    EXPECT_LT(problems[0].second, 0.5);
    EXPECT_EQ(problems[0].limit, 2);
}

TEST_F(NameProblems, AWrongLineIsAWrongNameToo)
{
    misname(1002, 1020, 1003, 1020);
    EXPECT_EQ(proposals(), Rows{"1003/10031020 > 1002/10021020"});
}

TEST_F(NameProblems, ExchangedNamesAreOneRowAndBothGetNewOnes)
{
    SurveyPoint& a = survey.result(1001, 1005);
    SurveyPoint& b = survey.result(1004, 1030);
    std::swap(a.east, b.east);
    std::swap(a.north, b.north);
    EXPECT_EQ(rows(), Rows{"swapped_names 10011005 10041030"});
    EXPECT_EQ(proposals(),
              (Rows{"1001/10011005 > 1004/10041030", "1004/10041030 > 1001/10011005"}));
}

TEST_F(NameProblems, AnUnknownNameOnAnEmptyPointIsARowOfThatPoint)
{
    misname(1001, 1010, 1001, 1910);
    misname(1002, 1020, 7777, 1020);
    EXPECT_EQ(rows(),
              (Rows{"foreign_result 10011010 10011910", "foreign_result 10021020 77771020"}));
    EXPECT_EQ(proposals(),
              (Rows{"1001/10011910 > 1001/10011010", "7777/77771020 > 1002/10021020"}));
    EXPECT_TRUE(survey.find(kNameFinder)[0].isDesign);
}

TEST_F(NameProblems, AShiftOfNamesIsFollowedResultByResult)
{
    // 1011 to 1014 are stored one number too high; 1015 was overwritten and 1011 is missing.
    for (int point = 1014; point >= 1011; --point)
        misname(1003, point, 1003, point + 1);
    EXPECT_EQ(proposals(),
              (Rows{"1003/10031012 > 1003/10031011", "1003/10031013 > 1003/10031012",
                    "1003/10031014 > 1003/10031013", "1003/10031015 > 1003/10031014"}));
}

TEST_F(NameProblems, ASecondResultOfAPointBecomesACheckPointAndReplacesNothing)
{
    SurveyPoint& twice = survey.result(1002, 1021); // measured at 1020, which has a result
    twice.east = survey.result(1002, 1020).east;
    twice.north = survey.result(1002, 1020).north;
    EXPECT_EQ(rows(), Rows{"wrong_name 10021021 10021020 3"});
    EXPECT_EQ(proposals(), Rows{"1002/10021021 > 1002/C10021020"});
}

TEST_F(NameProblems, OneMoreResultStandsWhereTheFirstOneDoes)
{
    SurveyPoint& result = survey.result(1002, 1021);
    result.east = survey.designed(1002, 1020).east;
    result.north = survey.designed(1002, 1020).north;
    EXPECT_EQ(rows(), Rows{"wrong_name 10021021 10021020 3"});
    survey.result(1002, 1020).east += 12; // moved aside, or the other one is it
    EXPECT_EQ(rows(), Rows{"wrong_name 10021021 10021020 2"});
}

TEST_F(NameProblems, ResurveysAndCheckPointsKeepTheirMark)
{
    survey.stake(survey.designed(1000, 1003), 0, 0, "10001004F"); // of 1003, named after 1004
    survey.stake(survey.designed(1000, 1007), 0, 0, "C10001005_0");
    survey.stake(survey.designed(1000, 1009), 0, 0, "10001909F"); // no point has this name
    EXPECT_EQ(proposals(),
              (Rows{"1000/10001004F > 1000/10001003F", "1000/10001909F > 1000/10001009F",
                    "1000/C10001005_0 > 1000/C10001007"}));
}

} // namespace
