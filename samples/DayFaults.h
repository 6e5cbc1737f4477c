#pragma once

#include "model/SurveyPoint.h"
#include "samples/PlantedFault.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace demo {

/// The day of a result on the survey's clocks, counted from 1970/01/01.
[[nodiscard]] std::int64_t dayOf(const SurveyPoint& result);

/// "2025/05/12"
[[nodiscard]] std::string dayText(std::int64_t day);

/// Makes all results of a day wrong by the same: those of a base station whose height was entered
/// wrongly, and on another day those of a crew that entered a wrong height of its pole. Both are
/// too little for a limit. \param results  all of the survey, before `ResultCompleter` computes
/// their other values
[[nodiscard]] std::vector<PlantedFault> plantDayFaults(std::span<SurveyPoint* const> results);

} // namespace demo
