#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <string>
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

/// The median of `count` values of `measure`, after one that does not count.
template <class Measure>
double medianOf(Measure measure, int count = 5)
{
    measure();
    std::vector<double> values;
    for (int i = 0; i < count; ++i)
        values.push_back(measure());
    std::nth_element(values.begin(), values.begin() + count / 2, values.end());
    return values[static_cast<std::size_t>(count / 2)];
}

struct Verdict
{
    std::string line;
    bool passes;
};

inline std::vector<Verdict>& verdicts()
{
    static std::vector<Verdict> all;
    return all;
}

/// Notes what was measured beside its limit, for the end of the run and the benchmark's own report.
inline void report(benchmark::State& state, const char* what, double value, double limit,
                   const char* unit = "")
{
    const bool passes = value <= limit;
    state.counters["value"] = value;
    state.counters["limit"] = limit;
    std::array<char, 160> line{};
    std::snprintf(line.data(), line.size(), "%s %-55s %8.3f %s (limit %.3f)",
                  passes ? "PASS" : "MISS", what, value, unit, limit);
    verdicts().push_back({line.data(), passes});
}

/// The end of main: runs what is registered, and prints the verdicts.
/// \returns 0 when every limit was kept
inline int run(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    int status = 0;
    for (const Verdict& verdict : verdicts()) {
        std::puts(verdict.line.c_str());
        status |= verdict.passes ? 0 : 1;
    }
    return status;
}

} // namespace bench
