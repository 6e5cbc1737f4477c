#include "quality/problems/LineTelling.h"

#include "quality/problems/FinderInput.h"
#include "quality/problems/LineKinds.h"

#include <array>
#include <cmath>

using Kind = LineFinding::Kind;

LineParameters::LineParameters(const FinderInput& input)
    : shape{input.limit("line_spacing_max") / 100, input.limit("line_gap_max"),
            input.limit("line_azimuth_max"),       input.limit("line_reversed_min"),
            input.limit("line_height_max"),        0},
      meetings{input.limit("line_coincident_max"), input.limit("line_interleaved_min")},
      skidM(input.limit("line_skid_max"))
{
}

template <class Point>
void LineTelling::tell(std::span<const LineFinding> findings, const LineMeasures& measures,
                       std::span<const Point* const> points)
{
    std::array<std::uint32_t, LineFinding::kKinds> counts{};
    for (const LineFinding& finding : findings)
        ++counts[static_cast<std::size_t>(finding.kind)];
    for (const LineFinding& finding : findings) {
        std::uint32_t& count = counts[static_cast<std::size_t>(finding.kind)];
        const ProblemKind* const kind = line_kinds::kindOf(finding.kind);
        if (kind == nullptr || count == 0)
            continue;
        Problem& problem = m_problems.add(*kind, *points[finding.at], *points[finding.other]);
        if (isMany(count, points.size())) {
            problem.count = count - 1;
            count = 0; // the others are told with this one
        }
        setValues(problem, finding, measures);
    }
}

template void LineTelling::tell(std::span<const LineFinding>, const LineMeasures&,
                                std::span<const DesignPoint* const>);
template void LineTelling::tell(std::span<const LineFinding>, const LineMeasures&,
                                std::span<const SurveyPoint* const>);

void LineTelling::setValues(Problem& problem, const LineFinding& finding,
                            const LineMeasures& measures)
{
    constexpr double kAdjacent = 1.5; // spacings
    const LineLimits& limits = m_parameters.shape;
    problem.value = finding.value;
    problem.second = finding.second;
    switch (finding.kind) {
    case Kind::Spacing:
        problem.limit =
            measures.spacingM + std::copysign(measures.spacingOffM, finding.value - finding.second);
        return;
    case Kind::Gap:
        problem.limit = limits.gapNumbers;
        if (finding.second < kAdjacent * measures.spacingM)
            problem.detail = m_problems.keepOnce(line_kinds::kAdjacent);
        return;
    case Kind::Bearing:
        problem.detail = m_problems.keepOnce(line_kinds::kGiven);
        [[fallthrough]];
    case Kind::Azimuth:
        problem.limit = limits.azimuthDeg;
        return;
    case Kind::Reversed:
        problem.count = finding.count;
        problem.value = finding.count;
        problem.limit = limits.reversedPoints;
        return;
    case Kind::Height:
        problem.limit = limits.heightM;
        return;
    case Kind::Hole:
        return;
    }
}

template <class Point>
void LineTelling::tellCoincident(std::span<const Pair<Point>> ofLine, std::size_t points)
{
    const std::size_t told = isMany(ofLine.size(), points) ? 1 : ofLine.size();
    for (const Pair<Point>& pair : ofLine.first(told)) {
        Problem& problem = m_problems.add(line_kinds::kCoincident, *pair.point, *pair.other);
        problem.value = pair.distanceM;
        problem.limit = m_parameters.meetings.coincidentM;
        problem.count = static_cast<std::uint32_t>(ofLine.size() - told);
    }
}

template void LineTelling::tellCoincident(std::span<const Pair<DesignPoint>>, std::size_t);
template void LineTelling::tellCoincident(std::span<const Pair<SurveyPoint>>, std::size_t);

void LineTelling::tellInterleaved(const DesignPoint& point, const DesignPoint& other,
                                  std::uint32_t points)
{
    Problem& problem = m_problems.add(line_kinds::kInterleaved, point, other);
    problem.value = points;
    problem.limit = m_parameters.meetings.interleaved;
    problem.count = points;
}

void LineTelling::tellReversed(std::string_view line, std::uint32_t points)
{
    Problem& problem = m_problems.add(line_kinds::kReversed, line);
    problem.isDesign = true;
    problem.value = points;
    problem.limit = m_parameters.shape.reversedPoints;
    problem.count = points;
}
