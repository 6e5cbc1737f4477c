#pragma once

#include "quality/RepeatPoints.h"

#include <memory>

class QAbstractTableModel;

/// Repeats and what they repeat as a table, see ResultModel.h.
[[nodiscard]] std::unique_ptr<QAbstractTableModel>
makeRepeatResultModel(std::vector<RepeatRow> rows);
