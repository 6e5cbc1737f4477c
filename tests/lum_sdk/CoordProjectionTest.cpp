#include "lum_sdk/coords/CoordProjections.h"
#include "tests/lum_sdk/CoordFixture.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

constexpr double kUsFoot = 1200.0 / 3937.0;
constexpr double kClarkesLink = 0.201166195164;

const basalt::Dictionary kBritish = dictionaryOf({{"project_type", 1},
                                                  {"ellipsoid_a", 6377563.396},
                                                  {"ellipsoid_f", 299.3249646},
                                                  {"org_lat", 49},
                                                  {"org_lon", -2},
                                                  {"factor", 0.9996012717},
                                                  {"false_east", 400000},
                                                  {"false_north", -100000}});
const basalt::Dictionary kUtm18 = dictionaryOf({{"project_type", 2},
                                                {"ellipsoid_a", 6378206.4},
                                                {"ellipsoid_f", 294.9786982},
                                                {"org_lon", -75}});
const basalt::Dictionary kTexas = dictionaryOf({{"project_type", 3},
                                                {"ellipsoid_a", 6378206.4},
                                                {"ellipsoid_f", 294.9786982},
                                                {"org_lat", dms(27, 50)},
                                                {"org_lon", -99},
                                                {"parallel_1_lat", dms(28, 23)},
                                                {"parallel_2_lat", dms(30, 17)},
                                                {"false_east", 2000000},
                                                {"factor", 1 / kUsFoot}});
const basalt::Dictionary kJamaica = dictionaryOf({{"project_type", 3},
                                                  {"ellipsoid_a", 6378206.4},
                                                  {"ellipsoid_f", 294.9786982},
                                                  {"org_lat", 18},
                                                  {"org_lon", -77},
                                                  {"factor", 1},
                                                  {"false_east", 250000},
                                                  {"false_north", 150000}});
const basalt::Dictionary kMakassar = dictionaryOf({{"project_type", 4},
                                                   {"ellipsoid_a", 6377397.155},
                                                   {"ellipsoid_f", 299.1528128},
                                                   {"org_lon", 110},
                                                   {"factor", 0.997},
                                                   {"false_east", 3900000},
                                                   {"false_north", 900000}});
const basalt::Dictionary kCaspian = dictionaryOf({{"project_type", 4},
                                                  {"ellipsoid_a", 6378245},
                                                  {"ellipsoid_f", 298.3},
                                                  {"org_lon", 51},
                                                  {"parallel_1_lat", 42}});
const basalt::Dictionary kBorneo = dictionaryOf({{"project_type", 5},
                                                 {"ellipsoid_a", 6377298.556},
                                                 {"ellipsoid_f", 300.8017},
                                                 {"org_lat", 4},
                                                 {"org_lon", 115},
                                                 {"p_r", dms(53, 18, 56.9537)},
                                                 {"parallel_1_lat", dms(53, 7, 48.3685)},
                                                 {"factor", 0.99984},
                                                 {"false_east", 590476.87},
                                                 {"false_north", 442857.65}});
const basalt::Dictionary kTwoPoints = dictionaryOf({{"project_type", 5},
                                                    {"ellipsoid_a", 6400000},
                                                    {"org_lat", 45},
                                                    {"lat1", 45},
                                                    {"lon1", 0},
                                                    {"lat2", 45.00001},
                                                    {"lon2", 1e-5}});
const basalt::Dictionary kDutch = dictionaryOf({{"project_type", 6},
                                                {"ellipsoid_a", 6377397.155},
                                                {"ellipsoid_f", 299.1528128},
                                                {"org_lat", dms(52, 9, 22.178)},
                                                {"org_lon", dms(5, 23, 15.5)},
                                                {"factor", 0.9999079},
                                                {"false_east", 155000},
                                                {"false_north", 463000}});
const basalt::Dictionary kUpsNorth = dictionaryOf({{"project_type", 7},
                                                   {"ellipsoid_a", 6378137},
                                                   {"ellipsoid_f", 298.257223563},
                                                   {"org_lat", 90},
                                                   {"factor", 0.994},
                                                   {"false_east", 2000000},
                                                   {"false_north", 2000000}});
