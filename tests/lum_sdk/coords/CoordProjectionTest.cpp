#include "lum_sdk/coords/CoordProjections.h"
#include "tests/lum_sdk/coords/CoordFixture.h"

#include <vector>

namespace {

struct Ellipsoid
{
    double axis, inverseFlattening;
};
constexpr Ellipsoid kWgs84{6378137, 298.257223563};
constexpr Ellipsoid kAiry{6377563.396, 299.3249646};
constexpr Ellipsoid kClarke{6378206.4, 294.9786982};

struct Place
{
    double latitude, longitude;
};

/// A published example.
struct ProjectionCase
{
    const char* name;
    int type;
    Ellipsoid ellipsoid;
    std::vector<double> values; ///< of the keys of the projection, in their order
    Place place;
    double north, east;
    double tolerance; ///< the last printed digit

    [[nodiscard]] basalt::Dictionary system() const
    {
        basalt::Dictionary system;
        dic_set_value(system, "project_type", type);
        dic_set_value(system, "ellipsoid_a", ellipsoid.axis);
        dic_set_value(system, "ellipsoid_f", ellipsoid.inverseFlattening);
        std::string_view keys = lum::projectionKind(system)->keys;
        for (const double value : values)
            dic_set_value(system, next_word3(keys, ','), value);
        return system;
    }
};

// The other projections need an origin alone; `EpsgRegisterTest` has them all.
// GN: IOGP publication 373-7-2, "Coordinate Conversions and Transformations including Formulas".
// Snyder: "Map Projections - A Working Manual", U.S. Geological Survey Professional Paper 1395.
// clang-format off
const ProjectionCase kCases[] = {
    // GN; org_lon, org_lat, factor, false_east, false_north
    {"TransverseMercator", 1, kAiry, {-2, 49, 0.9996012717, 400000, -100000},
     {50.5, 0.5}, 69740.50, 577274.99, 0.01},
    // Snyder; org_lon
    {"Utm", 2, kClarke, {-75}, {40.5, -73.5}, 4484124.4, 627106.5, 0.1},
    // GN; org_lon, parallel, factor, false_east, false_north
    {"MercatorWithParallel", 4, {6378245, 298.3}, {51, 42},
     {53, 53}, 5171848.07, 165704.29, 0.01},
    // GN; org_lon, org_lat, azimuth, angle of the grid, two points, factor, false_east, false_north
    {"ObliqueMercator", 5, {6377298.556, 300.8017},
     {115, 4, dms(53, 18, 56.9537), dms(53, 7, 48.3685), 0, 0, 0, 0, 0.99984, 590476.87, 442857.65},
     {dms(5, 23, 14.1129), dms(115, 48, 19.8196)}, 596562.78, 679245.73, 0.01},
    // the test suite of PROJ, omerc
    {"ObliqueThroughTwoPoints", 5, {6400000, 0}, {0, 45, 0, 0, 45, 0, 45.00001, 1e-5},
     {1, 2}, -5093592.31, -3569.83, 0.01},
    // GN; org_lon, org_lat, parallel, factor, radius, false_east, false_north
    {"PolarWithFactor", 7, kWgs84, {0, 90, 0, 0.994, 0, 2000000, 2000000},
     {73, 44}, 632668.43, 3320416.75, 0.01},
    {"PolarWithParallel", 7, kWgs84, {70, -90, -71, 0, 0, 6000000, 6000000},
     {-75, 120}, 7053389.56, 7255380.79, 0.01},
};
// clang-format on

} // namespace

TEST(CoordProjection, AgreesWithThePublishedExamplesBothWays)
{
    for (const ProjectionCase& example : kCases) {
        SCOPED_TRACE(example.name);
        CoordService service(example.system());
        ASSERT_EQ(service.initCode, 0) << service.service.message(service.initCode);
        const CoordTriple grid =
            service.toGrid(example.place.latitude, example.place.longitude, 12.5);
        ASSERT_EQ(service.code, 0) << service.message();
        expectNear(grid, {example.north, example.east, 12.5}, example.tolerance);
        EXPECT_DOUBLE_EQ(grid.third, 12.5);

        const CoordTriple back = service.toGeodetic({example.north, example.east, 12.5});
        ASSERT_EQ(service.code, 0) << service.message();
        EXPECT_NEAR(back.first, example.place.latitude, example.tolerance * 1.1e-5);
        EXPECT_NEAR(back.second, example.place.longitude, example.tolerance * 5e-5);
    }
}

/// The stereographic plane of Romania: its published factor 0.99975 comes from its published
/// cutting radius of 201.718 km.
TEST(CoordProjection, CuttingRadiusStandsForTheFactor)
{
    const std::string system = "project_type=6,ellipsoid_a=6378245,ellipsoid_f=298.3,org_lat=46,"
                               "org_lon=25,false_east=500000,false_north=500000,";
    expectNear(CoordService(dictionaryOf(system, "factor=1,cutting_radius=201718")).toGrid(48, 29),
               CoordService(dictionaryOf(system, "factor=0.99975")).toGrid(48, 29), 0.01);
}

/// A point on the central meridian moves off the origin by the arc on the longer ellipsoid.
TEST(CoordProjection, ProjectHeightStretchesTheGrid)
{
    const double before = CoordService(gaussKruger()).toGrid(53, 117).first;
    const auto higher = gaussKruger("project_height=637.8137"); // 1e-4 of the axis
    EXPECT_NEAR(CoordService(higher).toGrid(53, 117).first / before, 1.0001, 1e-10);
}

TEST(CoordProjection, TheOnlyParallelOfALambertProjectionCountsTwice)
{
    const char* const system = "project_type=3,ellipsoid_a=6378137,ellipsoid_f=298.257222101,"
                               "org_lat=18,parallel_1_lat=30";
    expectNear(CoordService(dictionaryOf(system)).toGrid(32, 3),
               CoordService(dictionaryOf(system, "parallel_2_lat=30")).toGrid(32, 3), 0);
}
