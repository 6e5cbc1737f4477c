#include "plots/PlotKinds.h"

#include "plots/BaseDifferencePlot.h"
#include "plots/DayQualityPlot.h"
#include "plots/DistancePlot.h"
#include "plots/LineHeightPlot.h"
#include "plots/OffsetPlot.h"
#include "plots/ProgressPlot.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace {

template <class Plot>
std::unique_ptr<StatisticsPlot> makePlot(QWidget* parent)
{
    return std::make_unique<Plot>(parent);
}

constexpr std::array kKinds{
    PlotKind{"offsets", QT_TRANSLATE_NOOP("PlotKinds", "Offsets from the design"),
             makePlot<OffsetPlot>},
    PlotKind{"distances", QT_TRANSLATE_NOOP("PlotKinds", "Horizontal distances"),
             makePlot<DistancePlot>},
    PlotKind{"heights", QT_TRANSLATE_NOOP("PlotKinds", "Height differences along the lines"),
             makePlot<LineHeightPlot>},
    PlotKind{"bases", QT_TRANSLATE_NOOP("PlotKinds", "Points measured twice, by base"),
             makePlot<BaseDifferencePlot>},
    PlotKind{"day", QT_TRANSLATE_NOOP("PlotKinds", "Accuracy and satellites over the day"),
             makePlot<DayQualityPlot>},
    PlotKind{"progress", QT_TRANSLATE_NOOP("PlotKinds", "Progress"), makePlot<ProgressPlot>},
};

} // namespace

QString PlotKind::captionText() const
{
    return QCoreApplication::translate("PlotKinds", caption);
}

std::span<const PlotKind> plotKinds()
{
    return kKinds;
}

const PlotKind* findPlotKind(std::string_view name)
{
    const auto* const found = std::find_if(
        kKinds.begin(), kKinds.end(), [name](const PlotKind& kind) { return kind.name == name; });
    return found == kKinds.end() ? nullptr : found;
}
