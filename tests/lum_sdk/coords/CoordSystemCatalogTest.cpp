#include "lum_sdk/coords/CoordSystemCatalog.h"

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
PJ_COORD byProj(const std::string& code, double latitude, double longitude,
                const char* source = "EPSG:4326")
{
    const lum::ProjContext context = lum::makeProjContext();
    const std::string target = "EPSG:" + code;
    const lum::ProjObject plain(
        proj_create_crs_to_crs(context.get(), source, target.c_str(), nullptr));
    const lum::ProjObject ordered(proj_normalize_for_visualization(context.get(), plain.get()));
    return proj_trans(ordered.get(), PJ_FWD, proj_coord(longitude, latitude, 0, HUGE_VAL));
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
    int projectType;
    double latitude, longitude;
};

// Each method of the register that is known, without a grid on the way: on WGS 84 or close to it,
// or by seven parameters.
constexpr EpsgCase kSystems[] = {
    {"32650", 2, 40, 117.3},  // UTM
    {"32733", 2, -20, 16},    // UTM, south
    {"4548", 1, 40, 117.3},   // transverse Mercator
    {"2100", 1, 38, 24},      // geocentric translations
    {"2278", 3, 29, -97},     // Lambert, US survey feet
    {"3448", 3, 18, -77},     // Lambert, one parallel
    {"3395", 4, 40, 117},     // Mercator
    {"3994", 4, -42, 101},    // Mercator by its parallel
    {"3857", 4, 40, 117},     // Mercator on a sphere
    {"26931", 13, 57, -134},  // oblique Mercator, variant A
    {"3035", 14, 52, 15},     // Lambert azimuthal equal area
    {"6247", 15, 4.6, -74.1}, // Colombia urban
    {"29873", 5, 5, 118},     // oblique Mercator, variant B
    {"31700", 6, 46, 25},     // oblique stereographic
    {"32661", 7, 80, 30},     // polar, factor
    {"3031", 7, -75, 120},    // polar, parallel
    {"3310", 8, 37, -120},    // Albers
    {"24500", 9, 1.3, 103.8}, // Cassini-Soldner
    {"5880", 10, -15, -50},   // polyconic
    {"2056", 12, 46.9, 8.2},  // Swiss oblique Mercator
    {"27572", 3, 47, 2.5},    // grads from the meridian of Paris
};

TEST(EpsgSystem, AgreesWithProjToAMillimetre)
{
    for (const auto& [code, projectType, latitude, longitude] : kSystems) {
        SCOPED_TRACE(code);
        basalt::Dictionary system;
        ASSERT_EQ(fillFromEpsg(code, system), "");
        EXPECT_EQ(system.integer("project_type"), projectType);
        CoordService service(system);
        ASSERT_EQ(service.initCode, 0) << service.service.message(service.initCode);
        const CoordTriple grid = service.toGrid(latitude, longitude);
        const PJ_COORD expected = byProj(code, latitude, longitude);
        EXPECT_NEAR(grid.first, expected.xy.y, 1e-3);
        EXPECT_NEAR(grid.second, expected.xy.x, 1e-3);
    }
}

/// Of the shifts to this datum PROJ takes another in each country, the dictionary the one for all
/// of the system's area; the projection is the same.
TEST(EpsgSystem, KrovakAgreesOnItsOwnDatum)
{
    basalt::Dictionary system;
    ASSERT_EQ(fillFromEpsg("5514", system), "");
    EXPECT_EQ(system.integer("_7type"), 2);
    dic_set_value(system, "_7type", 0);
    const CoordTriple grid = CoordService(system).toGrid(50, 15);
    const PJ_COORD expected = byProj("5514", 50, 15, "EPSG:4156");
    EXPECT_NEAR(grid.first, expected.xy.y, 1e-3);
    EXPECT_NEAR(grid.second, expected.xy.x, 1e-3);
}

/// The numbers of such a system grow to the south and to the west, as its maps have them.
TEST(EpsgSystem, CountsSouthingsAndWestings)
{
    basalt::Dictionary system;
    ASSERT_EQ(fillFromEpsg("2049", system), ""); // Hartebeesthoek94 / Lo21
    EXPECT_EQ(system.text("axis_direction"), "SW");
    const CoordTriple lo21 = CoordService(system).toGrid(-33, 20);
    ASSERT_EQ(fillFromEpsg("32734", system), ""); // the same meridian, north and east
    EXPECT_EQ(system.text("axis_direction"), "NE") << "not that of the system before";
    const CoordTriple utm = CoordService(system).toGrid(-33, 20);
    EXPECT_NEAR(lo21.first, (10000000 - utm.first) / 0.9996, 1e-3);
    EXPECT_NEAR(lo21.second, (500000 - utm.second) / 0.9996, 1e-3);

    ASSERT_EQ(fillFromEpsg("3145", system), ""); // ETRS89 / Faroe Lambert
    EXPECT_EQ(system.text("axis_direction"), "NW");
    const CoordTriple faroe = CoordService(system).toGrid(62, -7.5);
    dic_set_value(system, "axis_direction", "");
    const CoordTriple usual = CoordService(system).toGrid(62, -7.5);
    const double falseWesting = 500000; // the place lies east of the meridian
    EXPECT_LT(faroe.second, falseWesting);
    expectNear(faroe, {usual.first, 2 * falseWesting - usual.second, 0}, 1e-9);
}

TEST(EpsgSystem, FeetStandInFactorAndFalseOrigin)
{
    basalt::Dictionary system;
    ASSERT_EQ(fillFromEpsg("32040", system), "");
    EXPECT_NEAR(system.number("factor"), 3937.0 / 1200, 1e-12);
    EXPECT_NEAR(system.number("false_east"), 2000000, 1e-6);
    EXPECT_EQ(system.text("ellipsoid_name"), "Clarke 1866");
    EXPECT_NE(system.integer("_7type"), 0) << "translations stand in for the grid";
}

TEST(EpsgSystem, RefusesWhatItCannotDescribeAndLeavesTheParameters)
{
    basalt::Dictionary system = dictionaryOf("org_lon=117");
    for (const auto& [code, reason] :
         {std::pair("99999", "no coordinate system"),
          std::pair("4326", "(WGS 84) is geographic; choose a projected system"),
          std::pair("4978", "no projected"), // geocentric
          std::pair("27200", "New Zealand Map Grid"), std::pair("5515", "Krovak Modified")}) {
        const std::string fault = fillFromEpsg(code, system);
        EXPECT_NE(fault.find(reason), std::string::npos) << fault;
    }
    EXPECT_EQ(system.size(), 1U);
    EXPECT_EQ(fillFromEpsg("32650", system), "");
    EXPECT_EQ(system.integer("_7type", -1), 0);
}
