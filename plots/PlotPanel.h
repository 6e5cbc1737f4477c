#pragma once

#include "plots/PlotItem.h"
#include "plots/PlotLook.h"
#include "plots/PlotRanges.h"
#include "plots/PlotScales.h"

#include <qwt_plot.h>

#include <memory>

class QwtPlotGrid;

/// A rectangle with data and axes; a plot has one or some below each other.
class PlotPanel : public QwtPlot
{
    Q_OBJECT

public:
    /// The ranges that are seen.
    struct View
    {
        QwtInterval x;
        QwtInterval y;
    };

    explicit PlotPanel(QWidget* parent);

    /// Removes all data.
    void clear();
    /// Colours of axes, grid and canvas; the data bring theirs.
    void setLook(const PlotLook& look);
    void setAxes(PlotScale x, const QString& xTitle, const QString& yTitle);
    /// The same for an x axis with ticks of its own, which become the panel's.
    void setAxes(QwtScaleEngine* xEngine, QwtScaleDraw* xDraw, const QString& xTitle,
                 const QString& yTitle);
    /// Whether ticks and texts of the x axis are seen; not where the panel below has them, too.
    void setXAxisShown(bool isShown);
    /// A metre is equally long on both axes.
    void setEqualAxes() { m_hasEqualAxes = true; }
    /// The y axis counts, and always begins at 0: bars.
    void setCounting();
    void setRanges(const PlotRanges& x, const PlotRanges& y);

    /// Adds data that can be picked.
    void add(std::unique_ptr<PlotItem> item);
    /// Adds anything else.
    /// \param z above 20 it lies over the data
    void addPlain(std::unique_ptr<QwtPlotItem> item, double z);
    /// A line across the canvas.
    void addHorizontal(double y, const QPen& pen);
    void addVertical(double x, const QPen& pen);

    [[nodiscard]] View view() const;
    /// Keeps within what can be shown and in front of 0, where that is asked for, and shows it.
    void setView(View view);
    [[nodiscard]] View usualView() const { return {m_x.usual, m_y.usual}; }
    [[nodiscard]] View wholeView() const { return {m_x.all, m_y.all}; }
    /// Enlarges about a place of the canvas.
    /// \param factor of the shown ranges, below 1 to see less
    [[nodiscard]] View zoomed(const QPointF& about, double factor) const;
    /// Moved by pixels of the canvas, to the right and downwards.
    [[nodiscard]] View moved(const View& from, const QPointF& byPixels) const;
    /// What is in a rectangle of the canvas.
    [[nodiscard]] View inside(const QRectF& rectangle) const;

    [[nodiscard]] PlotMaps maps() const;
    [[nodiscard]] const std::vector<PlotItem*>& items() const { return m_items; }
    /// A value of this panel's axes, a line each.
    [[nodiscard]] QString valueText(const QPointF& value) const;

    /// Fits ticks and ranges to a picture of this size, logical pixels, until `fitToScreen`.
    void fitToPaper(const QSizeF& size);
    void fitToScreen();
    /// What ticks, texts and title of the y axis take.
    [[nodiscard]] double yTextWidth() const;
    /// At least what they shall take, so that several canvases begin at the same place.
    void setYTextWidth(double width);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    /// As many ticks as have room for their texts; a title that has room.
    void setTickCounts(const QSizeF& size);
    void showTitle(int axis, const QString& title);
    void setTexts(const QString& xTitle, const QString& yTitle);
    void layOutOnPaper();
    [[nodiscard]] double yTitleWidth() const; ///< 0 without one
    [[nodiscard]] View fitted(const View& view) const;
    [[nodiscard]] QwtInterval allowed(const QwtInterval& wanted, const PlotRanges& ranges) const;

    QwtPlotGrid* m_grid;
    PlotLook m_look;
    PlotScale m_xScale = PlotScale::Number;
    QString m_xTitle;
    QString m_yTitle;
    PlotRanges m_x;
    PlotRanges m_y;
    View m_asked;                   ///< before it was fitted to the canvas
    QSizeF m_canvas;                ///< the size of what is between the axes
    QSizeF m_paper;                 ///< empty on the screen
    std::vector<PlotItem*> m_items; ///< the base class owns them
    bool m_hasEqualAxes = false;
    bool m_isCounting = false;
};
