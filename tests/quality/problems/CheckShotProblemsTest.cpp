#include "tests/quality/problems/FieldDays.h"

#include <gtest/gtest.h>

TEST(Shifts, WhatIsOffByMoreIsToldAsWell)
{
    FieldDays field;
    field.stakingM = 0.4; // the shift itself is known better than the stakes are set
    for (int day = 1; day <= 3; ++day)
        field.work({.day = day, .points = 60});
    field.work({.day = 4, .base = "B3", .points = 60, .eastM = 30, .northM = 30});
    field.parameters.set("design_hor_diff", "1.6");
    const std::vector<const char*> kinds{"base_shift", "too_far"};
    const std::size_t before = field.told(kinds).size();
    field.at("1060", "1190").east = field.at("1060", "1190").designEast + 32.2;
    EXPECT_EQ(field.told(kinds).size(), before + 1);

    field.workAgain({.day = 4, .base = "B3", .eastM = 30, .northM = 30}, 4, 1); // shifted alike
    SurveyPoint* const again = field.survey.find("1060", "1181F");
    ASSERT_NE(again, nullptr);
    EXPECT_EQ(field.told({"base_shift", "resurvey_off"}).size(), 1U);
    again->north += 1.2;
    EXPECT_EQ(field.told({"base_shift", "resurvey_off"}).size(), 2U);
}

TEST(Shifts, ExplainsStepsBetweenNeighbours)
{
    FieldDays field = goodDays(); // a step at the border of two days is no row of its own
    field.parameters.set("neighbour_height_max", "1");
    field.work({.day = 4, .base = "B3", .heightM = -4});
    const std::vector<const char*> kinds{"base_shift", "neighbour_height"};
    EXPECT_EQ(field.told(kinds).size(), 1U);
    field.at("1130", "1200").elevation -= 6;
    EXPECT_EQ(field.told(kinds).size(), 2U);
    field.at("1130", "1200").elevation += 4; // less than the shift, among neighbours that share it
    EXPECT_EQ(field.told(kinds).size(), 2U);
}

TEST(Shifts, ExplainsASpacingBetweenTwoDaysButNoGap)
{
    FieldDays field = goodDays();
    field.parameters.set("line_skid_max", "0");
    field.parameters.set("line_spacing_max", "1"); // 0.4 m
    field.work({.day = 4, .lines = 1});
    for (int i = 1196; i <= 1210; ++i) {
        SurveyPoint& point = field.at("1120", std::to_string(i));
        point.dateTime = FieldDays::timeOf(5);
        point.baseStationId = "B3";
        point.east += 1;
    }
    const std::vector<const char*> kinds{"line_spacing", "base_shift"};
    EXPECT_EQ(field.told(kinds).size(), 1U);
    for (int i = 1196; i <= 1210; ++i) {
        field.at("1120", std::to_string(i)).designEast += 150;
        field.at("1120", std::to_string(i)).east += 150;
    }
    EXPECT_EQ(field.told(kinds).size(), 2U);
    field.parameters.set("line_skid_max", "50"); // either stake may be moved towards the other
    EXPECT_NEAR(field.find(kinds)[0].limit, 140, 0.1);
}

TEST(Shifts, OnThePlaneADirectionIsTold)
{
    FieldDays field = goodDays();
    field.parameters.set("design_hor_diff", "0.3");
    field.work({.day = 4, .base = "B3", .points = 40, .eastM = -0.6, .northM = -0.8});
    const Texts texts = field.told({"base_shift", "too_far"});
    EXPECT_EQ(texts.size(), 1U);
    std::string text = firstOf(texts);
    EXPECT_TRUE(contains(text, "All 40 results of base B3 on 2026/05/04 are ")) << text;
    EXPECT_TRUE(contains(text, "m too far to the southwest (21")) << text;
    EXPECT_TRUE(contains(text, "follow from it: 40.")) << text;

    FieldDays both = goodDays();
    both.work({.day = 4, .base = "B3", .eastM = 30, .heightM = -2});
    text = firstOf(both.told());
    EXPECT_TRUE(contains(text, "m too far to the east (90°) and ")) << text;
    EXPECT_TRUE(contains(text, "m too low. The coordinates")) << text;
    both.planeUnitM = 0.3048;
    text = firstOf(both.told());
    EXPECT_TRUE(contains(text, "are 9.1")) << text;
}

