#pragma once

#include "design/DesignGrid.h"

#include <QString>

#include <optional>

struct DesignParameter;

/// What the dialog of the design says about grids, translated.
namespace DesignTexts {

/// What a parameter is for.
[[nodiscard]] QString hint(const DesignParameter& parameter);

/// "101 lines: 0000 to 1000", and the same for the points of each line. The grid must have points.
[[nodiscard]] QString lines(const DesignGrid& grid);
[[nodiscard]] QString points(const DesignGrid& grid);
/// The direction of the points in degrees, minutes and seconds, and the side of the next line.
[[nodiscard]] QString direction(const DesignGrid& grid);

/// "101 receiver lines x 101 points = 10,201; area 2.25 km²". The grid must have points.
[[nodiscard]] QString size(const DesignGrid& grid);

/// The size of the bins of both grids, along and across the receiver lines: half the spacing of
/// stations there.
/// \returns nothing when source lines run neither along receiver lines nor square to them
[[nodiscard]] std::optional<DesignPlace> binSize(const DesignGrid& receivers,
                                                 const DesignGrid& sources);
/// The same in words; empty for nothing.
[[nodiscard]] QString bins(const DesignGrid& receivers, const DesignGrid& sources);

/// What the next generation replaces in a design of so many lines and points.
[[nodiscard]] QString loss(std::size_t lines, std::size_t points);
/// What is strange about both grids together: they lie farther from each other than they are
/// large, or have points with the same number. Empty for nothing.
[[nodiscard]] QString comparison(const DesignGrid& receivers, const DesignGrid& sources);

} // namespace DesignTexts
