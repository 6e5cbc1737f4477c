#pragma once

#include <QPointF>
#include <QRectF>
#include <QString>
#include <qwt_interval.h>
#include <qwt_plot_item.h>
#include <qwt_scale_map.h>

#include <cstdint>
#include <optional>
#include <vector>

/// The results that the user has selected, by place in the sample.
using PlotSelection = std::vector<bool>;

/// Where screen pixels are on the axes.
struct PlotMaps
{
    QwtScaleMap x;
    QwtScaleMap y;

    [[nodiscard]] QPointF toScreen(double atX, double atY) const
    {
        return {x.transform(atX), y.transform(atY)};
    }
};

/// Data of a plot that can be picked.
class PlotItem : public QwtPlotItem
{
public:
    /// What lies under a place of the screen.
    struct Hit
    {
        std::vector<std::uint32_t> places; ///< of the results, as in the sample
        std::optional<QPointF> value;      ///< on the axes; none for a group of results
        QString text;                      ///< about the group
    };

    /// Nothing when nothing lies there.
    /// \param reach pixels
    [[nodiscard]] virtual std::optional<Hit> hit(const QPointF& at, const PlotMaps& maps,
                                                 double reach) const = 0;
    /// Adds the results that lie in a rectangle of the screen.
    virtual void collect(const QRectF& rectangle, const PlotMaps& maps,
                         std::vector<std::uint32_t>& places) const = 0;
    /// How many results lie outside of these ranges.
    [[nodiscard]] virtual std::size_t countOutside(const QwtInterval& x,
                                                   const QwtInterval& y) const = 0;
};
