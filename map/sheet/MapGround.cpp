#include "map/sheet/MapGround.h"

#include "lum_sdk/raster/RasterImage.h"
#include "lum_sdk/raster/RasterView.h"
#include "lum_sdk/raster/TileImage.h"
#include "lum_sdk/raster/UserBaseMaps.h"

#include <QCoreApplication>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <chrono>
#include <utility>

namespace {

constexpr std::chrono::seconds kMostForTiles(120);
constexpr std::chrono::seconds kStep(1); // of waiting, between two looks whether it is cancelled

/// Device pixels to a screen pixel for which tiles are asked. On a printer a sharper map would need
/// thousands of them, more than services allow.
constexpr double kTileRatio = 1.5;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(MapGround)
};

} // namespace

MapGround::MapGround(const IDictionary& system) : m_system(system) {}

MapGround::~MapGround() = default;

QString MapGround::addOverlay(const QString& file, double opacity)
{
    auto image = std::make_unique<lum::RasterImage>(file);
    if (!image->isUsable())
        return image->fault();
    m_overlays.push_back({std::move(image), opacity});
    return {};
}

QRectF MapGround::extent() const
{
    QRectF all;
    for (const Overlay& overlay : m_overlays)
        all |= overlay.image->extent(m_system);
    return all;
}

void MapGround::paint(const Transform& view, QImage& picture, const std::atomic<bool>* cancelled)
{
    lum::RasterView target;
    target.transform = view;
    target.pixelRatio = picture.devicePixelRatioF();
    target.system = m_system;
    target.cancelled = cancelled;
    if (!m_baseMap.name.isEmpty())
        paintBaseMap(target, picture);
    const QRectF seen = view.visibleExtent();
    for (const Overlay& overlay : m_overlays) {
        if (overlay.image->extent(m_system).intersects(seen))
            paintFile(*overlay.image, target, picture, overlay.opacity);
    }
}

void MapGround::paintBaseMap(const lum::RasterView& view, QImage& picture)
{
    if (!lum::isFile(m_baseMap)) {
        paintTiles(view, picture);
        return;
    }
    if (!m_baseFile)
        m_baseFile = std::make_unique<lum::RasterImage>(lum::rasterNameOf(m_baseMap, {}));
    paintFile(*m_baseFile, view, picture);
}

void MapGround::paintTiles(lum::RasterView view, QImage& picture)
{
    if (!m_tiles)
        m_tiles = std::make_unique<lum::TileImage>(m_baseMap, lum::userTileFetching());
    view.pixelRatio = std::min(view.pixelRatio, kTileRatio);
    fetchTiles(view);
    QPainter painter(&picture);
    if (view.pixelRatio >= picture.devicePixelRatioF()) {
        m_tiles->paint(view, painter);
        return;
    }
    QImage coarse(view.pixels(), QImage::Format_ARGB32_Premultiplied);
    coarse.setDevicePixelRatio(view.pixelRatio);
    coarse.fill(Qt::transparent);
    {
        QPainter coarsePainter(&coarse);
        m_tiles->paint(view, coarsePainter);
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QPointF(0, 0), coarse);
}

void MapGround::fetchTiles(const lum::RasterView& view)
{
    const auto end = lum::RasterView::Clock::now() + kMostForTiles;
    while (!view.isCancelled() && !m_tiles->fetchAll(view, kStep)) {
        const QString trouble = m_tiles->trouble();
        const bool isOver = lum::RasterView::Clock::now() >= end;
        if (trouble.isEmpty() && !isOver)
            continue;
        note(trouble.isEmpty() ? Texts::tr("Parts of the base map \"%1\" did not come in time.")
                                     .arg(m_baseMap.name)
                               : trouble);
        return;
    }
}

void MapGround::paintFile(lum::RasterImage& file, const lum::RasterView& view, QImage& picture,
                          double opacity)
{
    QPainter painter(&picture);
    file.paint(view, painter, opacity);
    note(file.fault());
}

void MapGround::note(const QString& fault)
{
    if (!fault.isEmpty() && !m_faults.contains(fault))
        m_faults << fault;
}

QStringList MapGround::takeFaults()
{
    return std::exchange(m_faults, {});
}

QStringList MapGround::overlaysBeside(const QRectF& extent) const
{
    QStringList beside;
    for (const Overlay& overlay : m_overlays) {
        if (!overlay.image->extent(m_system).intersects(extent))
            beside << Texts::tr("\"%1\" lies outside of the picture.").arg(overlay.image->path());
    }
    return beside;
}
