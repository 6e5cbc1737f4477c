#include "quality/problems/CheckProblems.h"
#include "quality/problems/ForCrew.h"
#include "quality/problems/NeighbourProblems.h"
#include "quality/problems/QualityProblems.h"
#include "quality/problems/StoredValueProblems.h"
#include "tests/quality/problems/FoundProblems.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class ProblemFinders : public testing::Test, protected FoundProblems
{
protected:
    SurveyPoint& add(const std::string& number, double elevation = 100)
    {
        SurveyPoint point = goodResult("10", number, 4000000 + 50 * double(survey.pointCount()));
        point.elevation = elevation;
        return survey.set(std::move(point));
    }
    /// Those of the checks, of stored values and of neighbours.
    ProblemList find()
    {
        std::vector<const ProblemKind*> kinds;
        for (const ProblemFinder* const finder :
             {&kEmptyPointFinder, &kQualityFinder, &kResurveyFinder, &kRepeatFinder,
              &kStoredValueFinder, &kNeighbourFinder})
            kinds.insert(kinds.end(), finder->kinds.begin(), finder->kinds.end());
        return FoundProblems::find(kinds);
    }
    std::vector<std::string> found() { return textsOf(find()); }
    static std::string what(const Problem& problem)
    {
        return problem.kind->what(problem).toStdString();
    }
};

TEST_F(ProblemFinders, AResultThatCannotBeComparedIsNotFarAway)
{
    SurveyPoint& alone = add("1001");
    alone.designNorth = alone.designEast = alone.designElevation = 0;
    alone.pdop = 4;
    add("1002").elevation = std::numeric_limits<double>::quiet_NaN();
    add("1003").east = std::numeric_limits<double>::infinity();

    EXPECT_THAT(found(),
                ElementsAre("no_design 10/1001", "pdop 10/1001 4.00 3.00", "no_position 10/1002",
                            "no_position 10/1003", "too_far 10/1003 inf 0.500"));
}

TEST_F(ProblemFinders, AResurveyIsToldByItsWorstDifferenceInMetres)
{
    planeUnitM = 0.3048;
    add("1001");
    SurveyPoint again = *survey.find("10", "1001");
    again.pointNumber = "1001F";
    again.north += 0.1; // feet: 0.0305 m, just beyond
    again.elevation -= 0.5;
    survey.set(again);
    again.pointNumber = "2002F";
    survey.set(again);

    const ProblemList problems = find();

    EXPECT_THAT(textsOf(problems),
                ElementsAre("resurvey_off 10/1001 -0.500 0.030", "resurvey_alone 10/2002F"));
    EXPECT_EQ(what(problems[0]), "The resurvey 1001F lies -0.500 m off in height.");
    EXPECT_EQ(problems[0].otherPoint, "1001F");
}

TEST_F(ProblemFinders, ARepeatTellsHowFarItLiesFromWhatItRepeats)
{
    add("10011001");
    SurveyPoint again = *survey.find("10", "10011001");
    again.pointNumber = "C10011001_0";
    again.north += 0.01;
    again.east += 0.02;
    again.elevation += 0.01;
    survey.set(again);
    again.pointNumber = "C10011001_1";
    again.elevation -= 0.2;
    survey.set(again);
    again.pointNumber = "C99999999_0";
    survey.set(again);
    again.pointNumber = "C20";
    survey.set(again);
    design.set(designPoint("10", "C20")); // it measures that one

    const ProblemList problems = find();

    EXPECT_THAT(textsOf(problems),
                ElementsAre("repeat 10/C10011001 0.022", "repeat_off 10/C10011001 -0.190 0.030",
                            "repeat 10/C99999999"));
    EXPECT_EQ(what(problems[1]), "It repeats 10011001, but lies -0.190 m off in height.");
    EXPECT_EQ(what(problems[0]), "It repeats 10011001, 0.022 m beside it and 0.010 m in height.");
}

TEST_F(ProblemFinders, AHeightIsComparedWithTheMedianOfItsNeighbours)
{
    parameters.set("neighbour_height_max", "3");
    for (int i = 0; i < 9; ++i)
        add(std::to_string(1000 + i), 100 + i); // a slope is no fault
    add("1009", 100);
    SurveyPoint away = goodResult("10", "5000", 4009000);
    away.elevation = 900; // has no neighbours
    survey.set(away);

    const ProblemList problems = find();

    EXPECT_THAT(textsOf(problems), ElementsAre("neighbour_height 10/1009 -6.500 3.000"));
    EXPECT_EQ(what(problems[0]), "It is 6.500 m lower than its neighbours.");
}

TEST_F(ProblemFinders, ARightNameMendsWhatFollowsFromTheWrongOne)
{
    constexpr double kSpacingM = 50;
    const auto northOf = [&](int i) { return 4000000 + kSpacingM * i; };
    const auto nameOf = [](int i) { return std::to_string(10011000 + i); };
    const auto stake = [&](int name, int at, double asideM = 0, const char* code = "") {
        SurveyPoint point = goodResult("10", nameOf(name) + code, northOf(name));
        point.north = northOf(at);
        point.east += asideM;
        point.elevation = 100 + 10 * at;
        point.designElevation = 100 + 10 * name;
        survey.set(std::move(point));
    };
    for (int i = 1; i <= 20; ++i) {
        design.set({"10", nameOf(i), northOf(i), 500000, 100.0 + 10 * i, 0, 0, 0});
        stake(i, i);
    }
    parameters.set("design_ver_diff", "1");
    survey.erase("10", nameOf(4));
    stake(5, 4, 0.3);
    survey.erase("10", nameOf(9));
    stake(10, 9, 0.9);                             // too far from the right point as well,
    survey.find("10", nameOf(10))->elevation += 3; // and too high
    stake(15, 15, 0, "F");
    survey.find("10", nameOf(15) + "F")->elevation += 0.2; // out of range
    stake(17, 16, 0, "F");                                 // a resurvey of 16
    stake(999, 19, 0, "F");                                // of 19

    const ProblemList problems = FoundProblems::find();

    const std::string right10 = "10/" + nameOf(10);
    EXPECT_THAT(textsOf(problems), ElementsAre("too_far " + right10 + " 50.008 0.500",
                                               "height_off " + right10 + " 7.000 1.000",
                                               "resurvey_off 10/10011015 0.200 0.030",
                                               "wrong_name 10/10011005 50.001 2.000",
                                               "wrong_name " + right10 + " 50.008 2.000",
                                               "wrong_name 10/10011017F 50.000 2.000",
                                               "wrong_name 10/10011999F 2.000"));
    EXPECT_EQ(what(problems[3]),
              "Is probably 10011004, 0.30 m away; its own is 50.00 m away. Then 10011005 is not "
              "surveyed. Problems of single points that follow from it: 3.");
    EXPECT_TRUE(isForCrew(problems[3], design)); // at 10011005
    EXPECT_FALSE(isForCrew(problems[5], design));
}

TEST(ProblemKinds, AreNamedOnce)
{
    for (const ProblemKind* const kind : problemKinds())
        EXPECT_EQ(findProblemKind(kind->name), kind) << kind->name;
    EXPECT_EQ(findProblemKind("Missing"), nullptr);
}

} // namespace
