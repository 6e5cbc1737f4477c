#include "map/DesignMarks.h"

DesignMarks::DesignMarks(const DesignPoints& points, const ToMap& toMap)
{
    m_table.reserve(points.pointCount());
    for (const auto& [number, line] : points) {
        m_table.beginLine(number);
        for (const DesignPoint& point : line) {
            const bool isAdded = m_table.add(point.pointNumber, {point.north, point.east},
                                             toMap(point.north, point.east));
            if (isAdded && m_types.size() < m_table.lines().size())
                m_types.push_back(point.type);
        }
        m_table.endLine();
    }
}
