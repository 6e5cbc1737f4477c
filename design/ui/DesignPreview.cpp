#include "design/ui/DesignPreview.h"

#include "lum_desktop_sdkx/ICoordTransformHelper.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_desktop_sdkx/IOverlay.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_sdk/Transform.h"
#include "map/DesignPicture.h"
#include "map/ui/FreePart.h"

#include <algorithm>

namespace {

constexpr int kOverlay = 1;
constexpr int kLineWidth = 2;
constexpr double kMargin = 0.1; // of the free part of the map, on each side

/// The corners of a grid on the map, those of the first line first.
struct Corners
{
    QPointF start, firstEnd, lastStart, lastEnd;
};

std::optional<Corners> cornersOf(const DesignGrid& grid, IDesktopHost& host)
{
    const auto outline = GridOutline::of(grid);
    if (!outline)
        return {};
    const auto place = [&](const DesignPlace& corner) {
        return host.coordTransformHelper().projectToMap(corner[0], corner[1]);
    };
    return Corners{place(outline->firstLine[0]), place(outline->firstLine[1]),
                   place(outline->lastLine[0]), place(outline->lastLine[1])};
}

void addGrid(IOverlay& overlay, const Corners& corners, const QColor& color)
{
    const auto add = [&](const QPointF& from, const QPointF& to, Qt::PenStyle style,
                         bool hasArrow) {
        overlay.addLine(
            {QPolygonF(QVector<QPointF>{from, to}), color, kLineWidth, style, hasArrow});
    };
    add(corners.firstEnd, corners.lastEnd, Qt::DashLine, false);
    add(corners.start, corners.lastStart, Qt::DashLine, true);
    add(corners.lastStart, corners.lastEnd, Qt::SolidLine, false);
    add(corners.start, corners.firstEnd, Qt::SolidLine, true);
}

QRectF extentOf(const Corners& corners)
{
    const QPolygonF all(
        QVector<QPointF>{corners.start, corners.firstEnd, corners.lastStart, corners.lastEnd});
    constexpr double kLeast = 1; // a grid may be a single point
    return all.boundingRect().adjusted(-kLeast, -kLeast, kLeast, kLeast);
}

} // namespace

IMapWindow* DesignPreview::map() const
{
    return m_host.windows().findAs<IMapWindow>(QStringLiteral("DataMap"));
}

void DesignPreview::show(const std::vector<DesignGrid>& grids)
{
    IMapWindow* const shown = map();
    if (shown == nullptr)
        return;
    IOverlay& overlay = shown->overlay(kOverlay);
    overlay.clear();
    m_extent = QRectF();
    for (auto grid = grids.rbegin(); grid != grids.rend(); ++grid) { // the first one lies on top
        if (const auto corners = cornersOf(*grid, m_host)) {
            addGrid(overlay, *corners, designColor(static_cast<int>(grid->kind)));
            m_extent = extentOf(*corners);
        }
    }
    shown->refreshOverlay();
}

bool DesignPreview::isInView() const
{
    const IMapWindow* const shown = map();
    if (shown == nullptr || m_extent.isNull())
        return true;
    const Transform& view = shown->transform();
    return freePart(*shown).contains(
        QRectF(view.SurveyToScreen(m_extent.topLeft()), view.SurveyToScreen(m_extent.bottomRight()))
            .normalized());
}

void DesignPreview::bringIntoView()
{
    IMapWindow* const shown = map();
    if (shown == nullptr || m_extent.isNull())
        return;
    m_host.windows().activate(QStringLiteral("DataMap"));
    const QRectF room = freePart(*shown);
    const QSizeF size = shown->transform().size();
    const double share = 1 - 2 * kMargin;
    const double scale = std::max(m_extent.width() / (room.width() * share),
                                  m_extent.height() / (room.height() * share));
    // The screen's y points the other way.
    const double left = m_extent.center().x() - room.center().x() * scale;
    const double top = m_extent.center().y() + room.center().y() * scale;
    shown->zoomRect(left, top, left + size.width() * scale, top - size.height() * scale);
}
