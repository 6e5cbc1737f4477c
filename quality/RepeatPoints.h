#pragma once

#include "model/PointLines.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

/// A repeated measurement, or the result that it repeats: a row of the list of repeats.
struct RepeatRow
{
    std::string pointNumber;
    std::string lineNumber;
    bool isReceiver = false;
    double north = 0; ///< in the unit of the project's coordinate system, as east
    double east = 0;
    double elevation = 0; ///< metres
    /// North, east, elevation of a repeat minus those of the result that it repeats.
    std::optional<std::array<double, 3>> difference{};
};

struct RepeatPoints
{
    std::vector<RepeatRow> rows;
    std::size_t repeats = 0; ///< results whose number begins with "C"
    std::size_t alone = 0;   ///< those of them whose line lacks what they repeat
};

/// All repeats, in the order of the results, each result that is repeated before the first of them.
/// A repeat's number is "C" and the eight characters of the number that it repeats, on the same
/// line. A number stands for one row wherever it is listed: of the same number on two lines a
/// repeated result is listed once, from the first line, and a repeat twice, each time as on the
/// last.
[[nodiscard]] RepeatPoints findRepeatPoints(const SurveyPoints& points);