TEST(Shifts, ASkidOrACrewWithFewPointsIsNone)
{
    FieldDays beside = goodDays(); // a day beside a road: 5 m to the north of a line to the east
    beside.work({.day = 4, .points = 40, .northM = 5, .lines = 1});
    EXPECT_EQ(beside.told(), Texts());
    for (const FieldDay& wrong : {FieldDay{.day = 4, .points = 40, .northM = 51, .lines = 1},
                                  FieldDay{.day = 4, .points = 40, .eastM = 5, .lines = 1}}) {
        FieldDays base = goodDays(); // too far beside the line, or along it
        base.work(wrong);
        EXPECT_EQ(base.told().size(), 1U);
    }
    FieldDays oblique = goodDays(); // no crew moves its stakes so
    oblique.work({.day = 4, .points = 40, .eastM = 3, .northM = 4, .lines = 1});
    EXPECT_EQ(oblique.told().size(), 1U);
    FieldDays village = goodDays();
    village.work({.day = 4, .points = 40, .eastM = 3, .northM = 4});
    for (auto& [number, line] : village.survey) {
        for (SurveyPoint& point : line)
            point.obstacle = point.dateTime >= FieldDays::timeOf(4) ? "houses" : "";
    }
    EXPECT_EQ(village.told(), Texts());
    FieldDays few = goodDays();
    few.work({.day = 4, .base = "B3", .points = 9, .heightM = 3, .lines = 1});
    EXPECT_EQ(few.told(), Texts());
    few.parameters.set("shift_results_min", "9");
    EXPECT_EQ(few.told().size(), 1U);
    FieldDays half = goodDays(); // no constant
    half.work({.day = 4, .points = 22});
    half.work({.day = 4, .points = 78, .heightM = 1});
    EXPECT_EQ(half.told(), Texts());
    FieldDays off = goodDays();
    off.work({.day = 4, .base = "B3", .eastM = 1, .northM = 1, .heightM = 1});
    off.parameters.set("shift_plane_max", "0");
    EXPECT_FALSE(contains(firstOf(off.told()), "too far"));
    off.parameters.set("shift_height_max", "0");
    EXPECT_EQ(off.told(), Texts());
    few.parameters.set("shift_results_min", "0"); // any single result would be a shift
    EXPECT_EQ(few.told(), Texts());
}

TEST(Shifts, NamesThatAreOneOffAreNoWrongBase)
{
    FieldDays field = goodDays();
    field.work({.day = 4, .points = 60, .eastM = 40, .heightM = 1});
    field.plan();
    const Texts texts = field.told({"base_shift", "pole_shift", "survey_shift", "wrong_name"});
    EXPECT_EQ(texts.size(), 58U); // the last of either line stand where nothing is designed
    for (const std::string& text : texts)
        EXPECT_TRUE(contains(text, "wrong_name: Is probably ")) << text;
}

TEST(Shifts, HeightsOfAnElevationModelAreComparedAmongEachOther)
{
    FieldDays rough;
    rough.designHeightM = 0.6;
    for (int day = 1; day <= 6; ++day)
        rough.work({.day = day, .points = 80, .heightM = day == 4 ? 12.0 : 8.0});
    Texts texts = rough.told();
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_TRUE(contains(texts[0], "of base B1 on 2026/05/04")) << texts[0];
    FieldDays tilted; // another geoid
    tilted.slope = 0.00004;
    for (int day = 1; day <= 12; ++day)
        tilted.work({.day = day, .points = 40});
    EXPECT_EQ(tilted.told(), Texts());
    FieldDays leaning = tilted; // of another height system as well
    for (auto& [number, line] : leaning.survey) {
        for (SurveyPoint& point : line)
            point.elevation += 2;
    }
    texts = leaning.told();
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_TRUE(contains(texts[0], "survey_shift: All 480 results of the survey are ")) << texts[0];
    FieldDays all;
    for (int day = 1; day <= 4; ++day)
        all.work({.day = day, .heightM = 30});
    texts = all.told();
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_TRUE(contains(texts[0], "survey_shift: All 120 results of the survey are ")) << texts[0];
}

