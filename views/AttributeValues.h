#pragma once

#include "basalt_utilities/Dictionary.h"

struct BaseStation;
struct DesignPoint;
struct SurveyPoint;

// The values of the attribute panel, as texts under the keys of its control files. Lengths have
// three decimals, accuracies and dilutions six significant digits; angles and times are those of
// the user's settings.

/// Whether the heights follow a corrected antenna height: a row of the survey grid, and no
/// attribute.
inline constexpr const char* kMovesHeights = "moves_heights";

/// Whether two values have the same text there.
[[nodiscard]] bool isSameLength(double first, double second);
[[nodiscard]] bool isSameAzimuth(double first, double second);

[[nodiscard]] basalt::Dictionary attributesOf(const SurveyPoint& point);
[[nodiscard]] basalt::Dictionary attributesOf(const DesignPoint& point);
/// \param index of the station, from 0; it is called by the next number
[[nodiscard]] basalt::Dictionary attributesOf(const BaseStation& station, int index);
