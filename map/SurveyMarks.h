#pragma once

#include "map/BaseStations.h"
#include "map/MarkTable.h"
#include "map/ToMap.h"
#include "model/PointLines.h"

/// The drawing cache of the survey: its results as marks, line after line in the order of bytes,
/// and the base stations that they were measured from.
class SurveyMarks
{
public:
    /// What belongs to a mark beside its own place.
    struct Ties
    {
        QPointF design; ///< map coordinates; of the grid's origin when the result carries none
        std::uint32_t base = 0;
        bool hasDesign = false; ///< neither design coordinate is 0
    };

    /// Forgets what it held. Results without a finite place are left out.
    void rebuild(const SurveyPoints& points, const ToMap& toMap);

    [[nodiscard]] const MarkTable& table() const { return m_table; }
    [[nodiscard]] const Ties& ties(MarkTable::Index mark) const { return m_ties[mark]; }
    [[nodiscard]] const std::vector<BaseStation>& bases() const { return m_bases.list(); }
    /// Map coordinates of the base stations.
    [[nodiscard]] const std::vector<QPointF>& basePlaces() const { return m_basePlaces; }
    /// Of all marks and base stations on the grid; x is northing, y is easting.
    [[nodiscard]] Bounds gridBounds() const;

    /// The nearest base station less than `reachM` away; of several the first. Null when none is.
    [[nodiscard]] std::optional<std::size_t> nearestBase(const GridPlace& to, double reachM) const;

private:
    void add(const SurveyPoint& point, const ToMap& toMap);
    [[nodiscard]] std::uint32_t baseOf(const SurveyPoint& point, const ToMap& toMap);

    MarkTable m_table;
    std::vector<Ties> m_ties;
    BaseStations m_bases;
    std::vector<QPointF> m_basePlaces;
};
