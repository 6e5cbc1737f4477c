#include "quality/problems/DesignLines.h"

#include "quality/problems/LineOrder.h"
#include "quality/problems/PlannedHoles.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using Pointers = std::span<const DesignPoint* const>;
using Pair = LineTelling::Pair<DesignPoint>;

LinePoint shapeOf(const DesignPoint& point, const PointPlace& place)
{
    constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();
    // A generated design has no elevations.
    return {place, 0, point.elevation == 0 ? kUnknown : point.elevation, point.azimuth};
}

/// Where a line leads, when it is straight.
struct Heading
{
    std::size_t line;
    double eastM; ///< from the first point to the last
    double northM;
    double lengthM;
};

/// The lines of one type.
class DesignLines
{
public:
    DesignLines(const FinderInput& input, const LineParameters& parameters, bool areReceivers,
                LineTelling& telling)
        : m_input(input), m_parameters(parameters), m_areReceivers(areReceivers), m_telling(telling)
    {
    }

    /// A point of the line that is being read.
    void add(const DesignPoint& point)
    {
        const PointPlace place = placeOf(point, m_input.planeUnitM());
        m_order.add(point.pointNumber, shapeOf(point, place), m_points.size());
        m_points.push_back(&point);
        m_places.push_back(place);
    }
    void endLine()
    {
        const std::size_t first = m_lines.empty() ? 0 : m_lines.back().first + m_lines.back().count;
        if (first == m_points.size())
            return;
        ListedLine line{first, m_points.size() - first};
        m_order.forEachRun(
            [&](std::span<const LinePoint> run, std::span<const std::size_t> points) {
                examineRun(run, points, line);
            });
        m_order.clear();
        m_lines.push_back(std::move(line));
    }

    /// What lines have to do with each other, when all were read.
    void tellRest()
    {
        tellGaps();
        if (m_parameters.shape.reversedPoints > 0)
            tellReversedLines();
        tellMeetings();
    }

private:
    /// A gap of the numbers that may have been planned.
    struct Gap
    {
        LineFinding finding;
        LineMeasures measures;
        std::size_t at; ///< in `m_points`
        std::size_t other;
    };

    void examineRun(std::span<const LinePoint> run, std::span<const std::size_t> points,
                    ListedLine& listed)
    {
        m_findings.clear();
        const LineMeasures measures = examineLine(run, m_parameters.shape, m_findings);
        listed.spacingM = std::max(listed.spacingM, measures.spacingM);
        listed.order.insert(listed.order.end(), points.begin(), points.end());
        if (m_findings.empty())
            return;
        keepGaps(measures, points);
        std::vector<const DesignPoint*> pointers;
        for (const std::size_t point : points)
            pointers.push_back(m_points[point]);
        m_telling.tell<DesignPoint>(m_findings, measures, pointers);
    }

    /// Takes the gaps out of the findings, unless they are so many that they are one fault.
    void keepGaps(const LineMeasures& measures, std::span<const std::size_t> points)
    {
        const auto isGap = [](const LineFinding& finding) {
            return finding.kind == LineFinding::Kind::Gap ||
                   finding.kind == LineFinding::Kind::Hole;
        };
        const auto gaps = std::ranges::count_if(m_findings, isGap);
        if (LineTelling::isMany(static_cast<std::size_t>(gaps), points.size()))
            return;
        for (const LineFinding& finding : m_findings) {
            if (!isGap(finding))
                continue;
            const std::size_t at = points[finding.at];
            const std::size_t other = points[finding.other];
            m_gaps.push_back({finding, measures, at, other});
            m_holes.push_back({m_lines.size(), m_places[at], m_places[other]});
        }
        std::erase_if(m_findings, isGap);
    }

    void tellGaps()
    {
        if (m_gaps.empty())
            return;
        const std::vector<bool> arePlanned = findPlannedHoles(m_holes, m_lines, index());
        for (std::size_t i = 0; i < m_gaps.size(); ++i) {
            if (arePlanned[i])
                continue;
            Gap& gap = m_gaps[i];
            gap.finding.at = 0;
            gap.finding.other = 1;
            const DesignPoint* const points[] = {m_points[gap.at], m_points[gap.other]};
            m_telling.tell<DesignPoint>({&gap.finding, 1}, gap.measures, points);
        }
    }

