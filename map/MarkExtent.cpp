#include "map/MarkExtent.h"

#include <cmath>

namespace {
constexpr double kShortest = 1e-7;
constexpr double kInstead = 10;
} // namespace

QRectF markExtent(const Bounds& grid, const ToMap& toMap)
{
    const QPointF low = grid.isEmpty() ? toMap(0, 0) : toMap(grid.minX, grid.minY);
    const QPointF high = grid.isEmpty() ? low : toMap(grid.maxX, grid.maxY);
    QRectF extent = QRectF(low, high).normalized();
    if (std::abs(extent.width()) < kShortest)
        extent.setWidth(kInstead);
    if (std::abs(extent.height()) < kShortest)
        extent.setHeight(kInstead);
    return extent;
}
