#pragma once

#include "quality/problems/LineShape.h"
#include "quality/problems/Problem.h"

/// The problems of lines. The other point of each is a neighbour, `second` the median spacing of
/// the line or the distance to the neighbour, and `count` says how many more points of the line
/// have the same, or how many points it is about.
namespace line_kinds {

extern const ProblemKind kSpacing;     ///< "line_spacing"
extern const ProblemKind kGap;         ///< "number_gap"
extern const ProblemKind kAzimuth;     ///< "azimuth_spike"
extern const ProblemKind kReversed;    ///< "reversed_order"
extern const ProblemKind kCoincident;  ///< "coincident"
extern const ProblemKind kInterleaved; ///< "interleaved"
extern const ProblemKind kHeight;      ///< "height_jump"

/// Written in `Problem::detail`.
inline constexpr const char* kGiven = "given";       ///< of `kAzimuth`: it is the azimuth's value
inline constexpr const char* kAdjacent = "adjacent"; ///< of `kGap`: nothing lies between

/// Null for `Hole`, which is no problem.
[[nodiscard]] const ProblemKind* kindOf(LineFinding::Kind kind);

} // namespace line_kinds
