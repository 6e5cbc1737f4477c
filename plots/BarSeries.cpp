#include "plots/BarSeries.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kWideEnough = 6; // pixels, for a gap between bars

/// From `below` to `top`, on whole pixels.
QRectF rectOf(const PlotBar& bar, double below, double top, const PlotMaps& maps)
{
    const double left = std::round(maps.x.transform(bar.from));
    const double right = std::round(maps.x.transform(bar.to));
    const double gap = right - left >= kWideEnough ? 1 : 0;
    const double bottom = std::round(maps.y.transform(below));
    const double upper = std::min(std::round(maps.y.transform(top)), bottom - 1);
    return {left, upper, std::max(1.0, right - left - gap), bottom - upper};
}

QRectF rectOf(const PlotBar& bar, const PlotMaps& maps)
{
    return rectOf(bar, bar.below, bar.top(), maps);
}

} // namespace

BarSeries::BarSeries(std::vector<PlotBar> bars, const PlotSelection& selection,
                     const QColor& selected)
    : m_bars(std::move(bars)), m_selection(selection), m_selected(selected)
{
}

std::size_t BarSeries::selectedOf(const PlotBar& bar) const
{
    return std::size_t(
        std::count_if(bar.places.begin(), bar.places.end(), [this](std::uint32_t place) {
            return place < m_selection.size() && m_selection[place];
        }));
}

void BarSeries::draw(QPainter* painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap,
                     const QRectF& canvas) const
{
    const PlotMaps maps{xMap, yMap};
    const bool hasSelected =
        std::find(m_selection.begin(), m_selection.end(), true) != m_selection.end();
    for (const PlotBar& bar : m_bars) {
        const QRectF whole = rectOf(bar, maps);
        if (whole.right() < canvas.left() || whole.left() > canvas.right())
            continue;
        painter->fillRect(whole & canvas, bar.color);
        const std::size_t selected = hasSelected ? selectedOf(bar) : 0;
        if (selected > 0)
            painter->fillRect(rectOf(bar, bar.below, bar.below + double(selected), maps) & canvas,
                              m_selected);
    }
}

std::optional<PlotItem::Hit> BarSeries::hit(const QPointF& at, const PlotMaps& maps,
                                            double reach) const
{
    const PlotBar* nearest = nullptr;
    double least = reach / 2;
    for (const PlotBar& bar : m_bars) {
        const QRectF place = rectOf(bar, maps);
        // A low bar is found some pixels above its end as well.
        if (at.y() < place.top() - reach / 2 || at.y() > place.bottom())
            continue;
        const double away = std::max({0.0, place.left() - at.x(), at.x() - place.right()});
        if (away < least) {
            least = away;
            nearest = &bar;
        }
    }
    if (nearest == nullptr)
        return std::nullopt;
    return Hit{nearest->places, std::nullopt, nearest->text};
}

void BarSeries::collect(const QRectF& rectangle, const PlotMaps& maps,
                        std::vector<std::uint32_t>& places) const
{
    for (const PlotBar& bar : m_bars) {
        if (rectangle.intersects(rectOf(bar, maps)))
            places.insert(places.end(), bar.places.begin(), bar.places.end());
    }
}

std::size_t BarSeries::countOutside(const QwtInterval& x, const QwtInterval& /*y*/) const
{
    std::size_t outside = 0;
    for (const PlotBar& bar : m_bars) {
        if (bar.from >= x.maxValue() || bar.to <= x.minValue())
            outside += bar.places.size();
    }
    return outside;
}
