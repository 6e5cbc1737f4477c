#pragma once

class QPainter;
class QRectF;
class StatisticsPlot;

/// Paints a plot, in the colours that it has, with title, legend, panels and note. The panels are
/// fitted to the paper then.
/// \param rectangle as in `StatisticsPlot::paint`
void paintOnPaper(const StatisticsPlot& plot, QPainter& painter, const QRectF& rectangle);
