#pragma once

#include "quality/statistics/SurveySample.h"

#include <array>
#include <vector>

struct QualityTest;

namespace statistics {

struct TestCount
{
    std::size_t tested = 0;
    std::size_t failed = 0;
    std::size_t notJudged = 0; ///< the value is no number, or there is no design position
};

/// What one test of the quality check found in all results, resurveys and repeats with them.
struct TestFigures
{
    const QualityTest* test = nullptr;
    std::array<TestCount, 2> ofKind; ///< of sources and of receivers

    [[nodiscard]] TestCount all() const;
};

/// All tests, in the order of `qualityTests`. A result fails a test when `Observation::code` says
/// so: so an antenna that is too high was not found too low.
[[nodiscard]] std::vector<TestFigures> testFiguresOf(const SurveySample& sample);

} // namespace statistics
