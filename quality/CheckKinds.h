#pragma once

#include "model/PointLines.h"

#include <QAbstractTableModel>
#include <QString>

#include <memory>
#include <string>
#include <string_view>

class IDictionary;
class ProgressReporter;

/// What the checks read, and write their verdicts on.
struct CheckedData
{
    DesignPoints& design;
    SurveyPoints& survey;
    const IDictionary& parameters; ///< "qc_param.ini"
    double planeUnitM = 1;         ///< metres a unit of the plane coordinates
};

/// What a check has found.
struct CheckResult
{
    std::unique_ptr<QAbstractTableModel> rows; ///< see ResultModel.h
    QString finding;                           ///< a translated sentence with the numbers
};

/// A check of the open project with a list of what it finds.
struct CheckKind
{
    const char* name; ///< on the command line
    /// Writes the verdicts on the points; null for a check that only lists.
    void (*run)(const CheckedData& data, ProgressReporter& progress);
    /// What the last run found.
    CheckResult (*result)(const CheckedData& data);
    const char* unitNote; ///< for `unitNoteOf`, in English
};

extern const CheckKind kQualityCheck;
extern const CheckKind kEmptyPointCheck;
extern const CheckKind kResurveyCheck;
extern const CheckKind kRepeatPointCheck;
/// No check: the unit note of the list in which repeats are resolved.
extern const CheckKind kRepeatChoiceList;

/// A translated sentence about the units in the result of a check; empty while the open project's
/// coordinates are metres.
[[nodiscard]] QString unitNoteOf(const CheckKind& kind);

/// Null when no check has this name.
[[nodiscard]] const CheckKind* findCheckKind(std::string_view name);

/// The names of all checks, in the order of the table.
[[nodiscard]] std::string checkNames(std::string_view separator);
