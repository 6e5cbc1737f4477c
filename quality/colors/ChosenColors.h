#pragma once

#include "model/PointLines.h"
#include "quality/colors/ResultColors.h"

#include <string>

class IDictionary;
struct Coloring;
struct QualityLimits;

/// The way to colour results that the user has chosen; null for none.
[[nodiscard]] const Coloring* chosenColoring();

/// All that the colours depend on besides the points, as a text: the user's choice, and when there
/// is one, the shown time zone and the limits ("qc_param.ini").
[[nodiscard]] std::string coloringState(const IDictionary& qualityParameters);

/// The colours of a survey's results, in days of the shown time zone.
/// \param coloring null for no colours
[[nodiscard]] ResultColors colorsOf(const Coloring* coloring, const SurveyPoints& survey,
                                    const QualityLimits& limits);
