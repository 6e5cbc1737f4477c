#pragma once

#include "map/BaseStations.h"
#include "map/MarkTable.h"
#include "map/ToMap.h"
#include "model/PointLines.h"

/// The survey as the map draws it: a mark for each result, line after line in the byte order of the
/// numbers, and the base stations of the results.
class SurveyMarks
{
public:
    /// What the picture connects a mark with.
    struct Ties
    {
        QPointF design;         ///< map coordinates; of the grid's origin for a result without it
        std::uint32_t base = 0; ///< index in `bases()`
        bool hasDesign = false; ///< false when a design coordinate is 0
    };

    SurveyMarks() = default;
    /// Results without a finite place are left out.
    SurveyMarks(const SurveyPoints& points, const ToMap& toMap);

    [[nodiscard]] const MarkTable& table() const { return m_table; }
    [[nodiscard]] const Ties& ties(MarkTable::Index mark) const { return m_ties[mark]; }
    [[nodiscard]] const std::vector<BaseStation>& bases() const { return m_bases.list(); }
    /// Map coordinates of the base stations.
    [[nodiscard]] const std::vector<QPointF>& basePlaces() const { return m_basePlaces; }
    /// The bounds of all marks and base stations on the grid; x is northing, y is easting.
    [[nodiscard]] Bounds gridBounds() const;

    /// Whether a result or a base station lies in this rectangle, map coordinates.
    [[nodiscard]] bool hasMarkIn(const QRectF& map) const;
    /// The index of the nearest base station less than `reach` away; of several equally near ones
    /// the first.
    [[nodiscard]] std::optional<std::size_t> nearestBase(const GridPlace& to, double reach) const;

private:
    void add(const SurveyPoint& point, const ToMap& toMap);
    [[nodiscard]] std::uint32_t baseOf(const SurveyPoint& point, const ToMap& toMap);

    MarkTable m_table;
    std::vector<Ties> m_ties;
    BaseStations m_bases;
    std::vector<QPointF> m_basePlaces;
};
