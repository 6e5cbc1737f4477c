#include "basalt_utilities/Dictionary.h"
#include "bench/Limits.h"
#include "design/DesignGenerator.h"
#include "lum_sdk/events/ProgressReporter.h"

#include <vector>

// A design of 1,000,000 points, against filling the containers with the same points.

namespace {

constexpr double kLimit = 2;
constexpr int kRuns = 9;

basalt::Dictionary parametersOfAMillion()
{
    basalt::Dictionary parameters;
    parameters.set("r_line_end_num", "9990");
    parameters.set("r_pt_end_num", "9990");
    parameters.set("calc_r_start_north", "5000000");
    parameters.set("calc_r_start_east", "500000");
    parameters.set("calc_r_start_azi", "37.3015");
    return parameters;
}

void generatedDesign(benchmark::State& state)
{
    const basalt::Dictionary parameters = parametersOfAMillion();
    ProgressReporter nobody(nullptr);
    DesignPoints generated;
    const auto generate = [&] {
        DesignPoints empty;
        generated = std::move(empty); // its end does not count
        return bench::secondsOf(
            [&] { (void)generateDesign(parameters, DesignLines::Receiver, generated, nobody); });
    };
    generate();
    std::vector<DesignPoint> points;
    for (const auto& [number, line] : generated)
        points.insert(points.end(), line.begin(), line.end());
    const auto fill = [&] {
        DesignPoints filled;
        return bench::secondsOf([&] {
            for (const DesignPoint& point : points)
                filled.set(point);
        });
    };
    for (auto _ : state) // NOLINT(clang-analyzer-deadcode.DeadStores)
        bench::report(state, "a design of 1,000,000 points over filling the containers",
                      bench::medianOf([&] { return generate() / fill(); }, kRuns), kLimit);
    state.counters["points"] = static_cast<double>(points.size());
}

BENCHMARK(generatedDesign)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    return bench::run(argc, argv);
}
