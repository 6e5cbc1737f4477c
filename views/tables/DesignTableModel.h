#pragma once

#include "views/tables/PointTableModel.h"

#include <memory>

/// The points of the design as a table of nine columns.
[[nodiscard]] std::unique_ptr<PointTableModel> makeDesignTableModel();
