#pragma once

#include "quality/statistics/SurveySample.h"

#include <string>
#include <vector>

/// How many points each rover measured on each day, in a table of limited size. Points are results
/// of all kinds.
struct RoverDays
{
    struct Row
    {
        std::int64_t day = 0;            ///< since 1970/01/01; without meaning for sums of days
        std::vector<std::size_t> points; ///< by column

        [[nodiscard]] std::size_t total() const;
    };

    /// What a rover did on its days; of several rovers the sum.
    struct Work
    {
        std::size_t failed = 0;
        double hours = 0;       ///< from the first to the last result of each day
        std::size_t points = 0; ///< of the days that have hours

        [[nodiscard]] double pointsAnHour() const; ///< not finite without hours
    };

    std::vector<std::string> rovers; ///< of the columns, those with most points first
    std::size_t otherRovers = 0;     ///< whose points are summed in one more column, the last
    std::size_t earlierDays = 0;     ///< whose points are summed in `earlier`
    Row earlier;
    std::vector<Row> days; ///< the last ones, ascending; days without points are none
    Row withoutTime;
    Row all;
    std::vector<Work> work; ///< by column, and behind them that of all

    [[nodiscard]] std::size_t columns() const { return rovers.size() + (otherRovers > 0 ? 1 : 0); }
};

/// \param mostColumns, mostDays at least 1
[[nodiscard]] RoverDays roverDaysOf(const statistics::SurveySample& sample, std::size_t mostColumns,
                                    std::size_t mostDays);
