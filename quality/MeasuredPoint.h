#pragma once

#include "model/PointLines.h"

#include <string_view>

/// The design point that a result measures: that of the same number; a check point measures that of
/// the eight characters behind its "C", and a resurvey that of its number without the code. Null
/// when the line has none.
/// \param number  with or without the counter of a check point
/// \param resurveyCode  as in "qc_param.ini"
[[nodiscard]] const DesignPoint* measuredPoint(const DesignPoints& design, std::string_view line,
                                               std::string_view number,
                                               std::string_view resurveyCode);
