#include "map/ui/PointHighlight.h"

#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/ICoordTransformHelper.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_desktop_sdkx/IOverlay.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/LengthUnit.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/Transform.h"
#include "map/ui/FindDataLayer.h"
#include "map/ui/FreePart.h"
#include "map/ui/IDataLayer.h"
#include "model/DesignPoint.h"
#include "model/SurveyPoint.h"

#include <QColor>
#include <QPolygonF>
#include <QRegion>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kApart = 12;    // pixels: this far apart, two circles are seen as two
constexpr double kFinest = 0.05; // metres a pixel: the neighbouring points stay in sight
constexpr double kCoarsest = 1;  // metres a pixel
constexpr double kEdge = 8;      // pixels: the reach of a mark

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

bool isFinite(const QPointF& place)
{
    return std::isfinite(place.x()) && std::isfinite(place.y());
}

/// Whether a mark at `place` can be seen whole.
bool isInView(const IMapWindow& map, const QPointF& place)
{
    const Transform& view = map.transform();
    const QPointF screen = view.SurveyToScreen(place);
    const bool isInside = QRectF(QPointF(0, 0), QSizeF(view.size()))
                              .adjusted(kEdge, kEdge, -kEdge, -kEdge)
                              .contains(screen);
    if (!isInside)
        return false;
    const QRectF mark(screen - QPointF(kEdge, kEdge), QSizeF(2 * kEdge, 2 * kEdge));
    return (QRegion(mark.toAlignedRect()) - map.uncovered()).isEmpty();
}

/// Moves the map so that `place` comes to the middle of what the user sees. \returns that middle
QPointF moveTo(IMapWindow& map, const QPointF& place)
{
    const Transform& view = map.transform();
    const QPointF middle = freePart(map).center();
    const QPointF aside = view.ScreenToSurvey(QRectF(QPointF(0, 0), QSizeF(view.size())).center()) -
                          view.ScreenToSurvey(middle);
    map.centerOn(place.x() + aside.x(), place.y() + aside.y());
    return middle;
}

/// Moves the map to `place` and zooms in to `scale`, never out.
void goTo(IMapWindow& map, const QPointF& place, double scale)
{
    const QPointF middle = moveTo(map, place);
    if (map.transform().GetScale() > scale)
        map.zoomAbout(middle.x(), middle.y(), map.transform().GetScale() / scale);
}

/// A mark that is to be drawn. The first position is the one that the map moves to.
struct Mark
{
    PointHighlight::Kind kind;
    QPolygonF positions;
};

Mark markOf(IDesktopHost& host, const SurveyPoint& point)
{
    const ICoordTransformHelper& helper = host.coordTransformHelper();
    Mark mark{PointHighlight::Kind::Result, {}};
    mark.positions << helper.projectToMap(point.north, point.east);
    if (hasDesignPosition(point))
        mark.positions << helper.projectToMap(point.designNorth, point.designEast);
    return mark;
}

Mark markOf(IDesktopHost& host, const DesignPoint& point)
{
    QPolygonF place;
    place << host.coordTransformHelper().projectToMap(point.north, point.east);
    return {PointHighlight::Kind::Design, place};
}

IMapWindow* mapOf(IDesktopHost& host)
{
    return host.windows().findAs<IMapWindow>(QStringLiteral("DataMap"));
}

/// Draws the mark on the map.
/// \returns false, and draws nothing, when its position is no number
bool show(IMapWindow& map, const Mark& mark)
{
    const bool hasPlace = isFinite(mark.positions.first());
    if (hasPlace)
        PointHighlight::draw(map, mark.kind, mark.positions);
    else
        PointHighlight::clear(map);
    return hasPlace;
}

void bringIntoView(IMapWindow& map, const QPointF& place)
{
    if (isFinite(place) && !isInView(map, place))
        moveTo(map, place);
}

void showInView(IMapWindow& map, const Mark& mark)
{
    if (show(map, mark))
        bringIntoView(map, mark.positions.first());
}

/// The places that are numbers; of thousands, one in so many.
QPolygonF placesToMark(const QPolygonF& places)
{
    constexpr int kMost = 3000;
    const int step = 1 + places.size() / kMost;
    QPolygonF marked;
    for (int i = 0; i < places.size(); i += step) {
        if (isFinite(places[i]))
            marked << places[i];
    }
    return marked;
}

