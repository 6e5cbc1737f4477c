#pragma once

#include "model/DesignPoint.h"

#include <memory>
#include <vector>

class QAbstractTableModel;

/// Design points that are not surveyed as a table, see ResultModel.h.
[[nodiscard]] std::unique_ptr<QAbstractTableModel>
makeEmptyPointResultModel(std::vector<DesignPoint> points);
