#pragma once

#include "model/PointName.h"
#include "quality/problems/FinderInput.h"
#include "quality/problems/ResultName.h"

#include <optional>
#include <vector>

/// A result that stands at another design point than the one that it names.
struct WrongName
{
    const SurveyPoint* result = nullptr;
    NamedPoint named;                    ///< what it names; its design point may be missing
    const DesignPoint* likely = nullptr; ///< where it stands
    double ownM = 0;                     ///< to the design point that it names; NaN without one
    double likelyM = 0;
    bool isTaken = false;   ///< another result has the right name,
    bool isAnother = false; ///< and stands here, too: this is one more result of the point
    PointName proposed{}; ///< what its name probably is; without a point when there is no such name
    /// The place in the list of the result whose name was exchanged with this one's.
    std::optional<std::size_t> exchangedWith{};

    /// Its name means nothing, and no result has the name of the point where it stands.
    [[nodiscard]] bool isForeign() const
    {
        return named.design == nullptr && named.form == NameForm::First && !isTaken;
    }
};

struct NameLimits
{
    double nearerM = 0; ///< its own design point is farther away than the other by more than this
    double nearM = 0;   ///< it is at most so far from the other one: a stake that was moved aside
                        ///< from an obstacle is near none

    [[nodiscard]] static NameLimits from(const FinderInput& input);
};

/// The results with wrong names, in their order. Only design points of the same type are looked at,
/// unless the result's mark disagrees with its design point, since receivers and sources may be in
/// the same place. A result whose own design point is missing has a wrong name when no result has
/// the right one, or when it claims to be a resurvey or check point of a result that is not there.
/// None when `nearerM` is 0.
[[nodiscard]] std::vector<WrongName> findWrongNames(const FinderInput& input,
                                                    const NameLimits& limits);
