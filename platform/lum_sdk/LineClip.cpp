#include "lum_sdk/LineClip.h"

#include <QRectF>

#include <algorithm>
#include <cmath>

namespace {

/// Cuts the range [from, to] of the line's parameter down to where `start + t * step` lies between
/// `low` and `high`.
/// \returns false when nothing is left
bool cut(double start, double step, double low, double high, double& from, double& to)
{
    if (step == 0)
        return start >= low && start <= high;
    const double atLow = (low - start) / step;
    const double atHigh = (high - start) / step;
    from = std::max(from, std::min(atLow, atHigh));
    to = std::min(to, std::max(atLow, atHigh));
    return from <= to;
}

} // namespace

std::optional<QLineF> clippedLine(const QLineF& line, const QRectF& area)
{
    if (!std::isfinite(line.dx()) || !std::isfinite(line.dy()))
        return std::nullopt;
    double from = 0;
    double to = 1;
    if (!cut(line.x1(), line.dx(), area.left(), area.right(), from, to) ||
        !cut(line.y1(), line.dy(), area.top(), area.bottom(), from, to))
        return std::nullopt;
    return QLineF(line.pointAt(from), line.pointAt(to));
}