/// The place nearest to the middle of all.
QPointF middleOf(const QPolygonF& places)
{
    QPointF sum;
    for (const QPointF& place : places)
        sum += place;
    const QPointF middle = sum / places.size();
    return *std::ranges::min_element(places, {}, [&](const QPointF& place) {
        return std::hypot(place.x() - middle.x(), place.y() - middle.y());
    });
}

void drawGroup(IMapWindow& map, const QPolygonF& places)
{
    basalt::Dictionary properties;
    properties.set("point_radius", "3");
    IOverlay& overlay = map.overlay(0);
    overlay.clear();
    overlay.setProperties(properties);
    overlay.setColor(Qt::blue);
    overlay.setVertices(places);
    map.refreshOverlay();
}

/// \param list the window that the map must not cover
void showNear(IDesktopHost& host, const Mark& mark, const char* list)
{
    IMapWindow* const map = mapOf(host);
    if (map == nullptr || !show(*map, mark))
        return;
    host.windows().reveal(QStringLiteral("DataMap"), {QLatin1String(list)});
    goTo(*map, mark.positions.first(), scaleFor(mark.positions.first(), mark.positions.last()));
}

} // namespace

namespace PointHighlight {

void draw(IMapWindow& map, Kind kind, const QPolygonF& positions)
{
    basalt::Dictionary properties;
    properties.set("point_radius", "5");
    properties.set("vertex_shapes", "cross ring");
    IOverlay& overlay = map.overlay(0);
    overlay.clear();
    overlay.setProperties(properties);
    overlay.setLineStyle(Qt::DashLine);
    overlay.setColor(kind == Kind::Design ? Qt::red : Qt::blue);
    if (kind == Kind::Result) {
        overlay.setLine(positions);
        overlay.setVertices(positions);
    } else {
        overlay.setPoint(positions.first());
    }
    map.refreshOverlay();
}

void clear(IMapWindow& map)
{
    map.overlay(0).clear();
    map.refreshOverlay();
}

void clear(IDesktopHost& host)
{
    if (IMapWindow* const map = mapOf(host))
        clear(*map);
}

void mark(IDesktopHost& host, const SurveyPoint& point)
{
    if (IMapWindow* const map = mapOf(host))
        showInView(*map, markOf(host, point));
}

void mark(IDesktopHost& host, const DesignPoint& point)
{
    if (IMapWindow* const map = mapOf(host))
        showInView(*map, markOf(host, point));
}

void markStation(IDesktopHost& host, int index)
{
    const IDataLayer* const layer = findDataLayer(host);
    QPointF place;
    if (layer != nullptr && layer->GetBasePosition(index, place))
        showInView(*mapOf(host), {Kind::Station, QPolygonF(QVector<QPointF>{place})});
}

bool markGroup(IDesktopHost& host, const QPolygonF& places)
{
    IMapWindow* const map = mapOf(host);
    if (map == nullptr)
        return !places.isEmpty();
    const QPolygonF marked = placesToMark(places);
    drawGroup(*map, marked);
    if (!marked.isEmpty())
        ::bringIntoView(*map, middleOf(marked));
    return !marked.isEmpty();
}

void zoomToGroup(IDesktopHost& host, const QPolygonF& places)
{
    constexpr double kMargin = 0.1; // of the width and height
    if (!markGroup(host, places))
        return;
    IMapWindow* const map = mapOf(host);
    if (map == nullptr)
        return;
    host.windows().reveal(QStringLiteral("DataMap"), {});
    const QRectF all = placesToMark(places).boundingRect();
    if (all.width() <= 0 && all.height() <= 0)
        return; // at one place, which is in view
    const double aside = std::max(all.width(), all.height()) * kMargin;
    map->zoomRect(all.left() - aside, all.top() - aside, all.right() + aside, all.bottom() + aside);
}

void bringIntoView(IDesktopHost& host, const SurveyPoint& point)
{
    if (IMapWindow* const map = mapOf(host))
        ::bringIntoView(*map, markOf(host, point).positions.first());
}

void bringIntoView(IDesktopHost& host, const DesignPoint& point)
{
    if (IMapWindow* const map = mapOf(host))
        ::bringIntoView(*map, markOf(host, point).positions.first());
}

void zoomTo(IDesktopHost& host, const SurveyPoint& point)
{
    showNear(host, markOf(host, point), "Survey Data List");
}

void zoomTo(IDesktopHost& host, const DesignPoint& point)
{
    showNear(host, markOf(host, point), "Design Data List");
}

} // namespace PointHighlight
