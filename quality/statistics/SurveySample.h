#pragma once

#include "basalt_utilities/LocalTimes.h"
#include "model/PointLines.h"
#include "quality/QualityLimits.h"

#include <array>
#include <cstdint>
#include <functional>
#include <limits>
#include <string>
#include <vector>

namespace statistics {

/// What a survey result is to the design.
enum class ResultKind : std::uint8_t
{
    Staked,    ///< a design point has exactly its line and point number
    Unplanned, ///< no design point has its numbers, and it is none of the two below
    Resurvey,  ///< its number contains the resurvey code
    Repeat     ///< its number begins with "C": a check measurement
};
inline constexpr std::size_t kResultKinds = 4;

enum class Verdict : std::uint8_t
{
    WithinLimits, ///< it passed every test of the quality check
    Failed,       ///< it failed one
    NotJudged     ///< it failed none, but has no design position, or a value that is no number
};
inline constexpr std::size_t kVerdicts = 3;

/// What results are grouped by.
enum class GroupKey : std::uint8_t
{
    Line,
    Day,   ///< of the shown time zone
    Rover, ///< its serial number
    Surveyor,
    Base,     ///< its id
    Hour,     ///< 0 to 23, of the shown time zone
    PointKind ///< 0 source, 1 receiver
};
inline constexpr std::size_t kGroupKeys = 7;

/// A value of a group key. Of a result that does not tell it, the text is empty or the number
/// `kNoNumber`.
struct KeyValue
{
    static constexpr std::int64_t kNoNumber = std::numeric_limits<std::int64_t>::min();

    std::string text;        ///< line, rover, surveyor, base
    std::int64_t number = 0; ///< the day since 1970/01/01, the hour, the kind

    friend bool operator==(const KeyValue&, const KeyValue&) = default;
    friend auto operator<=>(const KeyValue&, const KeyValue&) = default;
};

/// A survey result as statistics see it; lengths are metres, also in a project in feet.
/// Differences are measured minus design. Those on the plane are NaN when the result has no design
/// position (both its coordinates are 0) or one that is no number, the one in height also when the
/// design elevation is 0, which a design without heights has.
struct Observation
{
    const SurveyPoint* point = nullptr;
    double eastM = 0;
    double northM = 0;
    double heightM = 0;
    double distanceM = 0; ///< on the plane
    double horizontalAccuracyM = 0;
    double verticalAccuracyM = 0;
    double pdop = 0;
    int satellites = 0;
    bool isFixed = false;    ///< of a fixed solution
    std::int64_t timeMs = 0; ///< since 1970 UTC; 0 when it is missing
    int code = 0;            ///< its quality code by the sample's limits; see `sampleOf`
    std::array<std::uint32_t, kGroupKeys> keys{}; ///< places in `SurveySample::values`
    ResultKind kind = ResultKind::Unplanned;
    Verdict verdict = Verdict::WithinLimits;

    /// Whether it is the measurement of a point and not one of those made to check it.
    [[nodiscard]] bool isFirst() const
    {
        return kind == ResultKind::Staked || kind == ResultKind::Unplanned;
    }
    [[nodiscard]] std::uint32_t key(GroupKey groupKey) const
    {
        return keys[static_cast<std::size_t>(groupKey)];
    }
};

/// How much of a line, of a kind or of all is designed.
struct DesignCount
{
    std::size_t designed = 0;
    std::size_t left = 0; ///< design points without a result in the whole project
};

/// What statistics are computed from.
struct SampleInput
{
    const DesignPoints& design;
    const SurveyPoints& survey;
    QualityLimits limits;     ///< with the unit of the plane
    std::string resurveyCode; ///< "re_code"; an empty one marks no resurveys
    basalt::LocalTimes zone;  ///< the shown time zone
    /// Which results are wanted, those of a period or a crew; all when there is no function. What
    /// is left of the design is counted over all results.
    std::function<bool(const SurveyPoint& point)> isWanted;
};

/// The results of a survey, read once, for any number of groupings. It points to the survey's
/// results: valid while the containers keep their `revision`.
struct SurveySample
{
    std::vector<Observation> results; ///< in the order of the container
    /// By group key, all values of the results, ascending (texts by their bytes); of lines, also
    /// those of the design, and always both kinds of points.
    std::array<std::vector<KeyValue>, kGroupKeys> values;
    DesignCount design;
    std::vector<DesignCount> designOfLine;   ///< by value of `GroupKey::Line`
    std::array<DesignCount, 2> designOfKind; ///< of sources and of receivers
    QualityLimits limits;

    [[nodiscard]] const std::vector<KeyValue>& valuesOf(GroupKey key) const
    {
        return values[static_cast<std::size_t>(key)];
    }
};

/// The day of a clock, since 1970/01/01. \param clockSeconds  since then, in a time zone
[[nodiscard]] std::int64_t dayOf(std::int64_t clockSeconds);

/// Reads and judges the results.
///
/// A design point is staked when a result has exactly its line and point number, as in the empty
/// point check: a resurvey ("1001F") or a check measurement ("C...") is no second staked point, and
/// stakes none.
///
/// Each result is judged anew by the limits: the code that the last check wrote may be older than
/// the limits or than the result. `Observation::code` is that of `qualityCode`, but without the
/// fault "too far from the design" of a result that has no design position.
[[nodiscard]] SurveySample sampleOf(SampleInput input);

} // namespace statistics
