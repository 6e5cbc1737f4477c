#pragma once

#include "model/PointLines.h"

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

// The stored columns that the checks write, see SurveyRecord.h and DesignRecord.h.
inline constexpr std::array<std::string_view, 5> kSurveyVerdicts{
    "quality_standard", "is_resurvey", "resurvey_x_diff", "resurvey_y_diff", "resurvey_h_diff"};
inline constexpr std::array<std::string_view, 1> kDesignVerdicts{"status"};

/// All that the checks write on points and a save keeps; to see whether a run has changed it.
struct Verdicts
{
    std::vector<int> codes;
    std::vector<std::uint64_t> differences; ///< their bits, since one that is no number equals none

    friend bool operator==(const Verdicts&, const Verdicts&) = default;
};

[[nodiscard]] Verdicts verdictsOf(const DesignPoints& design, const SurveyPoints& survey);
