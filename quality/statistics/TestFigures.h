#pragma once

#include "quality/QualityTests.h"
#include "quality/statistics/SurveySample.h"

#include <array>
#include <optional>
#include <vector>

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

/// The failed test that says most against a result.
struct WorstFault
{
    const QualityTest* test = nullptr;
    JudgedValue judged; ///< with its sign; lengths are metres

    /// Value / limit, above 1 or, of a value under its limit, below 1, maybe negative; `kUnknown`
    /// of a limit that is 0.
    [[nodiscard]] double ratio() const;
    /// How many times its limit the value is over it, or under it; infinite for a limit, or a value
    /// under it, that is not above 0.
    [[nodiscard]] double severity() const;
};

/// The fault farthest beyond its limit: times the limit, or of a value under its limit, the limit's
/// times of the value. Of equal ones the first of `qualityTests`.
/// \returns nothing when the result passed
[[nodiscard]] std::optional<WorstFault> worstFaultOf(const Observation& result,
                                                     const QualityLimits& limits);

} // namespace statistics
