#include "lum_sdk/coords/CoordSystemCatalog.h"

#include "lum_sdk/coords/EpsgDatumShift.h"
#include "lum_sdk/coords/EpsgSystem.h"
#include "lum_sdk/coords/ProjHandles.h"
#include "tests/lum_sdk/coords/CoordFixture.h"

#include <cmath>

namespace {

const CoordSystemCatalog& catalog()
{
    static const CoordSystemCatalog instance;
    return instance;
}

/// PROJ's own way from WGS 84 latitude and longitude, east and north in the system's unit.
PJ_COORD byProj(const std::string& code, double latitude, double longitude)
{
    const lum::ProjContext context = lum::makeProjContext();
    const std::string target = "EPSG:" + code;
    const lum::ProjObject plain(
        proj_create_crs_to_crs(context.get(), "EPSG:4326", target.c_str(), nullptr));
    const lum::ProjObject ordered(proj_normalize_for_visualization(context.get(), plain.get()));
    return proj_trans(ordered.get(), PJ_FWD, proj_coord(longitude, latitude, 0, HUGE_VAL));
}

std::string nameOfBest(const char* code)
{
    const lum::EpsgDatumShifts shifts = lum::epsgDatumShifts(code);
    return shifts.best() == nullptr ? "none" : shifts.best()->name;
}

} // namespace

TEST(CoordSystemCatalog, FindsByCodeAndByWords)
{
    EXPECT_GT(catalog().entries().size(), 4500U);
    for (const auto& [text, name] :
         {std::pair("32650", "WGS 84 / UTM zone 50N"),
          std::pair("EPSG:32650", "WGS 84 / UTM zone 50N"),
          std::pair("beijing 1954 / 3-degree gk cm 117e",
                    "Beijing 1954 / 3-degree Gauss-Kruger CM 117E"),
          std::pair("NAD27 / Texas South Central", "NAD27 / Texas South Central"),
          std::pair("50n utm wgs 84", "WGS 84 / UTM zone 50N"),
          std::pair("utm 50n", "WGS 84 / UTM zone 50N"),
          std::pair("gauss-kruger 117e onshore 3-degree new",
                    "New Beijing / 3-degree Gauss-Kruger CM 117E")}) {
        const auto found = catalog().search(text);
        EXPECT_EQ(found.empty() ? "" : found.front()->name, name) << text;
    }
    EXPECT_EQ(catalog().search("3265").size(), 11U); // 3265, 32650 to 32659
    EXPECT_EQ(catalog().search("22213").size(), 1U) << "used in two areas";
    EXPECT_EQ(catalog().search("utm", 7).size(), 7U);
    EXPECT_TRUE(catalog().search(" / ").empty());
    EXPECT_TRUE(catalog().search("no such system").empty());
    const CoordSystemEntry& entry = *catalog().search("32650").front();
    EXPECT_EQ(entry.code, "32650");
    EXPECT_NE(entry.area.find("114"), std::string::npos) << entry.area;
    EXPECT_DOUBLE_EQ(entry.westDeg, 114);
}

struct EpsgCase
{
    const char* code;
    double latitude, longitude;
};

/// The shift to the datum counts here; `EpsgRegisterTest` compares the projections.
TEST(EpsgSystem, AgreesWithProjToAMillimetre)
{
    for (const auto& [code, latitude, longitude] :
         {EpsgCase{"32650", 40, 117.3},  // on WGS 84
          EpsgCase{"4548", 40, 117.3},   // no shift is known
          EpsgCase{"2100", 38, 24},      // geocentric translations
          EpsgCase{"24500", 1.3, 103.8}, // the same
          EpsgCase{"29873", 5, 118},     // the same
          EpsgCase{"31700", 46, 25},     // seven parameters
          EpsgCase{"27572", 47, 2.5}}) { // grads from the meridian of Paris
        SCOPED_TRACE(code);
        basalt::Dictionary system;
        ASSERT_EQ(fillFromEpsg(code, system), "");
        const CoordTriple grid = CoordService(system).toGrid(latitude, longitude);
        const PJ_COORD expected = byProj(code, latitude, longitude);
        EXPECT_NEAR(grid.first, expected.xy.y, 1e-3);
        EXPECT_NEAR(grid.second, expected.xy.x, 1e-3);
    }
}

/// The numbers of such a system grow to the west, as its maps have them. PROJ cannot tell.
TEST(EpsgSystem, CountsWestings)
{
    basalt::Dictionary system;
    ASSERT_EQ(fillFromEpsg("3145", system), ""); // ETRS89 / Faroe Lambert
    EXPECT_EQ(system.text("axis_direction"), "NW");
    const CoordTriple faroe = CoordService(system).toGrid(62, -7.5);
    dic_set_value(system, "axis_direction", "");
    const CoordTriple usual = CoordService(system).toGrid(62, -7.5);
    const double falseWesting = 500000; // the place lies east of the meridian
    EXPECT_LT(faroe.second, falseWesting);
    expectNear(faroe, {usual.first, 2 * falseWesting - usual.second, 0}, 1e-9);
    ASSERT_EQ(fillFromEpsg("32734", system), "");
    EXPECT_EQ(system.text("axis_direction"), "NE") << "not that of the system before";
}

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
