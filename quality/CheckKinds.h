#pragma once

#include "model/PointLines.h"

#include <memory>
#include <string>
#include <string_view>

class IDictionary;
class ProgressReporter;
class QAbstractTableModel;

/// What the checks read, and write their verdicts on.
struct CheckedData
{
    DesignPoints& design;
    SurveyPoints& survey;
    const IDictionary& parameters; ///< "qc_param.ini"
    double planeUnitM = 1;         ///< metres a unit of the plane coordinates
};

/// A check of the open project with a list of what it finds.
struct CheckKind
{
    const char* name; ///< on the command line
    void (*run)(const CheckedData& data, ProgressReporter& progress);
    /// What the last run found, a row each; see ResultModel.h.
    std::unique_ptr<QAbstractTableModel> (*result)(const CheckedData& data);
};

extern const CheckKind kQualityCheck;

/// Null when no check has this name.
[[nodiscard]] const CheckKind* findCheckKind(std::string_view name);

/// The names of all checks, in the order of the table.
[[nodiscard]] std::string checkNames(std::string_view separator);
