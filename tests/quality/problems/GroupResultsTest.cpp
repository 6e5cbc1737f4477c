#include "quality/problems/GroupResults.h"

#include "tests/quality/problems/FieldDays.h"

#include <gtest/gtest.h>

TEST(GroupResults, AreThoseOfTheBaseOrTheCrewOfTheDay)
{
    FieldDays field;
    field.parameters.set("check_shots_min", "2");
    for (int day = 1; day <= 4; ++day) {
        field.work({.day = day, .base = "B1", .rover = "R1", .heightM = day == 4 ? 1.5 : 0});
        field.work({.day = day, .base = "B2", .rover = "R2"});
    }
    for (const auto& [kind, problems] :
         {std::pair("base_shift", 1U), {"few_check_shots", 8U}, {"too_far", 0U}}) {
        const ProblemList found = field.find({kind});
        EXPECT_EQ(found.size(), problems) << kind;
        for (const Problem& problem : found) {
            const auto results = groupResults(problem, field.survey, basalt::LocalTimes(8));
            ASSERT_EQ(results.size(), 30U) << kind;
            for (const SurveyPoint* const result : results) {
                EXPECT_EQ(result->dateTime / 86400000, problem.timeMs / 86400000);
                EXPECT_EQ(result->instrumentSerialNumber, results[0]->instrumentSerialNumber);
            }
            EXPECT_TRUE(groupResults(problem, {}, basalt::LocalTimes(8)).empty());
        }
    }
}
