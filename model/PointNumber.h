#pragma once

#include "model/PointLines.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

// Points that begin with "C" are check points: "C" and the eight characters of the point that is
// measured again. In memory each has a counter behind it ("C10012034_0"), so that the line can hold
// all measurements; files and databases carry the nine characters alone. So of check points no
// later row takes the place of an earlier one.

/// The number as it is written: a check point's first nine characters, any other whole.
[[nodiscard]] std::string_view writtenPointNumber(std::string_view pointNumber);

/// Whether `pointNumber` names a check point, which gets a counter when it is filed.
[[nodiscard]] bool isCheckPoint(std::string_view pointNumber);

/// The points of a line in the order in which they are written: the line's own, but the
/// measurements of one check point as they were counted ("_2" before "_10"), so that they get the
/// same counters when they are read again. Valid as long as the line's iterators.
[[nodiscard]] std::vector<const SurveyPoint*> writtenOrder(const PointLine<SurveyPoint>& line);
[[nodiscard]] std::vector<const DesignPoint*> writtenOrder(const PointLine<DesignPoint>& line);

/// Files the points of one file: remembers the counters that check points have got, so that many of
/// one number cost no more than others.
class SurveyPointFiler
{
public:
    explicit SurveyPointFiler(SurveyPoints& points) : m_points(points) {}

    /// A point without a line goes to `kEmptyLine`, or to the line that the check point's own
    /// number names (characters 2 to 5). A check point gets the next free counter; any other point
    /// replaces the one with its number.
    SurveyPoint& file(SurveyPoint&& point);

private:
    SurveyPoints& m_points; // loses no point meanwhile
    std::unordered_map<std::string, int>
        m_counters; ///< the first that may be free, by line and number
};
