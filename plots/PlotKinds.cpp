#include "plots/PlotKinds.h"

#include "plots/OffsetPlot.h"

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
