#pragma once

#include "model/SurveyPoint.h"
#include "samples/Random.h"

#include <span>
#include <string>

namespace demo {

/// A kind of fault that is planted by spoiling good results.
struct Spoiling
{
    const char* kind;
    std::size_t count; ///< of results to spoil
    /// Changes a result that `ResultCompleter` has still to see; tells what it did.
    std::string (*spoil)(SurveyPoint& point, Random& random);
};

[[nodiscard]] std::span<const Spoiling> spoilings();

} // namespace demo
