#pragma once

#include "model/PointLines.h"

#include <cstdint>
#include <vector>

/// All that the checks write on points and a save keeps; to see whether a run has changed it.
struct Verdicts
{
    std::vector<int> codes;
    std::vector<std::uint64_t> differences; ///< their bits, since one that is no number equals none

    friend bool operator==(const Verdicts&, const Verdicts&) = default;
};

[[nodiscard]] Verdicts verdictsOf(const DesignPoints& design, const SurveyPoints& survey);
