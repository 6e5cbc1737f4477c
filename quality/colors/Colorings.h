#pragma once

#include "basalt_utilities/LocalTimes.h"
#include "model/PointLines.h"
#include "quality/colors/ResultColors.h"
#include "quality/QualityLimits.h"

#include <span>
#include <string_view>

/// What the colours of results are made from.
struct ColoringInput
{
    const SurveyPoints& survey;
    QualityLimits limits;    ///< with the unit of the plane
    basalt::LocalTimes zone; ///< the shown time zone
};

/// One way to colour results.
struct Coloring
{
    const char* name;  ///< in the settings and on the command line
    const char* title; ///< in English
    /// \returns colours that may be used while the survey changes; a value that came later is
    ///          "others"
    ResultColors (*make)(const ColoringInput& input, const QString& title);
};

/// All ways:
/// - "verdict": judged by the limits as they are now, whenever the last check was; the fault of a
///   resurvey is what the resurvey check wrote;
/// - "solution": the solution type;
/// - "accuracy": the horizontal accuracy, in steps below its limit, and beyond it;
/// - "surveyor", "rover" (its serial number): the seven with the most results, by name;
/// - "day": the last seven days.
[[nodiscard]] std::span<const Coloring> colorings();

/// Null when there is none of this name.
[[nodiscard]] const Coloring* findColoring(std::string_view name);

[[nodiscard]] ResultColors resultColors(const Coloring& coloring, const ColoringInput& input);
