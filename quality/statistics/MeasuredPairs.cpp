#include "quality/statistics/MeasuredPairs.h"

#include "model/PointNumber.h"
#include "quality/ResurveyCode.h"

#include <cmath>
#include <string>

namespace statistics {

namespace {

/// Pairs of a line's points, one after the other.
class PairFinder
{
public:
    PairFinder(double planeUnitM, const IsWanted& isWanted)
        : m_planeUnitM(planeUnitM), m_isWanted(isWanted)
    {
    }

    void add(const PointLine<SurveyPoint>& line, std::string_view firstNumber,
             const SurveyPoint& again)
    {
        if (m_isWanted && !m_isWanted(again))
            return;
        const SurveyPoint* const first = line.find(firstNumber);
        if (first == nullptr) {
            m_found.alone.push_back(&again);
            return;
        }
        const double east = (again.east - first->east) * m_planeUnitM;
        const double north = (again.north - first->north) * m_planeUnitM;
        m_found.pairs.push_back({first, &again, east, north, again.elevation - first->elevation,
                                 std::sqrt(east * east + north * north)});
    }

    [[nodiscard]] MeasuredPairs take() { return std::move(m_found); }

private:
    double m_planeUnitM;
    const IsWanted& m_isWanted;
    MeasuredPairs m_found;
};

/// Takes what is a number; the rest is left out.
class Magnitudes
{
public:
    void add(double value)
    {
        if (std::isfinite(value))
            m_values.push_back(std::fabs(value));
    }
    [[nodiscard]] double p95() { return percentile95(m_values); }

private:
    std::vector<double> m_values;
};

} // namespace

MeasuredPairs resurveyPairs(const SurveyPoints& survey, std::string_view resurveyCode,
                            double planeUnitM, const IsWanted& isWanted)
{
    PairFinder finder(planeUnitM, isWanted);
    if (resurveyCode.empty())
        return finder.take();
    for (const auto& [number, line] : survey) {
        for (const SurveyPoint& point : line) {
            if (point.pointNumber.find(resurveyCode) != std::string::npos)
                finder.add(line, withoutCode(point.pointNumber, resurveyCode), point);
        }
    }
    return finder.take();
}

MeasuredPairs repeatPairs(const SurveyPoints& survey, double planeUnitM, const IsWanted& isWanted)
{
    PairFinder finder(planeUnitM, isWanted);
    for (const auto& [number, line] : survey) {
        for (const SurveyPoint* const point : writtenOrder(line)) {
            const std::string_view written = writtenPointNumber(point->pointNumber);
            if (written.substr(0, 1) == "C")
                finder.add(line, written.substr(1), *point);
        }
    }
    return finder.take();
}

PairFigures figuresOf(const std::vector<MeasuredPair>& pairs)
{
    PairFigures figures;
    Magnitudes east;
    Magnitudes north;
    Magnitudes height;
    Magnitudes distance;
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        const MeasuredPair& pair = pairs[i];
        figures.east.add(pair.eastM, i);
        figures.north.add(pair.northM, i);
        figures.height.add(pair.heightM, i);
        figures.distance.add(pair.distanceM, i);
        east.add(pair.eastM);
        north.add(pair.northM);
        height.add(pair.heightM);
        distance.add(pair.distanceM);
    }
    figures.eastP95 = east.p95();
    figures.northP95 = north.p95();
    figures.heightP95 = height.p95();
    figures.distanceP95 = distance.p95();
    return figures;
}

} // namespace statistics
