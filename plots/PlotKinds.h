#pragma once

#include <QString>

#include <memory>
#include <span>
#include <string_view>

class StatisticsPlot;
class QWidget;

/// A kind of plot.
struct PlotKind
{
    const char* name;    ///< in settings
    const char* caption; ///< in English
    std::unique_ptr<StatisticsPlot> (*make)(QWidget* parent);

    [[nodiscard]] QString captionText() const; ///< translated
};

/// All kinds, in the order in which they are offered.
[[nodiscard]] std::span<const PlotKind> plotKinds();

/// Null when there is none of this name.
[[nodiscard]] const PlotKind* findPlotKind(std::string_view name);
