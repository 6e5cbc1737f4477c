#pragma once

#include "model/PointLines.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

// A check point measures a point again: its number is "C" and the eight characters of that point.
// It may be measured many times, so in memory a counter stands behind the number ("C10012034_0"),
// and no measurement replaces another. Files and databases hold the nine characters alone.

/// The number as files and databases hold it: without the counter of a check point.
[[nodiscard]] std::string_view writtenPointNumber(std::string_view pointNumber);

/// Whether `pointNumber` names a check point; with or without its counter.
[[nodiscard]] bool isCheckPoint(std::string_view pointNumber);

/// The points of a line in the order in which files and databases hold them. It is the line's own
/// order, but the measurements of one check point stand in the order of their counters ("_2" before
/// "_10"): so they get the same counters when they are read again. Valid as long as the line's
/// iterators.
[[nodiscard]] std::vector<const SurveyPoint*> writtenOrder(const PointLine<SurveyPoint>& line);
[[nodiscard]] std::vector<const DesignPoint*> writtenOrder(const PointLine<DesignPoint>& line);

/// Gives the survey points of one file or table their places in a container. It remembers the
/// counters that check points have got, so that many measurements of one point cost no more than
/// others.
class SurveyPointFiler
{
public:
    /// \param standing points beside those of `points` whose counters are taken; or null
    explicit SurveyPointFiler(SurveyPoints& points, const SurveyPoints* standing = nullptr)
        : m_points(points), m_standing(standing)
    {
    }

    /// A point without a line goes to `kEmptyLine`; a check point without one to the line that its
    /// number names (characters 2 to 5). A check point gets the next free counter; any other point
    /// replaces the one with its number.
    SurveyPoint& file(SurveyPoint&& point);

private:
    [[nodiscard]] bool isTaken(const SurveyPoint& point) const;

    SurveyPoints& m_points; ///< nobody removes points from it meanwhile
    const SurveyPoints* m_standing;
    /// By line and number, the lowest counter that may be free.
    std::unordered_map<std::string, int> m_counters;
};
