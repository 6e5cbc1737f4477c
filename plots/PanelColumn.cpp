#include "plots/PanelColumn.h"

#include "lum_sdk/DpiScale.h"
#include "plots/PlotPanel.h"

#include <QScopedValueRollback>
#include <qwt_scale_widget.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr QSize kLeastCanvas(120, 24); // two ticks have room beside it

} // namespace

PlotPanel& PanelColumn::addPanel()
{
    auto* const panel = new PlotPanel(this);
    m_panels.push_back(panel);
    return *panel;
}

int PanelColumn::axisHeight() const
{
    return m_panels.back()->axisWidget(QwtPlot::xBottom)->sizeHint().height();
}

double PanelColumn::heightOf(const PlotPanel& panel, double height) const
{
    const int axis = axisHeight();
    const double canvas = std::max(1.0, (height - axis) / double(m_panels.size()));
    return canvas + (&panel == m_panels.back() ? axis : 0);
}

void PanelColumn::alignTexts()
{
    if (m_panels.size() < 2)
        return;
    double widest = 0;
    for (const PlotPanel* const panel : m_panels)
        widest = std::max(widest, panel->yTextWidth());
    for (PlotPanel* const panel : m_panels)
        panel->setYTextWidth(widest);
}

void PanelColumn::align()
{
    if (m_isAligning)
        return;
    const QScopedValueRollback isAligning(m_isAligning, true);
    placePanels();
    placePanels(); // the axis may be higher for the new width
    alignTexts();
}

void PanelColumn::placePanels()
{
    double top = 0;
    for (PlotPanel* const panel : m_panels) {
        const double bottom = top + heightOf(*panel, height());
        const int y = int(std::lround(top));
        panel->setGeometry(0, y, width(), int(std::lround(bottom)) - y);
        top = bottom;
    }
}

QSize PanelColumn::minimumSizeHint() const
{
    return {dpi_scaled(kLeastCanvas.width()),
            dpi_scaled(kLeastCanvas.height()) * int(m_panels.size()) + axisHeight()};
}

void PanelColumn::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    align();
    Q_EMIT resized();
}
