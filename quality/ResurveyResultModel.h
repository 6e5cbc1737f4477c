#pragma once

#include "quality/ResurveyResult.h"

#include <memory>

class QAbstractTableModel;

/// The column of the fault in words.
inline constexpr int kResurveyDescribeColumn = 2;

/// The faults of a resurvey check as a table, see ResultModel.h.
[[nodiscard]] std::unique_ptr<QAbstractTableModel>
makeResurveyResultModel(std::vector<ResurveyRow> rows);
