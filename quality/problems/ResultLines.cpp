#include "quality/problems/ResultLines.h"

#include "model/PointNumber.h"
#include "quality/problems/DesignWalk.h"
#include "quality/problems/LineOrder.h"

#include <array>
#include <limits>
#include <optional>
#include <tuple>

namespace {

using Pair = LineTelling::Pair<SurveyPoint>;

bool contains(std::string_view text, std::string_view part)
{
    return text.find(part) != std::string_view::npos;
}

class ResultLines
{
public:
    ResultLines(const FinderInput& input, const LineParameters& parameters, LineTelling& telling)
        : m_input(input), m_parameters(parameters), m_telling(telling)
    {
    }

    void find()
    {
        for (const auto& [number, line] : m_input.survey()) {
            sort(number, line);
            for (Part& part : m_parts)
                examine(part);
            tellCoincident();
        }
    }

private:
    /// The results of a line that are of one type.
    struct Part
    {
        LineOrder order;
        std::vector<const SurveyPoint*> results;
        std::size_t designed = 0; ///< how many of them have a design point
    };

    void sort(const std::string& number, const SurveyPoints::Line& line)
    {
        m_undesigned.clear();
        for (Part& part : m_parts) {
            part.order.clear();
            part.results.clear();
            part.designed = 0;
        }
        const DesignPoints::Line* const designed = m_input.design().findLine(number);
        // There a number that the design has not says nothing about the place in the line.
        const bool isPlanned = designed != nullptr && 2 * designed->size() >= line.size();
        DesignWalk walk(designed);
        for (const SurveyPoint& result : line) {
            fetchAhead(result);
            const bool isDesigned = walk.find(result.pointNumber) != nullptr;
            if (!isDesigned && !isFirst(result))
                continue;
            if (!isDesigned && hasPosition(result))
                m_undesigned.push_back(&result);
            if (!isDesigned && isPlanned)
                continue;
            Part& part = m_parts[result.pointMark != 0 ? 1 : 0];
            const PointPlace place = placeOf(result, m_input.planeUnitM());
            constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
            part.order.add(result.pointNumber, {place, 0, result.elevation, kNone},
                           part.results.size());
            part.results.push_back(&result);
            part.designed += isDesigned ? 1U : 0U;
        }
    }

    /// Whether a result that has no design point measures a point for the first time.
    [[nodiscard]] bool isFirst(const SurveyPoint& result) const
    {
        const std::string& code = m_input.resurveyCode();
        return !isCheckPoint(result.pointNumber) &&
               (code.empty() || !contains(result.pointNumber, code));
    }

    void examine(Part& part)
    {
        LineLimits limits = m_parameters.shape;
        limits.skidM = m_parameters.skidM;
        if (2 * part.designed >= part.results.size())
            limits = {.heightM = limits.heightM};
        part.order.forEachRun(
            [&](std::span<const LinePoint> run, std::span<const std::size_t> results) {
                m_findings.clear();
                const LineMeasures measures = examineLine(run, limits, m_findings);
                if (m_findings.empty())
                    return;
                std::vector<const SurveyPoint*> pointers;
                for (const std::size_t result : results)
                    pointers.push_back(part.results[result]);
                m_telling.tell<SurveyPoint>(m_findings, measures, pointers);
            });
    }

    /// Only of results without a design point: the others are judged by their names.
    void tellCoincident()
    {
        if (m_parameters.meetings.coincidentM == 0)
            return;
        std::vector<Pair> pairs;
        for (const SurveyPoint* const result : m_undesigned) {
            if (const auto pair = partnerOf(*result))
                pairs.push_back(*pair);
        }
        m_telling.tellCoincident<SurveyPoint>(pairs, m_undesigned.size());
    }
    [[nodiscard]] std::optional<Pair> partnerOf(const SurveyPoint& result)
    {
        constexpr std::size_t kLookedAt = 8;
        const IndexedPoints<SurveyPoint>& all = m_input.indexedResults();
        all.index().nearest(placeOf(result, m_input.planeUnitM()), kLookedAt,
                            m_parameters.meetings.coincidentM, m_near);
        for (const auto& [number, distance] : m_near) {
            const SurveyPoint& other = all[number];
            if (isPartner(result, other))
                return Pair{&result, &other, distance};
        }
        if (m_near.size() < kLookedAt)
            return std::nullopt;
        // So many are here that the partner may be behind them.
        for (const auto& [number, distance] : m_near) {
            if (mayBePartner(result, all[number]))
                return Pair{&result, &all[number], distance};
        }
        return std::nullopt;
    }
    /// Whether `other` should be elsewhere, and is not told to be in the place of `result` itself.
    [[nodiscard]] bool isPartner(const SurveyPoint& result, const SurveyPoint& other) const
    {
        if (!mayBePartner(result, other))
            return false;
        const auto nameOf = [](const SurveyPoint& point) {
            return std::tie(point.lineNumber, point.pointNumber);
        };
        return isDesigned(other) || nameOf(other) < nameOf(result);
    }
    /// The same, whichever of the two is told.
    [[nodiscard]] bool mayBePartner(const SurveyPoint& result, const SurveyPoint& other) const
    {
        return (result.pointMark != 0) == (other.pointMark != 0) &&
               !contains(result.pointNumber, other.pointNumber) &&
               !contains(other.pointNumber, result.pointNumber) &&
               (isDesigned(other) || isFirst(other));
    }
    [[nodiscard]] bool isDesigned(const SurveyPoint& result) const
    {
        return m_input.design().find(result.lineNumber, result.pointNumber) != nullptr;
    }

    const FinderInput& m_input;
    const LineParameters& m_parameters;
    LineTelling& m_telling;
    std::array<Part, 2> m_parts; ///< sources, receivers
    std::vector<const SurveyPoint*> m_undesigned;
    std::vector<LineFinding> m_findings;
    std::vector<PointIndex::Found> m_near;
};

} // namespace

void findInResultLines(const FinderInput& input, const LineParameters& parameters,
                       LineTelling& telling)
{
    ResultLines(input, parameters, telling).find();
}
