#include "exchange/DesignKml.h"

#include "exchange/KmlExport.h"
#include "exchange/KmlText.h"

#include <QCoreApplication>

namespace {

bool isReceiver(const DesignPoint& point)
{
    return point.type != 0;
}

const KmlStyle& styleOf(const DesignPoint& point)
{
    return isReceiver(point) ? kKmlReceiver : kKmlSource;
}

} // namespace

Outcome writeDesignKml(const QString& path, const DesignChoice& choice, ICoordTransform& transform,
                       ProgressReporter& progress)
{
    const KmlText text(lum::lengthUnitOf(transform.parameters()));
    return exportKml(
        {path, choice.lines, transform, progress,
         QCoreApplication::translate("DesignCsv", "Export Design Data"), "Design Point",
         "Design Line"},
        choice.points,
        [&](const DesignPoint& point) { return !choice.onlyUnsurveyed || point.status == 0; },
        [&](const DesignPoint& point, KmlLabel& label) {
            label.name = point.pointNumber;
            text.begin(point, isReceiver(point), label.description);
            label.style = &styleOf(point);
        },
        [&](const DesignPoint& first, std::size_t points) {
            return KmlLabel{first.lineNumber, text.ofLine(isReceiver(first), points),
                            &styleOf(first)};
        });
}
