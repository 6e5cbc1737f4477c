#pragma once

#include "basalt_utilities/LocalTimes.h"
#include "quality/problems/Problem.h"

#include <span>
#include <string_view>

/// A column of the list of problems, in the window and in files.
struct ProblemColumn
{
    const char* caption = nullptr; ///< in English, context "ProblemColumns"
    /// As it is shown.
    QString (*text)(const Problem& problem, basalt::LocalTimes& zone) = nullptr;
    /// The same for scripts: names in place of translations, numbers without units.
    QString (*forScripts)(const Problem& problem, basalt::LocalTimes& zone) = nullptr;
    /// As it is shown, in a form that a spreadsheet reckons with; null where that is `text`.
    QString (*forSpreadsheets)(const Problem& problem, basalt::LocalTimes& zone) = nullptr;

    [[nodiscard]] QString captionText() const; ///< translated
};

/// Their places in `problemColumns`.
enum class ProblemField : std::uint8_t
{
    Severity,
    Kind,
    Line,
    Point,
    What,
    Value,
    Limit,
    Rover,
    Surveyor,
    Day
};

[[nodiscard]] std::span<const ProblemColumn> problemColumns();

/// The number as tables and files have it: of a check point without its counter.
[[nodiscard]] std::string_view shownPointNumber(const Problem& problem);

/// A value or a limit with its unit; empty for one that is no number.
[[nodiscard]] QString problemValueText(const ProblemKind& kind, double value);

[[nodiscard]] QString severityText(Severity severity); ///< translated
