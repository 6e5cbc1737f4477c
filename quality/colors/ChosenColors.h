#pragma once

#include "model/PointLines.h"
#include "quality/colors/ResultColors.h"

struct Coloring;
struct QualityLimits;

/// The way to colour results that the user has chosen; null for none.
[[nodiscard]] const Coloring* chosenColoring();

/// The colours of a survey's results, in days of the shown time zone.
/// \param coloring null for no colours
[[nodiscard]] ResultColors colorsOf(const Coloring* coloring, const SurveyPoints& survey,
                                    const QualityLimits& limits);
