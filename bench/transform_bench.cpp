#include "basalt_utilities/Dictionary.h"
#include "bench/Limits.h"
#include "lum_sdk/coords/CoordSystemCatalog.h"
#include "lum_sdk/coords/CoordWjl.h"
#include "lum_sdk/coords/ProjHandles.h"

#include <cmath>
#include <numbers>

// The time of a million points through the coordinate service, divided by that of PROJ alone.

namespace {

constexpr std::size_t kPoints = 1000000;

/// A spread of points about 40 degrees north and 117 degrees east.
std::vector<CoordTriple> spread()
{
    std::vector<CoordTriple> points;
    points.reserve(kPoints);
    for (std::size_t i = 0; i < kPoints; ++i)
        points.push_back({39.5 + 1e-3 * double(i / 1000), 116.5 + 1e-3 * double(i % 1000), 50});
    return points;
}

basalt::Dictionary gaussKruger(bool isShifted)
{
    basalt::Dictionary system;
    for (const auto& [key, value] :
         {std::pair("ellipsoid_a", 6378245.0), std::pair("ellipsoid_f", 298.3),
          std::pair("project_type", 1.0), std::pair("org_lon", 117.0), std::pair("factor", 1.0),
          std::pair("false_east", 500000.0), std::pair("_7type", isShifted ? 1.0 : 0.0),
          std::pair("_7dx", -15.8), std::pair("_7dy", 154.4), std::pair("_7dz", 82.3),
          std::pair("_7rz", 1.5), std::pair("correct_valid", 1.0), std::pair("correct_dx", 0.2)})
        dic_set_value(system, key, value);
    return system;
}

double bareProj(bool isShifted)
{
    const char* projection = "+proj=tmerc +lon_0=117 +x_0=500000 +a=6378245 +rf=298.3";
    const std::string shifted = std::string("+proj=pipeline +step +proj=cart +ellps=WGS84 +step "
                                            "+proj=helmert +convention=position_vector +x=-15.8 "
                                            "+y=154.4 +z=82.3 +rz=1.5 +step +inv +proj=cart "
                                            "+a=6378245 +rf=298.3 +step ") +
                                projection;
    const lum::ProjContext context = lum::makeProjContext();
    const lum::ProjObject object(
        proj_create(context.get(), isShifted ? shifted.c_str() : projection));
    std::vector<PJ_COORD> points;
    for (const CoordTriple& point : spread())
        points.push_back(proj_coord(point.second * std::numbers::pi / 180,
                                    point.first * std::numbers::pi / 180, point.third, HUGE_VAL));
    return bench::secondsOf([&] {
        constexpr std::size_t kStride = sizeof(PJ_COORD);
        proj_trans_generic(object.get(), PJ_FWD, &points[0].xyz.x, kStride, kPoints,
                           &points[0].xyz.y, kStride, kPoints, &points[0].xyz.z, kStride, kPoints,
                           nullptr, 0, 0);
    });
}

double batch(bool isShifted)
{
    const basalt::Dictionary system = gaussKruger(isShifted);
    CoordWjl service;
    service.initialise(system, system);
    const std::vector<CoordTriple> in = spread();
    std::vector<CoordTriple> out(in.size());
    std::vector<std::int32_t> codes(in.size());
    return bench::secondsOf(
        [&] { benchmark::DoNotOptimize(service.transformMany(2, 1, 2, 4, in, out, codes)); });
}

double oneByOne(bool isShifted)
{
    const basalt::Dictionary system = gaussKruger(isShifted);
    CoordWjl service;
    service.initialise(system, system);
    const std::vector<CoordTriple> in = spread();
    CoordTriple out;
    return bench::secondsOf([&] {
        for (const CoordTriple& point : in)
            service.transform(2, 1, 2, 4, point.first, point.second, point.third, &out.first,
                              &out.second, &out.third);
    });
}

/// \param measure  seconds for a million points, with or without a datum shift
void runAgainstProj(benchmark::State& state, const char* what, double (*measure)(bool),
                    bool isShifted, double limit)
{
    for (auto _ : state) { // NOLINT(clang-analyzer-deadcode.DeadStores)
        const double ratio =
            bench::medianOf([&] { return measure(isShifted) / bareProj(isShifted); });
        bench::report(state, what, ratio, limit, "times PROJ");
    }
}

void BM_BatchProjection(benchmark::State& state)
{
    runAgainstProj(state, "a million points, projection", batch, false, 1.3);
}

void BM_BatchDatumShift(benchmark::State& state)
{
    runAgainstProj(state, "a million points, shift and projection", batch, true, 1.3);
}

void BM_OneByOne(benchmark::State& state)
{
    runAgainstProj(state, "the same one by one", oneByOne, true, 1.6);
}

void BM_CatalogSearch(benchmark::State& state)
{
    const CoordSystemCatalog catalog;
    for (auto _ : state) { // NOLINT(clang-analyzer-deadcode.DeadStores)
        const double seconds = bench::medianOf([&] {
            return bench::secondsOf(
                [&] { benchmark::DoNotOptimize(catalog.search("beijing gk 117e china")); });
        });
        bench::report(state, "one search in the catalogue", seconds * 1000, 10, "ms");
    }
}

BENCHMARK(BM_BatchProjection)->Iterations(1);
BENCHMARK(BM_BatchDatumShift)->Iterations(1);
BENCHMARK(BM_OneByOne)->Iterations(1);
BENCHMARK(BM_CatalogSearch)->Iterations(1);

} // namespace

int main(int argc, char** argv)
{
    return bench::run(argc, argv);
}
