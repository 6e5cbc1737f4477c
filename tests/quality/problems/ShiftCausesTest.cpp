#include "quality/problems/GroupShift.h"
#include "tests/quality/problems/FieldDays.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

/// "B3 R1 4-5 +0.3": base, rover, days and height, sorted.
Texts briefly(FieldDays& field)
{
    Texts texts;
    const std::int64_t first = FieldDays::timeOf(0) / 86400000;
    for (const Problem& problem : field.find()) {
        const auto shift = GroupShift::fromText(problem.detail);
        std::string text;
        for (const std::string& name : {shift.base, shift.rover})
            text += name.empty() ? "" : name + " ";
        if (shift.day != statistics::KeyValue::kNoNumber)
            text += std::to_string(shift.day - first) + "-" +
                    std::to_string(shift.lastDay - first) + " ";
        texts.push_back(text + QString::asprintf("%+.1f", shift.heightM).toStdString());
    }
    std::ranges::sort(texts);
    return texts;
}

} // namespace

TEST(ShiftCauses, EachErrorOfADayIsNamedOnce)
{
    struct Case
    {
        std::vector<FieldDay> works;
        Texts found;
    };
    const auto work = [](const char* base, const char* rover, double heightM, int day = 4) {
        return FieldDay{.day = day, .base = base, .rover = rover, .heightM = heightM};
    };
    const FieldDay few{.day = 4, .rover = "R1", .points = 5};
    FieldDay shortPole = work("B2", "R2", 0.2);
    shortPole.antennaM = 1.8;
    FieldDay movedBase = work("B2", "R2", 0.2);
    movedBase.antennaM = 2.2; // another pole
    movedBase.baseAltitudeM = 50.2;
    const std::vector<Case> cases{
        // A pole that other rovers of its base, or other bases of it, tell from the base.
        {{work("B1", "R1", 0), work("B1", "R2", -0.2)}, {"R2 4-4 -0.2"}},
        {{few, {.day = 4, .rover = "R2", .points = 60, .heightM = 0.5}}, {"R2 4-4 +0.5"}},
        {{work("B1", "R2", 0.2), work("B2", "R2", 0.2)}, {"R2 4-4 +0.2"}},
        {{work("B1", "R1", 0), work("B2", "R1", 0.2)}, {"B2 4-4 +0.2"}},
        // One rover with one base: nothing tells, or what was typed does; an antenna that is typed
        // too small makes the ground seem higher.
        {{work("B2", "R2", 0.2)}, {"B2 R2 4-4 +0.2"}},
        {{shortPole}, {"R2 4-4 +0.2"}},
        {{movedBase}, {"B2 4-4 +0.2"}},
        // A wrong base and elsewhere a wrong pole, of either the larger.
        {{work("B3", "R1", 0.3), work("B3", "R2", 0.3), work("B1", "R3", 0.2), work("B1", "R4", 0)},
         {"B3 4-4 +0.3", "R3 4-4 +0.2"}},
        {{work("B3", "R1", 0.2), work("B3", "R2", 0.2), work("B1", "R3", 0.3), work("B1", "R4", 0)},
         {"B3 4-4 +0.2", "R3 4-4 +0.3"}},
        // Both in the same results; the pole also elsewhere, or not.
        {{work("B3", "R1", 0.3), work("B3", "R2", 0.5), work("B1", "R2", 0.2), work("B1", "R4", 0)},
         {"B3 4-4 +0.3", "R2 4-4 +0.2"}},
        {{work("B3", "R1", 0.3), work("B3", "R2", 0.1), work("B3", "R4", 0.3)},
         {"B3 4-4 +0.3", "R2 4-4 -0.2"}},
        {{work("B3", "R1", 0.3), work("B3", "R2", 0.5)}, {"B3 4-4 +0.3", "R2 4-4 +0.2"}},
        // Two bases; when all of a day are alike, the day; one on days that follow each other.
        {{work("B3", "R1", 0.3), work("B3", "R2", 0.3), work("B4", "R3", -0.5),
          work("B4", "R4", -0.5), work("B1", "R5", 0)},
         {"B3 4-4 +0.3", "B4 4-4 -0.5"}},
        {{work("B3", "R1", 0.3), work("B4", "R2", 0.3)}, {"4-4 +0.3"}},
        {{work("B2", "R2", 0.3), work("B2", "R3", 0.3, 5), work("B1", "R1", 0, 5),
          work("B2", "R2", 0, 6), work("B2", "R2", 0.3, 7)},
         {"B2 4-5 +0.3", "B2 R2 7-7 +0.3"}},
        {{work("B2", "R2", 0.3), work("B2", "R2", 0.3, 5), work("B2", "R2", 0.6, 6)},
         {"B2 R2 4-5 +0.3", "B2 R2 6-6 +0.6"}},
    };
    for (const Case& each : cases) {
        FieldDays field = goodDays();
        for (const FieldDay& day : each.works)
            field.work(day);
        EXPECT_EQ(briefly(field), each.found);
        field.parameters.set("design_ver_diff", "0.12"); // what follows is not listed
        EXPECT_EQ(field.told({"base_shift", "pole_shift", "survey_shift", "height_off"}).size(),
                  each.found.size());
    }
}

