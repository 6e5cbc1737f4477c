#pragma once

#include "model/SurveyPoint.h"
#include "samples/Random.h"

#include <span>
#include <string>

namespace demo {

/// A way to measure staked points again.
struct Remeasuring
{
    const char* kind;
    std::size_t points;
    int times; ///< how often each point is measured again
    /// Numbers the new result, and spoils it where the kind is a fault.
    /// \returns what "faults.csv" says about it
    std::string (*change)(SurveyPoint& again, const SurveyPoint& first, Random& random);
};

[[nodiscard]] std::span<const Remeasuring> remeasurings();

/// A good resurvey, of which a crew makes as many as it has to.
[[nodiscard]] const Remeasuring& goodResurvey();

} // namespace demo
