#pragma once

#include "quality/statistics/Average.h"
#include "quality/statistics/SurveySample.h"

#include <map>
#include <string>
#include <vector>

namespace statistics {

/// What a surveyor did with a rover and a base on a day. Its numbers are those of all results.
struct RoverSession
{
    std::int64_t day = 0; ///< since 1970/01/01; `KeyValue::kNoNumber` of results without a time
    std::string rover;    ///< the serial number
    std::string surveyor;
    std::string base;

    std::int64_t firstMs = 0; ///< since 1970 UTC; 0 on no day
    std::int64_t lastMs = 0;
    double longestGapMinutes = kUnknown; ///< between two results; known of two and more

    std::size_t receivers = 0;
    std::size_t sources = 0;
    std::size_t resurveys = 0; ///< of the points
    std::size_t repeats = 0;   ///< likewise
    std::size_t failed = 0;
    std::size_t notJudged = 0;

    Average pdop;
    Average satellites;
    Average horizontalAccuracyM;
    Average verticalAccuracyM;
    Average baseDistanceM;
    std::map<int, std::size_t> solutions; ///< results by the code of their solution type
    std::vector<double> antennaHeightsM;  ///< those used, ascending
    std::size_t antennaChanges = 0;       ///< in the order of the times

    [[nodiscard]] std::size_t points() const { return receivers + sources; }
    /// From the first result to the last; 0 of a single one, `kUnknown` on no day.
    [[nodiscard]] double hours() const;
    /// `kUnknown` when the hours are 0 or unknown.
    [[nodiscard]] double pointsAnHour() const;
};

/// Ordered by day, rover, surveyor, base.
[[nodiscard]] std::vector<RoverSession> roverSessionsOf(const SurveySample& sample);

/// A time without a result, between two that a surveyor measured with a rover on a day, whatever
/// the base: so the move of a base is a gap, and a day between two bases is none.
struct RoverGap
{
    const SurveyPoint* before = nullptr; ///< rover, surveyor and base are its own
    const SurveyPoint* after = nullptr;

    [[nodiscard]] double minutes() const;
};

inline constexpr double kGapMinutes = 30;

/// The gaps longer than `minutes`, ordered by day, rover, surveyor and time.
[[nodiscard]] std::vector<RoverGap> roverGapsOf(const SurveySample& sample,
                                                double minutes = kGapMinutes);

/// A base has moved when a result puts it farther than this from where the first one does, on the
/// plane or in height, metres. Less is the rounding of field controllers.
inline constexpr double kBaseMovedM = 0.02;

/// A base station as its results tell of it.
struct BaseUse
{
    std::string base;                   ///< its id
    const SurveyPoint* first = nullptr; ///< its earliest result: its position is the base's
    std::int64_t firstMs = 0;           ///< since 1970 UTC; 0 when no result has a time
    std::int64_t lastMs = 0;
    std::size_t results = 0;
    std::size_t days = 0;
    std::size_t rovers = 0;
    Average distanceM;
    /// How far other results put the base from where `first` does: the largest distance on the
    /// plane and the largest difference in height. Results without a position of the base are left
    /// out.
    double movedM = 0;
    double movedHeightM = 0;
    std::size_t elsewhere = 0;                   ///< the results of which the base has moved
    const SurveyPoint* firstElsewhere = nullptr; ///< the earliest of them

    /// Whether `first` tells where the base is; when it does not, no result does.
    [[nodiscard]] bool hasPosition() const;
};

/// Ordered by the ids.
[[nodiscard]] std::vector<BaseUse> basesOf(const SurveySample& sample);

} // namespace statistics
