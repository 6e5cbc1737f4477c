#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

/// Measurements beside their limits, in the same run: ratios of medians, since machines are noisy.
namespace bench {

template <class Job>
double secondsOf(Job job)
{
    const auto start = std::chrono::steady_clock::now();
    job();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// The median of five values of `measure`, after one that does not count.
template <class Measure>
double medianOf(Measure measure)
{
    measure();
    std::vector<double> values;
    for (int i = 0; i < 5; ++i)
        values.push_back(measure());
    std::nth_element(values.begin(), values.begin() + 2, values.end());
    return values[2];
}

inline int& misses()
{
    static int count = 0;
    return count;
}

/// Prints what was measured beside its limit, and gives both to the benchmark's own report.
inline void report(benchmark::State& state, const char* what, double value, double limit,
                   const char* unit = "")
{
    const bool passes = value <= limit;
    misses() += passes ? 0 : 1;
    state.counters["value"] = value;
    state.counters["limit"] = limit;
    std::printf("%-4s %-55s %8.3f %s (limit %.3f)\n", passes ? "PASS" : "MISS", what, value, unit,
                limit);
}

/// The end of main: runs what is registered.
/// \returns 0 when every limit was kept
inline int run(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return misses() == 0 ? 0 : 1;
}

} // namespace bench
