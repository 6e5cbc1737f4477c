#pragma once

#include "views/tables/PointTableModel.h"

#include <memory>

/// The survey results as a table of 43 columns. A cell whose value failed in the last quality check
/// has the fault's colour and a tool tip that tells value and limit. While the results have
/// colours, the point's number has a circle in its own, and a tool tip that tells what it means.
[[nodiscard]] std::unique_ptr<PointTableModel> makeSurveyTableModel();
