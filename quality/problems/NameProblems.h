#pragma once

#include "model/PointName.h"
#include "quality/problems/ProblemFinders.h"

#include <vector>

/// Results that stand at another design point than their names say: "wrong_name", "swapped_names"
/// (a row for both), and "foreign_result" (a row of the empty design point where one stands). See
/// WrongNames.h.
extern const ProblemFinder kNameFinder;

/// A new name of a result.
struct Renaming
{
    PointName from;
    PointName to; ///< of a check point without its counter
};

/// The right names that a problem of this finder proposes; none when it has no proposal, or is of
/// another finder.
[[nodiscard]] std::vector<Renaming> proposalOf(const Problem& problem);

/// Whether the point that the wrong name says has no result when the proposal is carried out.
[[nodiscard]] bool leavesPoint(const Problem& problem);
