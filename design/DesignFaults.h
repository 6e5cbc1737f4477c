#pragma once

#include "design/DesignGrid.h"

#include <optional>
#include <vector>

class IDictionary;

/// The most points that are generated at once.
inline constexpr double kMostDesignPoints = 20'000'000;

/// What is wrong with a parameter of a grid.
struct DesignFault
{
    GridKind kind;
    DesignField field;
    QString text;            ///< a translated sentence that names the parameter
    bool isZeroStep = false; ///< a step of 0
};

/// What a text for a parameter lacks: it is no number of its kind, beyond its limits, or a step of
/// 0. An angle is read as dd.mmss.
[[nodiscard]] std::optional<DesignFault> faultOf(const DesignParameter& parameter,
                                                 const QString& text);

/// What keeps a grid from being generated. No text of its parameters must have a fault.
[[nodiscard]] std::optional<DesignFault> faultOf(const DesignGrid& grid);

/// The same for what stands in design parameters, text after text and as a whole.
[[nodiscard]] std::vector<DesignFault> faultsOf(const IDictionary& parameters, GridKind kind);

/// Why a grid without fault has no points; nothing for one that has.
[[nodiscard]] std::optional<DesignFault> emptinessOf(const DesignGrid& grid);

/// How many points both grids have under the same numbers, so that one replaces the other.
[[nodiscard]] std::int64_t sharedPoints(const DesignGrid& one, const DesignGrid& other);
