#pragma once

#include "protocol/Outcome.h"

class QImage;
class StatisticsPlot;

/// Writes a plot to a file whose ending is one of `StatisticsPlot::fileEndings`.
[[nodiscard]] Outcome savePlot(StatisticsPlot& plot, const QString& path);

/// A plot with a margin, as large as on the screen or larger, in twice the resolution.
[[nodiscard]] QImage pictureOf(StatisticsPlot& plot);
