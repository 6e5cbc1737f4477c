#pragma once

#include "plots/PlotItem.h"

#include <QColor>

/// A number of results, drawn as a bar.
struct PlotBar
{
    double from = 0; ///< on the x axis
    double to = 0;
    double below = 0; ///< the results of the bars that it stands on
    std::vector<std::uint32_t> places;
    QColor color;
    QString text; ///< about it, for the tool tip

    [[nodiscard]] double top() const { return below + double(places.size()); }
};

/// Bars whose height is the number of their results; what of it is selected is filled in another
/// colour. A bar is never narrower than a pixel.
class BarSeries : public PlotItem
{
public:
    /// \param selection outlives the series
    BarSeries(std::vector<PlotBar> bars, const PlotSelection& selection, const QColor& selected);

    void draw(QPainter* painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap,
              const QRectF& canvas) const override;
    [[nodiscard]] std::optional<Hit> hit(const QPointF& at, const PlotMaps& maps,
                                         double reach) const override;
    void collect(const QRectF& rectangle, const PlotMaps& maps,
                 std::vector<std::uint32_t>& places) const override;
    [[nodiscard]] std::size_t countOutside(const QwtInterval& x,
                                           const QwtInterval& y) const override;

private:
    [[nodiscard]] std::size_t selectedOf(const PlotBar& bar) const;

    std::vector<PlotBar> m_bars;
    const PlotSelection& m_selection;
    QColor m_selected;
};
