#pragma once

#include "model/PointLines.h"

#include <vector>

/// All that the checks write on points and a save keeps; to see whether a run has changed it.
struct Verdicts
{
    std::vector<int> codes;
    std::vector<double> differences;

    friend bool operator==(const Verdicts&, const Verdicts&) = default;
};

[[nodiscard]] Verdicts verdictsOf(const DesignPoints& design, const SurveyPoints& survey);
