#include "plots/PanelColumn.h"

#include "plots/PlotPanel.h"

#include <qwt_scale_widget.h>

#include <algorithm>

double panels::heightOf(const PlotPanel& panel, const std::vector<PlotPanel*>& all, double height)
{
    const PlotPanel& last = *all.back();
    const double axis = last.axisWidget(QwtPlot::xBottom)->sizeHint().height();
    const double canvas = std::max(1.0, (height - axis) / double(all.size()));
    return canvas + (&panel == &last ? axis : 0);
}

void panels::align(const std::vector<PlotPanel*>& all)
{
    if (all.size() < 2)
        return;
    double widest = 0;
    for (const PlotPanel* const panel : all)
        widest = std::max(widest, panel->yTextWidth());
    for (PlotPanel* const panel : all)
        panel->setYTextWidth(widest);
}
