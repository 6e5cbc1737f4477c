#pragma once

#include <QPointF>
#include <QRectF>
#include <QSize>

namespace lum {

/// Whether all four edges are numbers.
[[nodiscard]] bool isFinite(const QRectF& area);

} // namespace lum

/// Map coordinates (metres, x to the east, y to the north) to screen pixels (y downwards) and back.
///
/// The one place of this arithmetic. A view is a centre, a scale and a size; it is a value, so a
/// paint that runs elsewhere works on a copy. Scale and centre are always finite.
class Transform
{
public:
    /// Keeps map units a pixel between these, so that no zoom runs into zero or infinity.
    static constexpr double kMinScale = 1e-6;
    static constexpr double kMaxScale = 1e15;

    [[nodiscard]] QPointF SurveyToScreen(const QPointF& map) const; // spelled as registered
    [[nodiscard]] QPointF SurveyToScreen(double x, double y) const;
    [[nodiscard]] QPointF ScreenToSurvey(const QPointF& screen) const;

    /// Maps the two corners as they are: a rectangle drawn towards the upper left keeps its
    /// negative size, and because y turns over, so does the height of every other one.
    [[nodiscard]] QRectF ScreenToSurvey(const QRectF& screen) const;

    /// Map units per screen pixel, > 0.
    [[nodiscard]] double GetScale() const { return m_scale; }

    [[nodiscard]] QPointF center() const { return m_center; }
    [[nodiscard]] QSize size() const { return m_size; }

    /// The map rectangle that the screen shows, normalised.
    [[nodiscard]] QRectF visibleExtent() const;

    /// Keeps centre and scale.
    void setSize(const QSize& size);

    /// What is not finite is ignored; the scale is kept within its limits.
    void setView(const QPointF& center, double scale);

    /// Moves the picture by so many screen pixels.
    void panBy(const QPointF& pixels);

    /// Zooms by `factor` (above 1 comes nearer); the map point under `screen` stays there. A factor
    /// that is not above 0, or anything not finite, changes nothing.
    void zoomAbout(const QPointF& screen, double factor);

    /// Shows all of `extent` (normalised or not) with `margin` of the screen free on each side.
    /// An extent without width or height is centred at the scale of the other side, or at the
    /// present scale when it has neither. One that is not finite changes nothing.
    void fit(const QRectF& extent, double margin = 0.05);

    friend bool operator==(const Transform& a, const Transform& b)
    {
        return a.m_center == b.m_center && qFuzzyCompare(a.m_scale, b.m_scale) &&
               a.m_size == b.m_size;
    }
    friend bool operator!=(const Transform& a, const Transform& b) { return !(a == b); }

private:
    QPointF m_center;
    double m_scale = 1;
    QSize m_size{1, 1};
};
