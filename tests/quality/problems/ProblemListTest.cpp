#include "quality/problems/Fingerprint.h"
#include "quality/problems/ProblemCsv.h"
#include "tests/quality/problems/FoundProblems.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::SizeIs;

const ProblemKind& kindOf(const char* name)
{
    return *findProblemKind(name);
}

TEST(ProblemList, StaysReadableWhenListsAreJoinedAndThePointsAreGone)
{
    constexpr int kCount = 20000; // of several blocks of texts
    ProblemList all;
    {
        ProblemList later;
        SurveyPoint point = surveyPoint("10", "");
        point.surveyor = "王伟";
        for (int i = 0; i < kCount; ++i) {
            point.pointNumber = std::to_string(1000000 + i);
            (i % 2 == 0 ? all : later).add(kindOf("pdop"), point);
        }
        all.append(std::move(later));
        later.add(kindOf("pdop"), surveyPoint("11", "of a list that was used again"));
    }
    all.add(kindOf("pdop"), surveyPoint("10", "the last"));
    ASSERT_THAT(all, SizeIs(kCount + 1));
    for (int i = 0; i < kCount; ++i) {
        const int number = i < kCount / 2 ? 2 * i : 2 * (i - kCount / 2) + 1;
        ASSERT_EQ(all[std::size_t(i)].point, std::to_string(1000000 + number));
        ASSERT_EQ(all[std::size_t(i)].surveyor, "王伟");
    }
    EXPECT_EQ(all[kCount].point, "the last");
    EXPECT_TRUE(all[kCount].surveyor.empty());
}

class Fingerprint : public testing::Test, protected FoundProblems
{
protected:
    void SetUp() override
    {
        survey.set(goodResult("10", "1001"));
        survey.set(goodResult("10", "1001F"));
        design.set(designPoint("10", "1001"));
        m_problem = &m_list.add(kindOf("resurvey_off"), *survey.find("10", "1001"));
        m_problem->otherLine = m_problem->line;
        m_problem->otherPoint = m_list.keep("1001F");
        m_before = fingerprint();
    }
    std::string fingerprint() { return fingerprintOf(*m_problem, design, survey); }
    /// Whether a change of a result gives it another fingerprint; the change is taken back.
    template <class Change>
    bool tells(const char* number, Change change)
    {
        SurveyPoint& point = *survey.find("10", number);
        const SurveyPoint kept = point;
        change(point);
        const bool isOther = fingerprint() != m_before;
        point = kept;
        return isOther;
    }

    ProblemList m_list;
    Problem* m_problem = nullptr;
    std::string m_before;
};

TEST_F(Fingerprint, ChangesWithTheRecordsAndNotWithVerdicts)
{
    EXPECT_THAT(m_before, SizeIs(16));
    EXPECT_FALSE(tells("1001", [](SurveyPoint& point) {
        point.qualityStandard = 11;
        point.isResurvey = 1;
        point.resurveyHDiff = 1;
        point.pairedNumber = "1001F";
        point.seaHeight = 3;
    }));
    EXPECT_TRUE(tells("1001", [](SurveyPoint& point) { point.elevation += 0.0001; }));
    EXPECT_TRUE(tells("1001F", [](SurveyPoint& point) { point.rawOffset = 1; }));
    EXPECT_TRUE(tells("1001", [](SurveyPoint& point) { point.remarks = "a"; }));
    EXPECT_TRUE(tells("1001", [](SurveyPoint& point) { point.solutionType = 1; }));
    SurveyPoint& point = *survey.find("10", "1001");
    point.surveyor = "ab";
    const std::string first = fingerprint();
    point.surveyor = "a";
    point.remarks = "b"; // the same letters, in other columns
    EXPECT_NE(fingerprint(), first);
}

TEST_F(Fingerprint, IsTheSameOnceTheProjectIsReadAgain)
{
    EXPECT_FALSE(tells("1001", [](SurveyPoint& point) {
        point.north += 0.00004; // files hold four decimals
        point.latitude = 4e-9;  // eight
        point.ageOfDiff = 0.9;  // and of the age the whole part is read
    }));
}

TEST_F(Fingerprint, OfADesignPointIsThatOfItsRecord)
{
    Problem& missing = m_list.add(kindOf("missing"), *design.find("10", "1001"));
    const std::string before = fingerprintOf(missing, design, survey);
    design.find("10", "1001")->status = 1;
    EXPECT_EQ(fingerprintOf(missing, design, survey), before);
    design.find("10", "1001")->azimuth = 0.1;
    EXPECT_NE(fingerprintOf(missing, design, survey), before);
}

TEST_F(Fingerprint, OfADesignStaysWhenItIsStaked)
{
    design.set(designPoint("10", "1002"));
    Problem& spacing = m_list.add(kindOf("line_spacing"), *design.find("10", "1001"));
    spacing.otherLine = spacing.line;
    spacing.otherPoint = m_list.keep("1002");
    const std::string before = fingerprintOf(spacing, design, survey);
    survey.set(goodResult("10", "1002"));
    EXPECT_EQ(fingerprintOf(spacing, design, survey), before);
    design.find("10", "1002")->north += 1;
    EXPECT_NE(fingerprintOf(spacing, design, survey), before);
}

} // namespace
