#include "plots/PlotMouse.h"

#include "plots/StatisticsPlot.h"

#include <QApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QRubberBand>
#include <QTextDocument>
#include <QToolTip>
#include <QWheelEvent>

#include <cmath>

namespace {

constexpr double kWheelStep = 1.25; // a notch
constexpr double kNotch = 120;

} // namespace

PlotMouse::PlotMouse(StatisticsPlot& plot, PlotPanel& panel)
    : QObject(&panel), m_plot(plot), m_panel(panel),
      m_band(new QRubberBand(QRubberBand::Rectangle, panel.canvas()))
{
    panel.canvas()->installEventFilter(this);
}

bool PlotMouse::cancel()
{
    if (!m_drag)
        return false;
    if (m_drag->button == Qt::MiddleButton)
        m_plot.setView(m_panel, m_drag->view);
    m_drag.reset();
    m_band->hide();
    return true;
}

bool PlotMouse::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        return press(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseMove:
        return move(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonRelease:
        return release(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonDblClick:
        return doubleClick(*static_cast<QMouseEvent*>(event));
    case QEvent::Wheel:
        return wheel(*static_cast<QWheelEvent*>(event));
    case QEvent::ToolTip: {
        const auto* const help = static_cast<QHelpEvent*>(event);
        showTip(help->pos(), help->globalPos());
        return true;
    }
    default:
        return QObject::eventFilter(watched, event);
    }
}

bool PlotMouse::press(const QMouseEvent& event)
{
    if (m_drag || (event.button() != Qt::LeftButton && event.button() != Qt::MiddleButton))
        return false;
    m_plot.setFocus(Qt::MouseFocusReason);
    m_drag = Drag{event.button(), event.pos(), m_panel.view()};
    return true;
}

bool PlotMouse::isDragged(const QPoint& at) const
{
    return (at - m_drag->from).manhattanLength() >= QApplication::startDragDistance();
}

bool PlotMouse::move(const QMouseEvent& event)
{
    if (!m_drag)
        return false;
    if (m_drag->button == Qt::MiddleButton) {
        m_plot.setView(m_panel, m_panel.moved(m_drag->view, event.pos() - m_drag->from));
    } else if (m_band->isVisible() || isDragged(event.pos())) {
        m_band->setGeometry(QRect(m_drag->from, event.pos()).normalized());
        m_band->show();
    }
    return true;
}

bool PlotMouse::release(const QMouseEvent& event)
{
    if (!m_drag || event.button() != m_drag->button)
        return false;
    const bool hasBand = m_band->isVisible();
    const QRectF band = QRect(m_drag->from, event.pos()).normalized();
    m_band->hide();
    m_drag.reset();
    if (event.button() != Qt::LeftButton)
        return true;
    if (hasBand && m_plot.mouse() == StatisticsPlot::Mouse::Zoom)
        m_plot.setView(m_panel, m_panel.inside(band));
    else if (hasBand)
        m_plot.select(m_panel, band);
    else
        m_plot.pick(m_panel, event.pos());
    return true;
}

bool PlotMouse::doubleClick(const QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton)
        return false;
    m_plot.open(m_panel, event.pos());
    return true;
}

bool PlotMouse::wheel(const QWheelEvent& event)
{
    const double notches = event.angleDelta().y() / kNotch;
    if (!m_drag && notches != 0)
        m_plot.setView(m_panel, m_panel.zoomed(event.position(), std::pow(kWheelStep, -notches)));
    return true; // what lies around does not scroll
}

void PlotMouse::showTip(const QPoint& at, const QPoint& global) const
{
    const QString text = m_plot.tipAt(m_panel, at);
    if (text.isEmpty())
        QToolTip::hideText();
    else // a name is no markup
        QToolTip::showText(global, Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal),
                           m_panel.canvas());
}
