#pragma once

#include "model/SurveyPoint.h"
#include "samples/Random.h"

#include <span>
#include <string>

namespace demo {

/// A kind of result that comes from measuring a staked point once more.
struct Remeasuring
{
    const char* kind;
    std::size_t points;
    int times; ///< how often each of them is measured again
    /// Names the new result, and changes it where it has to be wrong; tells what it is.
    std::string (*change)(SurveyPoint& again, const SurveyPoint& first, Random& random);
};

[[nodiscard]] std::span<const Remeasuring> remeasurings();

} // namespace demo