    /// Nearly all lines run one way, and few the other: that is no pattern.
    void tellReversedLines()
    {
        constexpr std::size_t kFewestLines = 5;
        constexpr std::size_t kMany = 4; // times as many
        const std::vector<Heading> headings = straightHeadings();
        if (headings.size() < kFewestLines)
            return;
        // The longest line stands for all that are parallel to it.
        const Heading& main = *std::ranges::max_element(headings, {}, &Heading::lengthM);
        std::vector<std::size_t> along;
        std::vector<std::size_t> against;
        for (const Heading& heading : headings) {
            constexpr double kParallel = 0.97;
            const double cosine = (heading.eastM * main.eastM + heading.northM * main.northM) /
                                  (heading.lengthM * main.lengthM);
            if (std::fabs(cosine) > kParallel)
                (cosine > 0 ? along : against).push_back(heading.line);
        }
        if (along.size() < against.size())
            along.swap(against);
        if (along.size() + against.size() < kFewestLines || along.size() < kMany * against.size())
            return;
        for (const std::size_t line : against)
            m_telling.tellReversed(m_points[m_lines[line].first]->lineNumber,
                                   static_cast<std::uint32_t>(m_lines[line].count));
    }
    [[nodiscard]] std::vector<Heading> straightHeadings() const
    {
        constexpr double kStraight = 0.9;
        std::vector<Heading> headings;
        for (std::size_t i = 0; i < m_lines.size(); ++i) {
            const std::vector<std::size_t>& order = m_lines[i].order;
            if (m_lines[i].spacingM == 0)
                continue;
            double pathM = 0;
            for (std::size_t k = 1; k < order.size(); ++k)
                pathM += distanceM(m_places[order[k - 1]], m_places[order[k]]);
            const PointPlace& from = m_places[order.front()];
            const PointPlace& to = m_places[order.back()];
            const double lengthM = distanceM(from, to);
            if (lengthM > kStraight * pathM)
                headings.push_back({i, to.eastM - from.eastM, to.northM - from.northM, lengthM});
        }
        return headings;
    }

    void tellMeetings()
    {
        const LineMeetings meetings = findMeetings(
            m_lines, m_places, [this]() -> const PointIndex& { return index(); },
            m_parameters.meetings);
        std::vector<Pair> ofLine;
        for (const CoincidentPoints& coincident : meetings.coincident) {
            const Pair pair{m_points[coincident.point], m_points[coincident.other],
                            coincident.distanceM};
            if (!ofLine.empty() && ofLine.back().point->lineNumber != pair.point->lineNumber)
                tellCoincident(ofLine);
            ofLine.push_back(pair);
        }
        tellCoincident(ofLine);
        for (const InterleavedLines& lines : meetings.interleaved)
            m_telling.tellInterleaved(*m_points[lines.point], *m_points[lines.otherPoint],
                                      lines.points);
    }

    /// \param ofLine  emptied
    void tellCoincident(std::vector<Pair>& ofLine)
    {
        if (ofLine.empty())
            return;
        const DesignPoints::Line* const line =
            m_input.design().findLine(ofLine.front().point->lineNumber);
        m_telling.tellCoincident<DesignPoint>(ofLine, line->size());
        ofLine.clear();
    }

    /// Its points are numbered as in `m_points`.
    [[nodiscard]] const PointIndex& index() const
    {
        return m_input.indexedDesign(m_areReceivers).index();
    }

    const FinderInput& m_input;
    const LineParameters& m_parameters;
    bool m_areReceivers;
    LineTelling& m_telling;
    LineOrder m_order;
    std::vector<LineFinding> m_findings;
    std::vector<const DesignPoint*> m_points; ///< of the type, in the order of the container
    std::vector<PointPlace> m_places;         ///< theirs
    std::vector<ListedLine> m_lines;
    std::vector<Gap> m_gaps;
    std::vector<NumberGap> m_holes; ///< theirs
};

} // namespace

void findInDesignLines(const FinderInput& input, const LineParameters& parameters,
                       LineTelling& telling)
{
    DesignLines sources(input, parameters, false, telling);
    DesignLines receivers(input, parameters, true, telling);
    for (const auto& [number, line] : input.design()) {
        for (const DesignPoint& point : line) {
            fetchAhead(point);
            (point.type != 0 ? receivers : sources).add(point);
        }
        sources.endLine();
        receivers.endLine();
    }
    sources.tellRest();
    receivers.tellRest();
}
