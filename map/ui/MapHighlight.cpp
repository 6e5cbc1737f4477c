#include "map/ui/MapHighlight.h"

#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_desktop_sdkx/IOverlay.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_sdk/Transform.h"

#include <QColor>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kApart = 12;    // pixels between two points that are seen as two
constexpr double kFinest = 0.05; // metres a pixel: the neighbours stay in sight
constexpr double kCoarsest = 1;

/// Map units a pixel at which both positions and the place around them can be told.
double scaleFor(const QPointF& measured, const QPointF& design)
{
    const QPointF offset = design - measured;
    const double length = std::hypot(offset.x(), offset.y());
    return length > 0 ? std::clamp(length / kApart, kFinest, kCoarsest) : kCoarsest;
}

void show(IMapWindow& map, const QPointF& place, double scale)
{
    if (!std::isfinite(place.x()) || !std::isfinite(place.y()))
        return; // nowhere to go
    map.centerOn(place.x(), place.y());
    const Transform& view = map.transform();
    if (view.GetScale() > scale)
        map.zoomAbout(view.size().width() / 2.0, view.size().height() / 2.0,
                      view.GetScale() / scale);
}

} // namespace

namespace desktop {

void highlightOnMap(IDesktopHost& host, const QPointF& measured, const QPointF& design)
{
    auto* const map = host.windows().findAs<IMapWindow>(QStringLiteral("DataMap"));
    if (map == nullptr)
        return;
    host.windows().activate(QStringLiteral("DataMap"));
    show(*map, measured, scaleFor(measured, design));
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
