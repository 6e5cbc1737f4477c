#pragma once

#include "views/tables/PointTableModel.h"

#include <memory>

/// The survey results as a table of 43 columns. A cell whose value failed in the last quality check
/// has the fault's colour and a tool tip that tells value and limit.
[[nodiscard]] std::unique_ptr<PointTableModel> makeSurveyTableModel();
