#pragma once

#include "model/PointLines.h"
#include "model/PointName.h"
#include "model/PointNames.h"

#include <span>
#include <string_view>
#include <vector>

/// A point that was measured more than once: under its own number, as a resurvey, as a check
/// measurement. Valid while the results keep their `revision`.
struct RepeatedPoint
{
    PointName name;
    const SurveyPoint* own = nullptr;         ///< the result of its own number; may be missing
    std::vector<const SurveyPoint*> measured; ///< all of them, in order of time
    /// How far they differ, metres: the diagonal of the rectangle around their positions, and the
    /// range of their heights. A measurement without a position is left out.
    double spreadM = 0;
    double heightSpreadM = 0;
};

/// All points of at least two measurements, in the order of the results.
///
/// A resurvey has the resurvey code in its number, a check measurement a "C" before it; the rest is
/// the number of its point, on the same line. A result that a design point has the exact number of
/// is that point's own. Measurements without a time stand as their numbers do, the point's own
/// first.
/// \param planeUnitM metres a unit of the plane coordinates
[[nodiscard]] std::vector<RepeatedPoint> repeatedPoints(const DesignPoints& design,
                                                        const SurveyPoints& survey,
                                                        std::string_view resurveyCode,
                                                        double planeUnitM);

/// How one result is made of several.
struct RepeatChoice
{
    enum class Rule
    {
        First,
        Last,
        MostAccurate, ///< a fixed solution before others, then the smallest HRMS and VRMS
        WeightedMean  ///< weights are 1 / HRMS² on the plane, 1 / VRMS² in height
    };

    Rule rule = Rule::First;
    /// Of a mean: how far the measurements may differ, also in height. Negative while it is
    /// unknown.
    double toleranceM = 0;

    /// Whether it says what becomes of every point: a mean needs a tolerance.
    [[nodiscard]] bool isWhole() const { return rule != Rule::WeightedMean || toleranceM >= 0; }

    /// Whether the point stays as it is, since its measurements are too far apart for a mean.
    [[nodiscard]] bool leaves(const RepeatedPoint& point) const;

    /// The measurement that counts; of a mean, the most accurate one, which gives all other values.
    /// One without a position counts only when all are so.
    [[nodiscard]] const SurveyPoint& bestOf(const RepeatedPoint& point) const;

    /// The one result of a point, under its own number and without the verdicts of the resurvey
    /// check. Kind, and where the measurement does not tell them design position with deviations,
    /// obstacle, remarks and photo, are those of the point's own result.
    ///
    /// Where an accuracy is missing, all weights are equal.
    [[nodiscard]] SurveyPoint resultOf(const RepeatedPoint& point) const;
};

/// What becomes of points that were measured more than once.
struct ResolvedRepeats
{
    PointNames names;        ///< of the points and of all their measurements
    SurveyPoints results;    ///< the one result of each point
    std::size_t removed = 0; ///< how many results there are less
    std::size_t left = 0;    ///< points that stay as they are
};

[[nodiscard]] ResolvedRepeats resolveRepeats(std::span<const RepeatedPoint* const> points,
                                             const RepeatChoice& choice);