const basalt::Dictionary kAntarctic = dictionaryOf({{"project_type", 7},
                                                    {"ellipsoid_a", 6378137},
                                                    {"ellipsoid_f", 298.257223563},
                                                    {"org_lat", -90},
                                                    {"org_lon", 70},
                                                    {"parallel_1_lat", -71},
                                                    {"false_east", 6000000},
                                                    {"false_north", 6000000}});
const basalt::Dictionary kAlbers = dictionaryOf({{"project_type", 8},
                                                 {"ellipsoid_a", 6378206.4},
                                                 {"ellipsoid_f", 294.9786982},
                                                 {"org_lat", 23},
                                                 {"org_lon", -96},
                                                 {"parallel_1_lat", 29.5},
                                                 {"parallel_2_lat", 45.5}});
const basalt::Dictionary kTrinidad = dictionaryOf({{"project_type", 9},
                                                   {"ellipsoid_a", 6378293.64520876},
                                                   {"ellipsoid_f", 294.260676369},
                                                   {"org_lat", dms(10, 26, 30)},
                                                   {"org_lon", dms(-61, 20)},
                                                   {"factor", 1 / kClarkesLink},
                                                   {"false_east", 430000},
                                                   {"false_north", 325000}});
const basalt::Dictionary kPolyconic = dictionaryOf({{"project_type", 10},
                                                    {"ellipsoid_a", 6378206.4},
                                                    {"ellipsoid_f", 294.9786982},
                                                    {"org_lat", 30},
                                                    {"org_lon", -96}});
const basalt::Dictionary kKrovak = dictionaryOf({{"project_type", 11},
                                                 {"ellipsoid_a", 6377397.155},
                                                 {"ellipsoid_f", 299.1528128},
                                                 {"org_lat", 49.5},
                                                 {"org_lon", dms(24, 50)},
                                                 {"factor", 0.9999}});
const basalt::Dictionary kSwiss = dictionaryOf({{"project_type", 12},
                                                {"ellipsoid_a", 6377397.155},
                                                {"ellipsoid_f", 299.1528128},
                                                {"org_lat", dms(46, 57, 8.66)},
                                                {"org_lon", dms(7, 26, 22.5)},
                                                {"false_east", 600000},
                                                {"false_north", 200000}});

} // namespace

struct WorkedExample
{
    const char* name;
    const basalt::Dictionary* system;
    double latitude, longitude;
    double north, east;
    double tolerance; ///< the last printed digit
};

// GN: IOGP publication 373-7-2, "Coordinate Conversions and Transformations including Formulas".
// Snyder: "Map Projections - A Working Manual", U.S. Geological Survey Professional Paper 1395.
class PublishedExample : public testing::TestWithParam<WorkedExample>
{
};

TEST_P(PublishedExample, AgreesBothWays)
{
    const WorkedExample& example = GetParam();
    CoordService service(*example.system);
    ASSERT_EQ(service.initCode, 0) << service.service.message(service.initCode);

    const CoordTriple grid = service.toGrid(example.latitude, example.longitude, 12.5);
    ASSERT_EQ(service.code, 0) << service.message();
    EXPECT_NEAR(grid.first, example.north, example.tolerance);
    EXPECT_NEAR(grid.second, example.east, example.tolerance);
    EXPECT_DOUBLE_EQ(grid.third, 12.5);

    const CoordTriple back = service.toGeodetic({example.north, example.east, 12.5});
    ASSERT_EQ(service.code, 0) << service.message();
    EXPECT_NEAR(back.first, example.latitude, example.tolerance * 1.1e-5);
    EXPECT_NEAR(back.second, example.longitude, example.tolerance * 5e-5);
}

