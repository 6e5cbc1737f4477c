#pragma once

#include "model/SurveyPoint.h"
#include "samples/Random.h"

#include <span>
#include <string>

namespace demo {

/// A way to spoil good results.
struct Spoiling
{
    const char* kind;
    std::size_t count; ///< how many results are spoiled
    /// Changes a result before `ResultCompleter` computes its other values.
    /// \returns what "faults.csv" says about it
    std::string (*spoil)(SurveyPoint& point, Random& random);
};

[[nodiscard]] std::span<const Spoiling> spoilings();

} // namespace demo
