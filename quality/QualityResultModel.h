#pragma once

#include "quality/QualityDescription.h"

#include <memory>
#include <vector>

class QAbstractTableModel;

/// The column of the fault in words.
inline constexpr int kQualityDescribeColumn = 2;

/// The faults of survey results as a table, see ResultModel.h.
[[nodiscard]] std::unique_ptr<QAbstractTableModel>
makeQualityResultModel(std::vector<QualityRow> rows);