TEST(Shifts, PointsMeasuredTwiceTellWhatTheDesignCannot)
{
    FieldDays field = goodDays(); // stakes are set where the wrong base says
    field.measuringM = 0.003;
    field.work({.day = 4, .base = "B3", .rover = "R1"});
    for (auto& [number, line] : field.survey) {
        for (SurveyPoint& point : line)
            point.designElevation = 0; // a design without heights
    }
    const FieldDay wrong{.day = 5, .base = "B3", .rover = "R2", .eastM = 0.5, .heightM = 0.5};
    field.workAgain(wrong, 1, 3);
    field.workAgain(wrong, 2, 4);
    field.workAgain({.day = 6, .base = "B1", .rover = "R1"}, 3, 4);
    const ProblemList found = field.find({"base_shift", "pole_shift", "resurvey_off"});
    ASSERT_EQ(found.size(), 1U);
    const std::string text = found[0].kind->what(found[0]).toStdString();
    EXPECT_TRUE(contains(text, "7 of 7 points that were also measured otherwise are 0.")) << text;
    EXPECT_TRUE(contains(text, " m too high in the results of base B3 on 2026/05/05.")) << text;
    EXPECT_EQ(found[0].follows, 7U);

    FieldDays heights = goodDays(); // of the two days, the one that fits the design is right
    heights.workAgain({.day = 5, .base = "B1", .rover = "R1"}, 1, 20);
    heights.work({.day = 6, .base = "B2", .rover = "R2", .heightM = 0.5});
    heights.workAgain({.day = 5, .base = "B1", .rover = "R1"}, 6, 5);
    Texts texts = heights.told();
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_TRUE(contains(texts[0], "All 30 results of base B2 on 2026/05/06")) << texts[0];
    FieldDays two = goodDays();
    two.workAgain({.day = 5, .base = "B3", .rover = "R2", .heightM = 0.5}, 1, 2); // chance
    EXPECT_EQ(two.told(), Texts());
}

TEST(Shifts, EachBaseAndDayIsListedWhenWanted)
{
    FieldDays field;
    field.stakingM = field.measuringM = field.designHeightM = 0.001;
    field.work({.day = 1, .base = "B1", .eastM = 0.03, .northM = -0.04, .heightM = -0.02});
    field.at("1000", "1005").east += 50; // no part of the mean
    field.workAgain({.day = 2, .base = "B2", .rover = "R2"}, 1, 1);
    EXPECT_EQ(field.told({"base_difference"}), Texts());
    field.parameters.set("base_differences", "1");
    const Texts texts = field.told({"base_difference"});
    ASSERT_EQ(texts.size(), 3U);
    EXPECT_TRUE(contains(texts[0], "29 of 30 results of base B1 on 2026/05/01 are 0.05"))
        << texts[0];
    EXPECT_TRUE(contains(texts[0], " m too far to the southeast (14")) << texts[0];
    EXPECT_TRUE(contains(texts[1], "1 of 1 results of base B2 on ")) << texts[1];
    EXPECT_TRUE(contains(texts[2], "1 of 1 points that were measured again")) << texts[2];
    EXPECT_TRUE(contains(texts[2], "northwest (32")) << texts[2];
}

TEST(Shifts, WithoutTimesTheBaseAloneIsTold)
{
    FieldDays noTimes;
    noTimes.work({.base = "B1"});
    noTimes.work({.base = "B2", .heightM = 2});
    for (auto& [number, line] : noTimes.survey) {
        for (SurveyPoint& point : line)
            point.dateTime = 0;
    }
    const Texts texts = noTimes.told();
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_TRUE(contains(texts[0], "All 30 results of base B2 are ")) << texts[0];
}

TEST(CheckShots, EachCrewAndDayWantsAShareAndAtLeastSome)
{
    FieldDays field;
    field.parameters.clear(); // 3 %, at least 2
    field.work({.day = 1, .rover = "R1", .points = 100});
    field.work({.day = 1, .rover = "R2", .points = 101});
    field.work({.day = 2, .rover = "R1", .points = 20});
    field.work({.day = 3, .rover = "R1", .points = 1, .lines = 1});
    field.workAgain({.day = 1, .rover = "R1"}, 1, 3);
    field.workAgain({.day = 1, .rover = "R2"}, 1, 3);
    field.workAgain({.day = 2, .rover = "R1"}, 1, 1);
    field.at("1000", "1020").dateTime = 0; // of no day
    EXPECT_EQ(field.told({"few_check_shots"}),
              (Texts{"few_check_shots: Surveyor Crew of R2 on 2026/05/01: points measured 101, "
                     "measured again 3, at least 4 are wanted.",
                     "few_check_shots: Surveyor Crew of R1 on 2026/05/02: points measured 20, "
                     "measured again 1, at least 2 are wanted."}));
    field.parameters.set("check_shots_min", "1");
    EXPECT_EQ(field.told({"few_check_shots"}).size(), 1U);
    const ProblemList found = field.find({"few_check_shots"});
    EXPECT_EQ(found[0].surveyor.view(), "Crew of R2");
    EXPECT_EQ(found[0].limit, 4);
    field.parameters.set("check_shots_percent", "0");
    EXPECT_EQ(field.told({"few_check_shots"}), Texts());
    for (auto& [number, line] : field.survey) {
        for (SurveyPoint& point : line)
            point.surveyor.clear(); // then crews are rovers
    }
    field.parameters.set("check_shots_percent", "3");
    EXPECT_TRUE(contains(firstOf(field.told({"few_check_shots"})), ": Rover R2 on 2026/05/01: "));
}
