#pragma once

#include "map/BaseStations.h"
#include "map/MarkTable.h"
#include "map/ToMap.h"
#include "model/PointLines.h"

#include <QRgb>

#include <functional>

/// The colours of results by classes. Class 0 lies on top of the others.
struct MarkColors
{
    std::vector<QRgb> colors; ///< of the classes; none for the usual picture
    std::function<std::uint8_t(const SurveyPoint&)> classOf;
};

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
    SurveyMarks(const SurveyPoints& points, const ToMap& toMap, const MarkColors& colors = {});

    [[nodiscard]] const MarkTable& table() const { return m_table; }
    [[nodiscard]] const Ties& ties(MarkTable::Index mark) const { return m_ties[mark]; }
    [[nodiscard]] const std::vector<BaseStation>& bases() const { return m_bases.list(); }
    /// Map coordinates of the base stations.
    [[nodiscard]] const std::vector<QPointF>& basePlaces() const { return m_basePlaces; }

    /// The colours of the classes; empty when the marks have none.
    [[nodiscard]] const std::vector<QRgb>& colors() const { return m_colors; }
    /// The class of a mark, while there are colours.
    [[nodiscard]] std::uint8_t classOf(MarkTable::Index mark) const { return m_classes[mark]; }
    /// How many marks each class has.
    [[nodiscard]] std::vector<std::size_t> classCounts() const;

    /// The bounds of all marks and base stations on the grid; x is northing, y is easting.
    [[nodiscard]] Bounds gridBounds() const;

    /// Whether a result or a base station lies in this rectangle, map coordinates.
    [[nodiscard]] bool hasMarkIn(const QRectF& map) const;
    /// The index of the nearest base station less than `reach` away; of several equally near ones
    /// the first.
    [[nodiscard]] std::optional<std::size_t> nearestBase(const GridPlace& to, double reach) const;

private:
    /// \returns false for a result that is left out
    bool add(const SurveyPoint& point, const ToMap& toMap);
    [[nodiscard]] std::uint32_t baseOf(const SurveyPoint& point, const ToMap& toMap);

    MarkTable m_table;
    std::vector<Ties> m_ties;
    std::vector<QRgb> m_colors;
    std::vector<std::uint8_t> m_classes; ///< of each mark, while there are colours
    BaseStations m_bases;
    std::vector<QPointF> m_basePlaces;
};
