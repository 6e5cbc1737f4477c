#include "map/ui/PointHighlight.h"

#include "lum_desktop_sdkx/ICoordTransformHelper.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_desktop_sdkx/IOverlay.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/LengthUnit.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/Transform.h"
#include "model/DesignPoint.h"
#include "model/SurveyPoint.h"

#include <QColor>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kApart = 12;    // pixels: this far apart, two circles are seen as two
constexpr double kFinest = 0.05; // metres a pixel: the neighbouring points stay in sight
constexpr double kCoarsest = 1;  // metres a pixel

/// The scale, in map units a pixel, at which the two positions are seen as two.
double scaleFor(const QPointF& measured, const QPointF& design)
{
    const IDictionary& system = get_project_coord_transform().parameters();
    const double unitM = lum::lengthUnitOf(system).metres;
    const QPointF offset = design - measured;
    const double lengthM = std::hypot(offset.x(), offset.y()) * unitM;
    const double scaleM =
        lengthM > 0 ? std::clamp(lengthM / kApart, kFinest, kCoarsest) : kCoarsest;
    return scaleM / unitM;
}

/// Centres the map on `place` and zooms in to `scale`, never out.
void goTo(IMapWindow& map, const QPointF& place, double scale)
{
    if (!std::isfinite(place.x()) || !std::isfinite(place.y()))
        return;
    map.centerOn(place.x(), place.y());
    const Transform& view = map.transform();
    if (view.GetScale() > scale)
        map.zoomAbout(view.size().width() / 2.0, view.size().height() / 2.0,
                      view.GetScale() / scale);
}

} // namespace

namespace PointHighlight {

basalt::Dictionary properties()
{
    basalt::Dictionary values;
    values.set("point_radius", "5");
    values.set("vertex_shapes", "cross ring");
    return values;
}

void show(IDesktopHost& host, const QPointF& measured, const QPointF& design)
{
    auto* const map = host.windows().findAs<IMapWindow>(QStringLiteral("DataMap"));
    if (map == nullptr)
        return;
    host.windows().activate(QStringLiteral("DataMap"));
    goTo(*map, measured, scaleFor(measured, design));
    QPolygonF positions;
    positions << measured;
    if (design != measured)
        positions << design;
    IOverlay& overlay = map->overlay(0);
    overlay.clear();
    overlay.setProperties(properties());
    overlay.setLineWidth(2);
    overlay.setColor(Qt::blue);
    overlay.setLine(positions);
    overlay.setVertices(positions);
    map->refreshOverlay();
}

void mark(IDesktopHost& host, const SurveyPoint& point)
{
    zoomTo(host, point);
}

void mark(IDesktopHost& host, const DesignPoint& point)
{
    zoomTo(host, point);
}

void zoomTo(IDesktopHost& host, const SurveyPoint& point)
{
    const ICoordTransformHelper& helper = host.coordTransformHelper();
    const QPointF measured = helper.projectToMap(point.north, point.east);
    const bool hasDesign = point.designNorth != 0 && point.designEast != 0;
    show(host, measured,
         hasDesign ? helper.projectToMap(point.designNorth, point.designEast) : measured);
}

void zoomTo(IDesktopHost& host, const DesignPoint& point)
{
    const QPointF place = host.coordTransformHelper().projectToMap(point.north, point.east);
    show(host, place, place);
}

} // namespace PointHighlight
