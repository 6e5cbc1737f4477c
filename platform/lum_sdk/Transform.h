#pragma once

#include <QPointF>
#include <QRectF>
#include <QSize>

namespace lum {

/// Whether all four edges are finite.
[[nodiscard]] bool isFinite(const QRectF& area);

} // namespace lum

/// Map coordinates (x to the east, y to the north, in the unit of the grid) to screen pixels (y
/// downwards) and back.
///
/// This arithmetic stands nowhere else. A transform is a value of centre, scale and screen size: a
/// paint on another thread works on a copy. Centre and scale are always finite.
class Transform
{
public:
    /// The limits of the scale, so that no zoom ends at zero or infinity.
    static constexpr double kMinScale = 1e-6;
    static constexpr double kMaxScale = 1e15;

    [[nodiscard]] QPointF SurveyToScreen(const QPointF& map) const; // spelled as registered
    [[nodiscard]] QPointF SurveyToScreen(double x, double y) const;
    [[nodiscard]] QPointF ScreenToSurvey(const QPointF& screen) const;

    /// Maps two opposite corners without normalising: a rectangle drawn towards the left keeps its
    /// negative width. A height changes its sign, since y points the other way.
    [[nodiscard]] QRectF ScreenToSurvey(const QRectF& screen) const;

    /// Map units per screen pixel, > 0.
    [[nodiscard]] double GetScale() const { return m_scale; }

    [[nodiscard]] QPointF center() const { return m_center; }
    [[nodiscard]] QSize size() const { return m_size; }

    /// The map rectangle that the screen shows, normalised.
    [[nodiscard]] QRectF visibleExtent() const;

    /// Centre and scale stay.
    void setSize(const QSize& size);

    /// The scale is kept within its limits. A value that is not finite changes nothing.
    void setView(const QPointF& center, double scale);

    /// Moves the picture by so many screen pixels.
    void panBy(const QPointF& pixels);

    /// Zooms by `factor` (above 1 zooms in); the map point under `screen` stays there. A factor
    /// that is not above 0, or anything not finite, changes nothing.
    void zoomAbout(const QPointF& screen, double factor);

    /// Shows all of `extent` (normalised or not) with `margin` of the screen free on each side.
    /// A single point is centred at the present scale. An extent that is not finite changes
    /// nothing.
    void fit(const QRectF& extent, double margin = 0.05);

    friend bool operator==(const Transform& a, const Transform& b)
    {
        return a.m_center == b.m_center && qFuzzyCompare(a.m_scale, b.m_scale) &&
               a.m_size == b.m_size;
    }

private:
    QPointF m_center;
    double m_scale = 1;
    QSize m_size{1, 1};
};
