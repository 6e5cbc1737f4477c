#include "lum_desktop_sdkx/MapHighlight.h"

#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_desktop_sdkx/IOverlay.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"

#include <QColor>
#include <QPolygonF>

namespace desktop {

void highlightOnMap(IDesktopHost& host, const QPointF& measured, const QPointF& design)
{
    auto* const map = host.windows().findAs<IMapWindow>(QStringLiteral("DataMap"));
    if (map == nullptr)
        return;
    host.windows().activate(QStringLiteral("DataMap"));
    map->centerOn(measured.x(), measured.y());
    basalt::Dictionary properties;
    properties.set("point_radius", "5");
    QPolygonF positions;
    positions << measured << design;
    IOverlay& overlay = map->overlay(0);
    overlay.clear();
    overlay.setProperties(properties);
    overlay.setLineWidth(2);
    overlay.setColor(Qt::blue);
    overlay.setLine(positions);
    overlay.setVertices(positions);
    map->refreshOverlay();
}

} // namespace desktop
