#include "lum_sdk/coords/EpsgDatumShift.h"

#include "lum_sdk/coords/EpsgSystem.h"
#include "tests/lum_sdk/coords/CoordFixture.h"

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
