#include "views/find/PointFinder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace {

template <class Points>
auto& add(Points& points, const char* line, const std::string& point)
{
    typename Points::Point added;
    added.lineNumber = line;
    added.pointNumber = point;
    return points.set(std::move(added));
}

/// The places found, a word each: "D" or "S", line, point; a line with its size.
std::string found(const DesignPoints& design, const SurveyPoints& survey, const char* text)
{
    std::string words;
    for (const FoundPlace& place : findPlaces(design, survey, text).places) {
        words += (words.empty() ? "" : " ") + std::string(place.isSurvey ? "S:" : "D:") +
                 place.line + "/" +
                 (place.isLine() ? "#" + std::to_string(place.lineSize) : place.point);
    }
    return words;
}

} // namespace

TEST(PointFinder, TheNumberItselfThenBeginningsThenParts)
{
    DesignPoints design;
    SurveyPoints survey;
    for (const char* number : {"110", "10", "105", "5", "10F"})
        add(design, "2", number);
    add(design, "10", "7");
    add(survey, "2", "10");
    add(survey, "102", "x10");
    EXPECT_EQ(found(design, survey, " 10 "),
              "D:10/#1 D:2/10 S:2/10 D:2/105 D:2/10F S:102/#1 D:2/110 S:102/x10");
    EXPECT_EQ(found(design, survey, "10f"), "D:2/10F");
    EXPECT_EQ(found(design, survey, "X1"), "S:102/x10");
    EXPECT_EQ(found(design, survey, ""), "");
    EXPECT_EQ(found(design, survey, " / "), "");
    EXPECT_EQ(found(design, survey, "10FF"), "");
}

TEST(PointFinder, ALineAndAPointTypedTogether)
{
    DesignPoints design;
    SurveyPoints survey;
    add(design, "1001", "1040").type = 1;
    add(design, "1001", "104").type = 1;
    add(design, "1002", "1040").type = 0;
    add(design, "测线 7", "5 a");
    add(survey, "1001", "1040").pointMark = 1;
    EXPECT_EQ(found(design, survey, "1001/1040"), "D:1001/1040 S:1001/1040");
    EXPECT_EQ(found(design, survey, "1001\t104"), "D:1001/104 D:1001/1040 S:1001/1040");
    EXPECT_EQ(found(design, survey, "1001  40"), "D:1001/1040 S:1001/1040");
    EXPECT_EQ(found(design, survey, "1002/"), "D:1002/1040");
    EXPECT_EQ(found(design, survey, "100/1040"), "") << "the line is named whole";
    EXPECT_EQ(found(design, survey, "测线 7 5 A"), "D:测线 7/5 a");
    EXPECT_EQ(found(design, survey, "线 7"), "D:测线 7/#1");
    EXPECT_EQ(found(design, survey, "r1001"), "D:1001/#2 S:1001/#1");
    EXPECT_EQ(found(design, survey, "S1001"), "") << "it is a receiver line";
    EXPECT_EQ(found(design, survey, "R100"), "D:1001/#2 S:1001/#1");
    EXPECT_EQ(found(design, survey, "R1001/1040"), "D:1001/1040 S:1001/1040");
    EXPECT_EQ(found(design, survey, "R"), "");
}

TEST(PointFinder, FiftyPlacesAreSharedAndAllAreCounted)
{
    DesignPoints design;
    SurveyPoints survey;
    for (int point = 1000; point < 1400; ++point)
        add(design, point < 1030 ? "7" : "8", std::to_string(point));
    const auto countOf = [&](const char* text, bool isSurvey) {
        const FoundPlaces all = findPlaces(design, survey, text);
        return std::count_if(all.places.begin(), all.places.end(),
                             [&](const FoundPlace& place) { return place.isSurvey == isSurvey; });
    };
    EXPECT_EQ(findPlaces(design, survey, "1").count, 400U);
    EXPECT_EQ(countOf("1", false), 50);
    EXPECT_EQ(findPlaces(design, survey, "1").places.back().point, "1049") << "in order";
    for (int point = 1000; point < 1010; ++point)
        add(survey, "8", std::to_string(point));
    EXPECT_EQ(countOf("1", false), 40);
    EXPECT_EQ(countOf("1", true), 10);
    for (int point = 1010; point < 1400; ++point)
        add(survey, "8", std::to_string(point));
    EXPECT_EQ(findPlaces(design, survey, "1").count, 800U);
    EXPECT_EQ(countOf("1", false), 25);
    EXPECT_EQ(countOf("1", true), 25);
    EXPECT_EQ(countOf("1399", true), 1);
    EXPECT_EQ(findPlaces(design, survey, std::string(5000, '1')).count, 0U);
}
