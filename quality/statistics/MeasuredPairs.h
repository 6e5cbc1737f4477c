#pragma once

#include "model/PointLines.h"
#include "quality/statistics/Moments.h"

#include <functional>
#include <string_view>
#include <vector>

namespace statistics {

/// A point measured twice. Differences are metres, the later minus the first measurement, on the
/// plane and in height. Valid while the container keeps its `revision`.
struct MeasuredPair
{
    const SurveyPoint* first = nullptr;
    const SurveyPoint* again = nullptr;
    double eastM = 0;
    double northM = 0;
    double heightM = 0;
    double distanceM = 0; ///< on the plane
};

struct MeasuredPairs
{
    std::vector<MeasuredPair> pairs; ///< lines ascending, in a line by the number measured again
    std::vector<const SurveyPoint*> alone; ///< measured again, but the first one is not in its line
};

/// Which results are wanted as those measured again; all when there is no function.
using IsWanted = std::function<bool(const SurveyPoint& point)>;

/// The resurveys: the number of a result contains the resurvey code (capitals and small letters
/// differ), and the same line has the number without any occurrence of the code. An empty code
/// pairs nothing.
/// \param planeUnitM metres a unit of the plane coordinates
[[nodiscard]] MeasuredPairs resurveyPairs(const SurveyPoints& survey, std::string_view resurveyCode,
                                          double planeUnitM, const IsWanted& isWanted = {});

/// The check measurements: a number that begins with "C" repeats the point whose number are the
/// eight characters behind it, in the same line. Those of one point come in the order in which they
/// were counted.
[[nodiscard]] MeasuredPairs repeatPairs(const SurveyPoints& survey, double planeUnitM,
                                        const IsWanted& isWanted = {});

/// The figures of the differences; places are those in `MeasuredPairs::pairs`. `precisionOfOne`
/// tells RMS / sqrt(2) of each.
struct PairFigures
{
    Moments east;
    Moments north;
    Moments height;
    Moments distance;
    double eastP95 = kUnknown; ///< of the magnitudes
    double northP95 = kUnknown;
    double heightP95 = kUnknown;
    double distanceP95 = kUnknown;
};

[[nodiscard]] PairFigures figuresOf(const std::vector<MeasuredPair>& pairs);

} // namespace statistics
