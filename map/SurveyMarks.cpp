#include "map/SurveyMarks.h"

#include <algorithm>
#include <cmath>

SurveyMarks::SurveyMarks(const SurveyPoints& points, const ToMap& toMap, const MarkColors& colors)
    : m_colors(colors.colors)
{
    const std::size_t count = points.pointCount();
    m_table.reserve(count);
    m_ties.reserve(count);
    m_classes.reserve(m_colors.empty() ? 0 : count);
    for (const auto& [number, line] : points) {
        m_table.beginLine(number);
        for (const SurveyPoint& point : line) {
            if (add(point, toMap) && !m_colors.empty())
                m_classes.push_back(colors.classOf(point));
        }
        m_table.endLine();
    }
}

bool SurveyMarks::add(const SurveyPoint& point, const ToMap& toMap)
{
    const std::uint32_t base = baseOf(point, toMap);
    if (!m_table.add(point.pointNumber, {point.north, point.east}, toMap(point.north, point.east)))
        return false;
    Ties ties;
    ties.design = toMap(point.designNorth, point.designEast);
    ties.base = base;
    ties.hasDesign = hasDesignPosition(point);
    m_ties.push_back(ties);
    m_table.alsoSeenAt(m_basePlaces[base]);
    if (ties.hasDesign)
        m_table.alsoSeenAt(ties.design);
    return true;
}

std::vector<std::size_t> SurveyMarks::classCounts() const
{
    std::vector<std::size_t> counts(m_colors.size());
    for (const std::uint8_t each : m_classes)
        ++counts[each];
    return counts;
}

std::uint32_t SurveyMarks::baseOf(const SurveyPoint& point, const ToMap& toMap)
{
    const std::uint32_t base =
        m_bases.findOrAdd({point.referenceNorth, point.referenceEast, point.referenceLatitude,
                           point.referenceLongitude, point.referenceAltitude});
    if (base == m_basePlaces.size())
        m_basePlaces.push_back(toMap(point.referenceNorth, point.referenceEast));
    return base;
}

Bounds SurveyMarks::gridBounds() const
{
    Bounds all = m_table.gridBounds();
    for (const BaseStation& base : bases()) {
        if (std::isfinite(base.north) && std::isfinite(base.east))
            all.add(base.north, base.east);
    }
    return all;
}

bool SurveyMarks::hasMarkIn(const QRectF& map) const
{
    return m_table.hasMarkIn(map) ||
           std::any_of(m_basePlaces.begin(), m_basePlaces.end(),
                       [&](const QPointF& place) { return map.contains(place); });
}

std::optional<std::size_t> SurveyMarks::nearestBase(const GridPlace& to, double reach) const
{
    std::optional<std::size_t> best;
    double limit = reach;
    for (std::size_t i = 0; i < bases().size(); ++i) {
        const double distance = std::hypot(bases()[i].north - to.north, bases()[i].east - to.east);
        if (distance < limit) {
            limit = distance;
            best = i;
        }
    }
    return best;
}
