#pragma once

#include "model/PointLines.h"
#include "protocol/Outcome.h"
#include "quality/problems/NameProblems.h"

#include <string_view>
#include <vector>

/// Results under their new names, for an edit.
struct RenamedPoints
{
    PointNames names;     ///< all old and new names
    SurveyPoints results; ///< the results under the new ones
};

/// Makes what new names make of results: all of them at once, so that two can exchange their names.
/// A result gets the design position, the type and the deviations of the point that it now names,
/// when the design has it. A check point gets a counter that is free.
///
/// Refused when a result does not exist, a name has a fault, or a result that keeps its name has
/// the new one: nothing is ever replaced.
/// \param renamed  filled when it is done
[[nodiscard]] Outcome renameResults(const DesignPoints& design, const SurveyPoints& survey,
                                    std::string_view resurveyCode,
                                    const std::vector<Renaming>& renamings, RenamedPoints& renamed);
