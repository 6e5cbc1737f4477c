#pragma once

#include "plots/PlotPanel.h"

#include <QObject>
#include <QPoint>

#include <optional>

class QMouseEvent;
class QRubberBand;
class QWheelEvent;
class StatisticsPlot;

/// What mouse and wheel do on the canvas of a panel: the wheel zooms, the middle button pans, a
/// drag with the left one marks a rectangle, a click picks. Escape ends a drag.
class PlotMouse : public QObject
{
    Q_OBJECT

public:
    /// \param panel of the plot; becomes the parent
    PlotMouse(StatisticsPlot& plot, PlotPanel& panel);

    /// \returns false when there was no drag
    bool cancel();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Drag
    {
        Qt::MouseButton button = Qt::NoButton;
        QPoint from;
        PlotPanel::View view; ///< when it began
    };
    bool press(const QMouseEvent& event);
    bool move(const QMouseEvent& event);
    bool release(const QMouseEvent& event);
    bool doubleClick(const QMouseEvent& event);
    bool wheel(const QWheelEvent& event);
    void showTip(const QPoint& at, const QPoint& global) const;
    [[nodiscard]] bool isDragged(const QPoint& at) const;

    StatisticsPlot& m_plot;
    PlotPanel& m_panel;
    QRubberBand* m_band;
    std::optional<Drag> m_drag;
};
