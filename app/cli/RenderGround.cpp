#include "app/cli/RenderGround.h"

#include "app/cli/CliArguments.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/raster/Attribution.h"
#include "lum_sdk/raster/RasterImage.h"
#include "lum_sdk/raster/RasterView.h"
#include "lum_sdk/raster/TileImage.h"
#include "lum_sdk/raster/UserBaseMaps.h"

#include <QFileInfo>
#include <QImage>
#include <QPainter>

#include <chrono>

namespace {

constexpr std::chrono::seconds kMostForTiles(120);

QStringList offeredNames()
{
    QStringList names;
    for (const lum::BaseMapList::Entry& entry : lum::userBaseMaps().entries()) {
        if (!entry.isHidden)
            names << QStringLiteral("\"%1\"").arg(entry.map.name);
    }
    return names;
}

bool hasSystem()
{
    return get_project_coord_transform().isValid(static_cast<std::int32_t>(CoordDirection::Target));
}

} // namespace

RenderGround::RenderGround() = default;
RenderGround::~RenderGround() = default;

Outcome RenderGround::choose(const CliArguments& arguments)
{
    const QString name = arguments.option(QStringLiteral("--base-map"));
    if (name.isEmpty())
        return Outcome::done();
    const lum::BaseMap* const map = lum::userBaseMaps().find(name);
    if (map == nullptr)
        return Outcome::refused(QStringLiteral("there is no base map \"%1\"; there are: %2")
                                    .arg(name, offeredNames().join(QStringLiteral(", "))));
    const QString fault = lum::faultOf(*map);
    if (!fault.isEmpty())
        return Outcome::failed(QStringLiteral("Base map \"%1\": %2").arg(name, fault));
    m_baseMap = *map;
    return Outcome::done();
}

Outcome RenderGround::open(const CliArguments& arguments)
{
    if (!m_baseMap.name.isEmpty() && !hasSystem())
        return Outcome::failed(QStringLiteral(
            "The project has no coordinate system, so that no base map can lie under it."));
    for (const QString& file : arguments.options.value(QStringLiteral("--overlay"))) {
        auto overlay = std::make_unique<lum::RasterImage>(file);
        if (!overlay->isUsable())
            return Outcome::failed(overlay->fault());
        m_overlays.push_back(std::move(overlay));
    }
    return Outcome::done();
}

QRectF RenderGround::extent() const
{
    QRectF all;
    for (const auto& overlay : m_overlays)
        all |= overlay->extent(get_project_coord_transform().parameters());
    return all;
}

void RenderGround::paint(const Transform& view, QImage& picture)
{
    lum::RasterView target;
    target.transform = view;
    target.system = basalt::Dictionary(get_project_coord_transform().parameters());
    if (!m_baseMap.name.isEmpty())
        paintBaseMap(target, picture);
    for (const auto& overlay : m_overlays)
        paintOverlay(*overlay, target, picture);
}

void RenderGround::paintBaseMap(const lum::RasterView& view, QImage& picture)
{
    if (lum::isFile(m_baseMap)) {
        lum::RasterImage file(lum::rasterNameOf(m_baseMap, {}));
        paintFile(file, view, picture);
        return;
    }
    lum::TileImage tiles(m_baseMap, lum::userTileFetching());
    if (!tiles.fetchAll(view, kMostForTiles)) {
        const QString trouble = tiles.trouble();
        m_faults << (trouble.isEmpty()
                         ? QStringLiteral("Parts of the base map \"%1\" did not come in time.")
                               .arg(m_baseMap.name)
                         : trouble);
    }
    QPainter painter(&picture);
    tiles.paint(view, painter);
}

void RenderGround::paintOverlay(lum::RasterImage& overlay, const lum::RasterView& view,
                                QImage& picture)
{
    const QRectF extent = overlay.extent(view.system);
    if (!extent.intersects(view.transform.visibleExtent().normalized()))
        m_notices << QStringLiteral("\"%1\" lies outside of the picture.").arg(overlay.path());
    else
        paintFile(overlay, view, picture);
}

void RenderGround::paintFile(lum::RasterImage& file, const lum::RasterView& view, QImage& picture)
{
    QPainter painter(&picture);
    file.paint(view, painter);
    if (!file.fault().isEmpty())
        m_faults << file.fault();
}

void RenderGround::nameSource(QImage& picture) const
{
    QPainter painter(&picture);
    lum::drawAttribution(painter, picture.size(), m_baseMap.attribution);
}
