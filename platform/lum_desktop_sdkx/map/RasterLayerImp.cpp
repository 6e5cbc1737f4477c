#include "lum_desktop_sdkx/map/RasterLayerImp.h"

#include "basalt_utilities/ILogger.h"
#include "basalt_utilities/KeyList.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_desktop_sdkx/LayerPicture.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/events/EventNames.h"
#include "lum_sdk/events/PlatformEvents.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/files/SystemKeys.h"
#include "lum_sdk/raster/RasterImage.h"
#include "lum_sdk/raster/TileImage.h"
#include "lum_sdk/raster/UserBaseMaps.h"

#include <QPainter>

#include <utility>

namespace {

bool hasSystem()
{
    return get_project_coord_transform().isValid(static_cast<std::int32_t>(CoordDirection::Target));
}

} // namespace

QString RasterLayerImp::Picture::trouble() const
{
    if (tiles)
        return tiles->trouble();
    return file ? file->fault() : QString();
}

RasterLayerImp::RasterLayerImp(const char* config, IDesktopHost* host)
    : m_host(*host),
      m_subscription(*this,
                     lum::eventNames({events::kUpdateSystemStatus, events::kProjectChanged,
                                      events::kSettingViewFinished}),
                     host->eventManager())
{
    m_properties.set("listed", "0"); // the list of layers leaves it out: a command shows it
    csa_to_dictionary(m_properties, config != nullptr ? config : "");
}

RasterLayerImp::~RasterLayerImp() = default;

std::string RasterLayerImp::GetName() const
{
    return std::string(m_properties.text("layer_name", "RasterLayerImp"));
}

void RasterLayerImp::SetTransform(const Transform* /*transform*/) {}

bool RasterLayerImp::IsVisible() const
{
    return m_shown && m_properties.integer("visible", 1) != 0;
}

void RasterLayerImp::Paint(const PaintTarget& target, const QRectF& /*view*/, QPainter& painter)
{
    const Picture picture = [this] {
        const std::lock_guard lock(m_mutex);
        return m_picture;
    }();
    const lum::RasterView view{target.transform, target.pixelRatio, target.system, target.cancelled,
                               target.deadline};
    if (picture.tiles)
        picture.tiles->paint(view, painter);
    if (!picture.file)
        return;
    if (!picture.file->paint(view, painter))
        target.leaveRest();
    QMetaObject::invokeMethod(this, &RasterLayerImp::tellTrouble, Qt::QueuedConnection);
}

void RasterLayerImp::handleEvent(const char* /*eventName*/, const char* /*payload*/,
                                 int /*reserved*/)
{
    follow();
}

/// Shows what status, document and the user's choice ask for.
void RasterLayerImp::follow()
{
    const bool isOn = get_system_status_dictionary().integer(status::kUseGrid) == 1 &&
                      m_host.hasDocument() && hasSystem();
    const lum::BaseMap* const wanted = isOn ? lum::lastBaseMap() : nullptr;
    if (wanted == nullptr)
        hide();
    else if (m_shown != *wanted)
        show(*wanted);
}

void RasterLayerImp::show(const lum::BaseMap& map)
{
    m_shown = map;
    if (lum::isFile(map)) {
        showFile(map);
        return;
    }
    Picture picture;
    picture.tiles = std::make_shared<lum::TileImage>(map, lum::userTileFetching(), [this] {
        QMetaObject::invokeMethod(this, &RasterLayerImp::update, Qt::QueuedConnection);
    });
    setPicture(std::move(picture), map.attribution);
    redraw();
}

void RasterLayerImp::showFile(const lum::BaseMap& map)
{
    Picture picture;
    picture.file = std::make_shared<lum::RasterImage>(lum::rasterNameOf(map, {}));
    const bool isUsable = picture.file->isUsable();
    const QString fault = picture.file->fault();
    setPicture(isUsable ? std::move(picture) : Picture(), isUsable ? map.attribution : QString());
    if (!isUsable)
        tell(fault);
    redraw();
}

void RasterLayerImp::hide()
{
    if (!m_shown)
        return;
    m_shown.reset();
    setPicture({}, {});
    redraw();
}

void RasterLayerImp::setPicture(Picture picture, const QString& attribution)
{
    m_trouble.clear();
    m_properties.set("attribution", attribution.toStdString());
    layerpicture::setShown(m_properties, picture.tiles || picture.file);
    const std::lock_guard lock(m_mutex);
    std::swap(m_picture, picture); // the old one ends after the lock
}

void RasterLayerImp::update()
{
    if (!m_shown)
        return; // queued before it was hidden
    tellTrouble();
    redraw();
}

void RasterLayerImp::tellTrouble()
{
    const QString trouble = m_picture.trouble();
    if (trouble == m_trouble)
        return;
    m_trouble = trouble;
    if (!trouble.isEmpty())
        tell(trouble);
    else if (m_shown)
        m_host.tell(tr("The base map \"%1\" is complete again.").arg(m_shown->name));
}

void RasterLayerImp::tell(const QString& trouble)
{
    m_host.tell(trouble);
    basalt::logWarning(trouble.toStdString());
}

void RasterLayerImp::redraw()
{
    if (auto* const map = m_host.windows().findAs<IMapWindow>(QStringLiteral("DataMap")))
        map->redrawSoon();
}
