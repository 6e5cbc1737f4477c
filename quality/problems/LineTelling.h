#pragma once

#include "quality/problems/LineMeetings.h"
#include "quality/problems/LineShape.h"
#include "quality/problems/ProblemList.h"

#include <algorithm>
#include <span>

class FinderInput;

/// The limits of lines as they are entered.
struct LineParameters
{
    explicit LineParameters(const FinderInput& input);

    LineLimits shape; ///< for the design
    MeetingLimits meetings;
    double skidM;
};

/// Makes problems of what was found in lines. When a line has very many of one kind, the first of
/// them stands for all.
class LineTelling
{
public:
    LineTelling(ProblemList& problems, const LineParameters& parameters)
        : m_problems(problems), m_parameters(parameters)
    {
    }

    /// \param findings  of one line \param points  of the line, in its order
    template <class Point>
    void tell(std::span<const LineFinding> findings, const LineMeasures& measures,
              std::span<const Point* const> points);
    /// Whether a line has so many findings of a kind that they have one cause.
    [[nodiscard]] static bool isMany(std::size_t findings, std::size_t points)
    {
        return findings > std::max(kMost, points / kMostShare);
    }

    /// Points in one place: a point of a line with another point and their distance.
    template <class Point>
    struct Pair
    {
        const Point* point;
        const Point* other;
        double distanceM;
    };
    template <class Point>
    void tellCoincident(std::span<const Pair<Point>> ofLine, std::size_t points);
    void tellInterleaved(const DesignPoint& point, const DesignPoint& other, std::uint32_t points);
    /// The numbers of a whole line run against the others.
    void tellReversed(std::string_view line, std::uint32_t points);

private:
    void setValues(Problem& problem, const LineFinding& finding, const LineMeasures& measures);

    static constexpr std::size_t kMost = 20;
    static constexpr std::size_t kMostShare = 10; ///< a tenth of the line

    ProblemList& m_problems;
    const LineParameters& m_parameters;
};
