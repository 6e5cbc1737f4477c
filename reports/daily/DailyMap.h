#pragma once

#include "map/sheet/MapSheet.h"

#include <QSizeF>

class DailyFigures;
class QPainter;
class QRectF;
struct ReportInput;

/// The map of the report: the results of the day in colours by verdict, the others in grey, and the
/// design points that were not staked at its end.
/// \returns without an area when there is no point at all
[[nodiscard]] MapSheet dailyMap(const ReportInput& input, const DailyFigures& figures);

/// Paints it, with frame, coordinates, legend, scale bar and north arrow.
/// \param place in the painter's own dots
/// \param dpi   of the painter
/// \returns false without enough memory
bool paintDailyMap(QPainter& painter, const QRectF& place, MapSheet sheet, double dpi);
