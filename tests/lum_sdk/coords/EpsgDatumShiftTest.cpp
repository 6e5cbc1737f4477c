#include "lum_sdk/coords/EpsgDatumShift.h"

#include "lum_sdk/coords/EpsgSystem.h"
#include "tests/lum_sdk/coords/CoordFixture.h"

#include <algorithm>

namespace {

std::string nameOfBest(const char* code)
{
    const lum::EpsgDatumShifts shifts = lum::epsgDatumShifts(code);
    return shifts.best() == nullptr ? "none" : shifts.best()->name;
}

} // namespace

TEST(EpsgDatumShift, IsTakenOnlyWhereItBelongs)
{
    // Beijing 1954 has shifts of a few basins only; those at sea touch the zones on land.
    for (const char* code : {"2436", "2437", "2438", "2439", "2441"}) {
        EXPECT_EQ(nameOfBest(code), "none") << code;
        basalt::Dictionary system;
        ASSERT_EQ(fillFromEpsg(code, system), "");
        EXPECT_EQ(system.integer("_7type", -1), 0) << code;
    }
    EXPECT_EQ(nameOfBest("2100"), "GGRS87 to WGS 84 (1)");
    EXPECT_EQ(nameOfBest("32040"), "NAD27 to WGS 84 (6)");    // the most accurate that contains it
    EXPECT_EQ(nameOfBest("5514"), "S-JTSK to WGS 84 (3)");    // the other ones cover one country
    EXPECT_EQ(nameOfBest("3460"), "Fiji 1986 to WGS 84 (1)"); // across the date line
}

TEST(EpsgDatumShift, StandsInOrderOfCoverageThenAccuracy)
{
    const auto known = lum::epsgDatumShifts("5514").known;
    std::vector<std::string> texts;
    std::transform(known.begin(), known.end(), std::back_inserter(texts),
                   [](const auto& one) { return describe(one); });
    EXPECT_EQ(texts, (std::vector<std::string>{"S-JTSK to WGS 84 (3), 6 m, Czechia; Slovakia",
                                               "S-JTSK to WGS 84 (5), 1 m, Czechia",
                                               "S-JTSK to WGS 84 (1), 1 m, Czechia",
                                               "S-JTSK to WGS 84 (4), 1 m, Slovakia"}));
    EXPECT_NEAR(known.front().coverage, 1, 1e-9);
    const auto basins = lum::epsgDatumShifts("2436").known;
    EXPECT_LT(basins.front().accuracyM, basins.back().accuracyM);
}

/// The parameters of the register, 12.646, -155.176, -80.863 m, are those to WGS 84.
TEST(EpsgDatumShift, LeadsFromWgs84)
{
    const auto known = lum::epsgDatumShifts("2436").known;
    const auto ordos = std::find_if(known.begin(), known.end(), [](const auto& one) {
        return one.name == "Beijing 1954 to WGS 84 (1)";
    });
    ASSERT_NE(ordos, known.end());
    basalt::Dictionary keys;
    ordos->shift.toDictionary(keys);
    EXPECT_EQ(keys.integer("_7type"), 2);
    EXPECT_NEAR(keys.number("_7dx"), -12.646, 1e-9);
    EXPECT_NEAR(keys.number("_7dy"), 155.176, 1e-9);
    EXPECT_NEAR(keys.number("_7dz"), 80.863, 1e-9);
}