INSTANTIATE_TEST_SUITE_P(
    GuidanceNote, PublishedExample,
    testing::Values(
        WorkedExample{"TransverseMercator", &kBritish, 50.5, 0.5, 69740.50, 577274.99, 0.01},
        WorkedExample{"LambertTwoParallelsInFeet", &kTexas, 28.5, -96, 254759.80, 2963503.91, 0.01},
        WorkedExample{"LambertOneParallel", &kJamaica, dms(17, 55, 55.80), dms(-76, 56, 37.26),
                      142493.51, 255966.58, 0.01},
        WorkedExample{"MercatorWithFactor", &kMakassar, -3, 120, 569150.82, 5009726.58, 0.01},
        WorkedExample{"MercatorWithParallel", &kCaspian, 53, 53, 5171848.07, 165704.29, 0.01},
        WorkedExample{"ObliqueMercator", &kBorneo, dms(5, 23, 14.1129), dms(115, 48, 19.8196),
                      596562.78, 679245.73, 0.01},
        WorkedExample{"ObliqueStereographic", &kDutch, 53, 6, 557057.739, 196105.283, 0.001},
        WorkedExample{"PolarWithFactor", &kUpsNorth, 73, 44, 632668.43, 3320416.75, 0.01},
        WorkedExample{"PolarWithParallel", &kAntarctic, -75, 120, 7053389.56, 7255380.79, 0.01},
        WorkedExample{"CassiniInLinks", &kTrinidad, 10, -62, 82536.22, 66644.94, 0.01},
        WorkedExample{"Krovak", &kKrovak, dms(50, 12, 32.442), dms(16, 50, 59.179), -1050538.63,
                      -568991.00, 0.02}),
    [](const auto& test) { return test.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Snyder, PublishedExample,
    testing::Values(WorkedExample{"Utm", &kUtm18, 40.5, -73.5, 4484124.4, 627106.5, 0.1},
                    WorkedExample{"Albers", &kAlbers, 35, -75, 1535925.0, 1885472.7, 0.1},
                    WorkedExample{"Polyconic", &kPolyconic, 40, -75, 1319657.8, 1776774.5, 0.1}),
    [](const auto& test) { return test.param.name; });

// Swiss Federal Office of Topography, "Formulas and constants for the calculation of the Swiss
// conformal cylindrical projection", the point Rigi; and the test suite of PROJ, omerc.
INSTANTIATE_TEST_SUITE_P(
    Others, PublishedExample,
    testing::Values(WorkedExample{"SwissOblique", &kSwiss, dms(47, 3, 28.95659233),
                                  dms(8, 29, 11.11127154), 212273.44, 679520.05, 0.01},
                    WorkedExample{"ObliqueThroughTwoPoints", &kTwoPoints, 1, 2, -5093592.31,
                                  -3569.83, 0.01}),
    [](const auto& test) { return test.param.name; });

/// The stereographic plane of Romania: its published factor 0.99975 comes from its published
/// cutting radius of 201.718 km.
TEST(CoordProjection, CuttingRadiusStandsForTheFactor)
{
    basalt::Dictionary system = dictionaryOf({{"project_type", 6},
                                              {"ellipsoid_a", 6378245},
                                              {"ellipsoid_f", 298.3},
                                              {"org_lat", 46},
                                              {"org_lon", 25},
                                              {"factor", 0.99975},
                                              {"false_east", 500000},
                                              {"false_north", 500000}});
    const CoordTriple byFactor = CoordService(system).toGrid(48, 29);
    dic_set_value(system, "factor", 1.0);
    dic_set_value(system, "cutting_radius", 201718.0);
    const CoordTriple byRadius = CoordService(system).toGrid(48, 29);
    EXPECT_NEAR(byRadius.first, byFactor.first, 0.01);
    EXPECT_NEAR(byRadius.second, byFactor.second, 0.01);
}

struct Area
{
    const char* name;
    const basalt::Dictionary* system;
    double south, west, north, east;
};

class UsedArea : public testing::TestWithParam<Area>
{
};

TEST_P(UsedArea, ForwardAndBackAgree)
{
    const Area& area = GetParam();
    basalt::Dictionary shifted(*area.system);
    dictionary_copy(dictionaryOf({{"_7type", 1},
                                  {"_7dx", -446.448},
                                  {"_7dy", 125.157},
                                  {"_7dz", -542.06},
                                  {"_7rx", -0.15},
                                  {"_7ry", -0.247},
                                  {"_7rz", -8.42},
                                  {"_7ppm", 20.489}}),
                    shifted);
    CoordService service(shifted);
    for (int row = 0; row <= 10; ++row) {
        for (int column = 0; column <= 10; ++column) {
            const double latitude = area.south + (area.north - area.south) * row / 10;
            const double longitude = area.west + (area.east - area.west) * column / 10;
            const CoordTriple grid = service.toGrid(latitude, longitude, 250);
            const CoordTriple back = service.toGeodetic(grid);
            EXPECT_NEAR(back.first, latitude, 1e-9);
            EXPECT_NEAR(back.second, longitude, 1e-9) << "at latitude " << latitude;
            EXPECT_NEAR(back.third, 250, 1e-4);
            const CoordTriple again = service.toGrid(back.first, back.second, back.third);
            const double metre = std::max(1.0, area.system->number("factor"));
            EXPECT_NEAR(again.first, grid.first, 1e-4 * metre);
            EXPECT_NEAR(again.second, grid.second, 1e-4 * metre);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, UsedArea,
                         testing::Values(Area{"TransverseMercator", &kBritish, 49, -9, 61, 2},
                                         Area{"Utm", &kUtm18, 0, -78, 84, -72},
                                         Area{"LambertTwo", &kTexas, 25, -107, 31, -93},
                                         Area{"LambertOne", &kJamaica, 17, -79, 19, -76},
                                         Area{"Mercator", &kMakassar, -11, 95, 6, 141},
                                         Area{"ObliqueMercator", &kBorneo, 0, 109, 8, 120},
                                         Area{"Stereographic", &kDutch, 50, 3, 54, 8},
                                         Area{"North", &kUpsNorth, 60, -179, 89, 179},
                                         Area{"South", &kAntarctic, -89, -179, -60, 179},
                                         Area{"Albers", &kAlbers, 24, -125, 50, -66},
                                         Area{"Cassini", &kTrinidad, 9.5, -62.5, 11.5, -60},
                                         Area{"Polyconic", &kPolyconic, 20, -106, 45, -86},
                                         Area{"Krovak", &kKrovak, 47, 12, 52, 23},
                                         Area{"Swiss", &kSwiss, 45, 5, 48, 11}),
                         [](const auto& test) { return test.param.name; });

/// Every key that a projection claims to read must move the point.
TEST(CoordProjection, EachKeyOfAProjectionCounts)
{
    const basalt::Dictionary* const systems[] = {&kBritish,  &kUtm18,     &kTexas,    &kMakassar,
                                                 &kBorneo,   &kDutch,     &kUpsNorth, &kAlbers,
                                                 &kTrinidad, &kPolyconic, &kKrovak,   &kSwiss};
    ASSERT_EQ(std::size(systems), lum::projectionKinds().size());
    for (const lum::ProjectionKind& kind : lum::projectionKinds()) {
        const basalt::Dictionary& system = *systems[kind.code - 1];
        ASSERT_EQ(system.integer("project_type"), kind.code);
        const double latitude = system.number("org_lat") * 0.98 + 0.4;
        const double longitude = system.number("org_lon") + 0.7;
        const CoordTriple before = CoordService(system).toGrid(latitude, longitude);
        std::string_view keys(kind.keys);
        const std::string all = std::string(keys) + ",ellipsoid_a,ellipsoid_f,project_height";
        for (std::string_view rest(all); !rest.empty();) {
            const std::string key(next_word3(rest, ','));
            if (key.starts_with("lat") || key.starts_with("lon") ||
                (kind.code == 7 && key == "org_lat") ||
                (kind.code == 11 && key.starts_with("ellipsoid")))
                continue; // without effect beside an azimuth; the sign only; fixed
            basalt::Dictionary changed(system);
            const double value = key == "factor"               ? 0.5
                                 : key == "org_lon"            ? 6
                                 : key.starts_with("parallel") ? 1
                                                               : 100;
            dic_set_value(changed, key,
                          key == "org_lat" ? system.number(key) - 0.5 : system.number(key) + value);
            CoordService service(changed);
            const CoordTriple after = service.toGrid(latitude, longitude);
            EXPECT_EQ(service.code, 0) << kind.name << ' ' << key << ": " << service.message();
            EXPECT_GT(std::hypot(after.first - before.first, after.second - before.second), 1e-3)
                << kind.name << ' ' << key;
        }
    }
}

/// A point on the central meridian moves off the origin by the arc on the longer ellipsoid.
TEST(CoordProjection, ProjectHeightStretchesTheGrid)
{
    basalt::Dictionary system(kBritish);
    const double before = CoordService(system).toGrid(53, -2).first + 100000;
    dic_set_value(system, "project_height", 637.7563396); // 1e-4 of the axis
    const double after = CoordService(system).toGrid(53, -2).first + 100000;
    EXPECT_NEAR(after / before, 1.0001, 1e-10);
}