TEST(ShiftCauses, AreToldInPlainWords)
{
    const auto told = [](const FieldDay& wrong) {
        FieldDays field = goodDays();
        field.work({.day = 4, .base = "B1", .rover = "R1"});
        field.work(wrong);
        return firstOf(field.told());
    };
    std::string text = told({.day = 4, .base = "B1", .rover = "R2", .heightM = -0.2});
    EXPECT_TRUE(contains(text, "pole_shift: All 30 results of rover R2 on 2026/05/04 are 0."))
        << text;
    EXPECT_TRUE(contains(text, "m too low. The antenna height of the pole is wrong.")) << text;
    text = told({.day = 4, .base = "B2", .rover = "R2", .heightM = -0.2});
    EXPECT_TRUE(contains(text, "The height of the base is wrong, or that of the pole of rover R2, "
                               "which alone has used it."))
        << text;
    FieldDays everyDay;
    for (int day = 1; day <= 3; ++day) {
        everyDay.work({.day = day});
        for (const char* rover : {"R2", "R3"})
            everyDay.work({.day = day, .base = "B2", .rover = rover, .heightM = 0.3});
    }
    const Texts texts = everyDay.told();
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_TRUE(
        contains(texts[0], "All 180 results of base B2 from 2026/05/01 to 2026/05/03 are 0."))
        << texts[0];
}

TEST(ShiftCauses, ABaseAndAPoleOfADayAreToldApart)
{
    for (unsigned seed = 1; seed <= 60; ++seed) {
        FieldDays field = goodDays(seed);
        field.planeUnitM = seed % 2 == 0 ? 0.3048 : 1; // heights are metres
        std::mt19937 random(seed);
        const auto chance = [&](int count) { return static_cast<int>(random() % unsigned(count)); };
        const int wrongBase = chance(3);
        const int wrongRover = chance(6);
        const double baseM = (chance(2) == 0 ? -1 : 1) * (2 + chance(4)) / 10.;
        const double poleM = (chance(2) == 0 ? -1 : 1) * (2 + chance(4)) / 10.;
        for (int rover = 0; rover < 6; ++rover) { // each works with two of three bases
            for (const int base : {rover % 3, (rover + 1 + chance(2)) % 3})
                field.work({.day = 4,
                            .base = "B" + std::to_string(base),
                            .rover = "R" + std::to_string(rover),
                            .points = 10 + chance(60),
                            .heightM = (base == wrongBase ? baseM : 0) +
                                       (rover == wrongRover ? poleM : 0)});
        }
        const Texts planted{QString::asprintf("B%d 4-4 %+.1f", wrongBase, baseM).toStdString(),
                            QString::asprintf("R%d 4-4 %+.1f", wrongRover, poleM).toStdString()};
        EXPECT_EQ(briefly(field), planted) << "seed " << seed;
    }
}
