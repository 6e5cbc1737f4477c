#pragma once

#include "model/PointLines.h"
#include "quality/problems/ProblemList.h"

#include <QDate>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>
#include <optional>

class IDictionary;
class ProgressReporter;

/// What the user wants in a report.
struct ReportChoice
{
    std::optional<std::int64_t> fromMs;  ///< the first moment, milliseconds since 1970 UTC
    std::optional<std::int64_t> untilMs; ///< the first moment behind the period
    QStringList surveyors;               ///< those whose results count; all when it is empty
    std::function<bool()> isCancelled;   ///< asked now and then; may be empty

    /// Chooses the days from one to another, both of them included, in the shown time zone.
    void setDays(const QDate& first, const QDate& last);
};

/// The first moment of a day in the shown time zone, milliseconds since 1970 UTC; none for a day
/// that is none, or one of a year without four digits.
[[nodiscard]] std::optional<std::int64_t> beginOfDay(const QDate& day);

/// What a report is made of.
struct ReportInput
{
    const DesignPoints& design;
    const SurveyPoints& survey;
    const IDictionary& qualityParameters; ///< "qc_param.ini"
    const IDictionary& coordParameters;   ///< of the project's coordinate system
    QString projectName;
    QString projectFile; ///< its path
    QString program;     ///< name and version
    const ReportChoice& choice;
    ProgressReporter& progress;
    std::function<ProblemList()> findProblems = {}; ///< of the project as it is; may be empty

    /// Whether the result is of the chosen period and surveyors. A result without a time is of no
    /// period.
    [[nodiscard]] bool includes(const SurveyPoint& point) const;
    [[nodiscard]] bool isCancelled() const
    {
        return choice.isCancelled != nullptr && choice.isCancelled();
    }
};
