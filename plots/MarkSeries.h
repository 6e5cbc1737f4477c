#pragma once

#include "plots/MarkPicture.h"
#include "plots/PlotItem.h"

#include <QColor>

class Disc;

/// A result in a plot.
struct PlotMark
{
    double x = 0;
    double y = 0;
    std::uint32_t place = 0; ///< in the sample
    std::uint8_t color = 0;  ///< which of the colours
};

/// Many results as small discs, the selected ones above all.
///
/// They are stamped into a picture, each place of it once a colour, which follows the mouse without
/// being drawn anew. Where few are drawn on paper they stay single discs.
class MarkSeries : public PlotItem
{
public:
    enum class Order
    {
        ByColor, ///< those of later colours lie above those of earlier ones
        Mixed    ///< only the first colour lies below the others, of which none hides another
    };

    /// \param marks     with values that are shown (`isShown`)
    /// \param selection outlives the series
    MarkSeries(std::vector<PlotMark> marks, std::vector<QColor> colors,
               const PlotSelection& selection, const QColor& selected, const QColor& ring,
               Order order = Order::ByColor);

    void draw(QPainter* painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap,
              const QRectF& canvas) const override;
    [[nodiscard]] std::optional<Hit> hit(const QPointF& at, const PlotMaps& maps,
                                         double reach) const override;
    void collect(const QRectF& rectangle, const PlotMaps& maps,
                 std::vector<std::uint32_t>& places) const override;
    [[nodiscard]] std::size_t countOutside(const QwtInterval& x,
                                           const QwtInterval& y) const override;

private:
    /// \param ratio device pixels to a logical one
    void drawPicture(QPainter& painter, const PlotMaps& maps, const QRectF& canvas,
                     double ratio) const;
    /// \param discs of the colours, then of what is selected
    void drawInto(QImage& image, const PixelScale& x, const PixelScale& y,
                  const std::vector<Disc>& discs) const;
    void drawSingly(QPainter& painter, const PlotMaps& maps, const QRectF& canvas) const;
    [[nodiscard]] bool isSelected(const PlotMark& mark) const
    {
        return mark.place < m_selection.size() && m_selection[mark.place];
    }

    std::vector<PlotMark> m_marks;
    std::vector<QColor> m_colors;
    const PlotSelection& m_selection;
    QColor m_selected;
    QColor m_ring;
    double m_radius; ///< logical pixels
    mutable MarkPicture m_picture;
    mutable PlotSelection m_drawnSelection; ///< that of the picture
};
