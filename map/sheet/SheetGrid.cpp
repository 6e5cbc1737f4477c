#include "map/sheet/SheetGrid.h"

#include "lum_sdk/coords/CoordProjections.h"
#include "lum_sdk/raster/ScaleBar.h"
#include "map/sheet/SheetLayout.h"
#include "map/sheet/SheetSetup.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kWidestStep = 230; // pixels on A4; the step is at least 0.4 of it
constexpr double kMostLines = 1000;

/// Calls `add` with each multiple of `step` between two map coordinates, from the lower one on.
template <class Add>
void forMultiples(double low, double high, double step, const Add& add)
{
    const double first = std::ceil(low / step);
    const auto count = static_cast<int>(std::min(std::floor(high / step) - first, kMostLines));
    for (int i = 0; i <= count; ++i)
        add((first + i) * step);
}

} // namespace

SheetGrid::SheetGrid(const SheetLayout& layout, const SheetSetup& setup)
{
    const double step = lum::roundLength(kWidestStep * layout.typeScale * layout.view.GetScale());
    const int decimals = std::max(0, static_cast<int>(-std::floor(std::log10(step) + 1e-9)));
    const lum::PlaneAxes axes = lum::planeAxes(setup.system);
    const auto label = [&](double coordinate, bool isTurned, char usual, char turned) {
        const double own = (isTurned ? -coordinate : coordinate) + 0.0; // no "-0"
        return QString::number(own, 'f', decimals) + QLatin1Char(' ') +
               QLatin1Char(isTurned ? turned : usual);
    };
    const QRectF seen = layout.visibleExtent();
    forMultiples(seen.left(), seen.right(), step, [&](double x) {
        eastings.push_back({layout.view.SurveyToScreen(x, 0).x(), label(x, axes.isWest, 'E', 'W')});
    });
    forMultiples(seen.top(), seen.bottom(), step, [&](double y) {
        northings.push_back(
            {layout.view.SurveyToScreen(0, y).y(), label(y, axes.isSouth, 'N', 'S')});
    });
    std::reverse(northings.begin(), northings.end());
}
