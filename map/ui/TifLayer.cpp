#include "map/ui/TifLayer.h"

#include "basalt_utilities/ILogger.h"
#include "lum_desktop_sdkx/ComponentParameters.h"
#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_desktop_sdkx/LayerPicture.h"
#include "lum_desktop_sdkx/RasterTarget.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/events/EventNames.h"
#include "lum_sdk/raster/OverviewBuilder.h"
#include "lum_sdk/raster/RasterImage.h"
#include "map/ui/DlgOverviews.h"
#include "map/ui/OverlayTexts.h"
#include "project/DataProcessDataManager.h"
#include "project/ProjectPlace.h"
#include "project/ui/ProjectState.h"
#include "protocol/Events.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace {

IMapWindow* mapOf(IDesktopHost& host)
{
    return host.windows().findAs<IMapWindow>(QStringLiteral("DataMap"));
}

const IDictionary& systemOfProject()
{
    return get_project_coord_transform().parameters();
}

QString nameOf(const QString& path)
{
    return QFileInfo(path).fileName();
}

/// Whether two areas have a point in common; edges count.
bool doTouch(const QRectF& a, const QRectF& b)
{
    return a.left() <= b.right() && b.left() <= a.right() && a.top() <= b.bottom() &&
           b.top() <= a.bottom();
}

} // namespace

TifLayer::TifLayer(const char* config, IDesktopHost* host)
    : m_properties(desktop::componentParameters(config)), m_host(*host),
      m_subscription(*this,
                     lum::eventNames({events::kUpdateSystemStatus, events::kLayerItemsChanged}),
                     host->eventManager())
{
}

TifLayer::~TifLayer() = default;

bool TifLayer::IsVisible() const
{
    return m_properties.integer("visible", 1) != 0;
}

// --- the project ---

void TifLayer::handleEvent(const char* /*eventName*/, const char* /*payload*/, int /*reserved*/)
{
    const QString project = ProjectState::hasData() ? ProjectState::place().folder : QString();
    if (project != m_project) {
        m_project = project;
        load();
    }
    tellFaults(); // a paint may have found one
}

void TifLayer::load()
{
    const bool hadImages = !m_images.empty();
    m_images.clear();
    if (!m_project.isEmpty()) {
        for (const OverlayImage& entry :
             OverlayList::read(DataProcessDataManager::instance().project(), m_project))
            m_images.push_back({entry, std::make_shared<lum::RasterImage>(entry.path)});
    }
    if (!hadImages && m_images.empty())
        return;
    m_host.eventManager().publish(events::kLayerItemsChanged, nullptr, 0);
    redraw();
}

void TifLayer::tellFaults()
{
    QStringList faults;
    for (Image& image : m_images) {
        const QString fault = image.raster->fault();
        if (!fault.isEmpty() && !std::exchange(image.isFaultTold, true)) {
            basalt::logWarning(fault.toStdString());
            faults << fault;
        }
    }
    if (!faults.isEmpty())
        m_host.tell(OverlayTexts::faults(faults));
}

void TifLayer::store(bool isEdited)
{
    if (m_project.isEmpty() || !DataProcessDataManager::hasInstance())
        return;
    std::vector<OverlayImage> entries;
    entries.reserve(m_images.size());
    for (const Image& image : m_images)
        entries.push_back(image.entry);
    DataProcessDataManager& manager = DataProcessDataManager::instance();
    OverlayList::write(entries, m_project, manager.project());
    if (!isEdited)
        return;
    manager.markChanged();
    m_host.eventManager().publish(events::kLayerItemsChanged, nullptr, 0);
}

std::vector<TifLayer::Image>::iterator TifLayer::find(const QString& path)
{
    return std::find_if(m_images.begin(), m_images.end(),
                        [&](const Image& image) { return image.entry.path == path; });
}

TifLayer::Added TifLayer::addImages(QStringList paths)
{
    paths.removeDuplicates();
    Added added;
    std::vector<Image> fresh;
    for (const QString& path : paths) {
        Image image{{path}, std::make_shared<lum::RasterImage>(path)};
        if (!image.raster->isUsable()) {
            added.faults << image.raster->fault();
            continue;
        }
        if (const auto old = find(path); old != m_images.end()) {
            image.entry.opacity = old->entry.opacity;
            m_images.erase(old);
        }
        if (image.raster->info().lacksOverviews())
            added.large << path;
        fresh.push_back(std::move(image));
    }
    if (fresh.empty())
        return added;
    added.count = static_cast<int>(fresh.size());
    added.isOutside = std::none_of(fresh.begin(), fresh.end(),
                                   [this](const Image& image) { return doesMeetSurvey(image); });
    m_images.insert(m_images.begin(), std::make_move_iterator(fresh.begin()),
                    std::make_move_iterator(fresh.end()));
    store(true);
    redraw();
    return added;
}

bool TifLayer::doesMeetSurvey(const Image& image) const
{
    DataProcessDataManager& manager = DataProcessDataManager::instance();
    const IMapWindow* const map = mapOf(m_host);
    if (map == nullptr || (manager.designPoints().empty() && manager.surveyPoints().empty()))
        return true; // there is nothing to meet
    return doTouch(image.raster->extent(systemOfProject()), map->extent());
}

// --- overviews ---

void TifLayer::buildOverviews(const QStringList& paths)
{
    if (m_overviews == nullptr) {
        m_overviews = std::make_unique<DlgOverviews>(m_host.dialogParent());
        QObject::connect(m_overviews.get(), &DlgOverviews::built, m_overviews.get(),
                         [this](const QString& path, const lum::OverviewResult& result) {
                             onOverviewsFinished(path, result);
                         });
    }
    for (const QString& path : paths)
        m_overviews->build(path);
}

void TifLayer::onOverviewsFinished(const QString& path, const lum::OverviewResult& result)
{
    if (!result.isBuilt && !result.fault.isEmpty()) {
        LumMessageBox::error(m_host.dialogParent(), OverlayTexts::error(),
                             OverlayTexts::noOverviews(), result.fault);
        return;
    }
    m_host.tell(OverlayTexts::overviewsEnded(nameOf(path), result.isBuilt));
    if (const auto image = find(path); result.isBuilt && image != m_images.end()) {
        image->raster = std::make_shared<lum::RasterImage>(path);
        m_host.eventManager().publish(events::kLayerItemsChanged, nullptr, 0);
        redraw();
    }
}

// --- painting ---

void TifLayer::preparePaint()
{
    std::vector<Image> shown;
    for (auto image = m_images.rbegin(); image != m_images.rend(); ++image) {
        if (image->entry.isVisible && image->entry.opacity > 0 && image->raster->isUsable())
            shown.push_back(*image);
    }
    layerpicture::setShown(m_properties, !shown.empty());
    const std::lock_guard lock(m_shownMutex);
    m_shown = std::move(shown);
}

void TifLayer::Paint(const PaintTarget& target, const QRectF& /*view*/, QPainter& painter)
{
    std::vector<Image> shown;
    {
        const std::lock_guard lock(m_shownMutex);
        shown = m_shown;
    }
    const lum::RasterView view = rasterViewOf(target);
    bool hasNewFault = false;
    for (const Image& image : shown) {
        const bool wasFine = image.raster->fault().isEmpty();
        if (!image.raster->paint(view, painter, image.entry.opacity))
            target.leaveRest();
        hasNewFault = hasNewFault || (wasFine && !image.raster->fault().isEmpty());
    }
    if (hasNewFault)
        m_host.eventManager().publish(events::kLayerItemsChanged, nullptr, 0);
}

QRectF TifLayer::GetExtent() const
{
    QRectF all;
    for (const Image& image : m_images) {
        if (image.entry.isVisible && image.raster->isUsable())
            all |= image.raster->extent(systemOfProject());
    }
    return all;
}

void TifLayer::redraw() const
{
    if (IMapWindow* const map = mapOf(m_host))
        map->redraw();
}

// --- items ---

LayerItem TifLayer::item(int index) const
{
    const Image& image = at(index);
    const QString& path = image.entry.path;
    return {path,
            nameOf(path),
            OverlayTexts::tip(path, image.raster->info()),
            image.raster->fault(),
            image.entry.isVisible,
            image.entry.opacity};
}

void TifLayer::showItem(int index, bool isVisible)
{
    at(index).entry.isVisible = isVisible;
    store(false);
}

void TifLayer::setItemOpacity(int index, double opacity)
{
    at(index).entry.opacity = opacity;
    store(false);
}

void TifLayer::moveItem(int from, int to)
{
    const auto moved = m_images.begin() + from;
    if (to > from)
        std::rotate(moved, moved + 1, m_images.begin() + to + 1);
    else
        std::rotate(m_images.begin() + to, moved, moved + 1);
    store(true);
}

void TifLayer::removeItem(int index)
{
    m_images.erase(m_images.begin() + index);
    store(true);
}

QRectF TifLayer::itemExtent(int index) const
{
    return at(index).raster->extent(systemOfProject());
}

QVector<QPair<QString, QString>> TifLayer::itemProperties(int index) const
{
    return OverlayTexts::properties(*at(index).raster, systemOfProject());
}

QStringList TifLayer::itemActions(int index) const
{
    const lum::RasterImage& raster = *at(index).raster;
    if (!raster.isUsable())
        return {OverlayTexts::chooseFileEntry()};
    if (raster.info().lacksOverviews())
        return {OverlayTexts::buildOverviewsEntry()};
    return {};
}

void TifLayer::runItemAction(int index, int /*action*/)
{
    Image& image = at(index);
    if (image.raster->isUsable())
        buildOverviews({image.entry.path});
    else
        chooseFile(image);
}

void TifLayer::chooseFile(Image& image)
{
    const QString lost = image.entry.path;
    const QString path = FileDialog::getOpenFileName(
        m_host.dialogParent(), OverlayTexts::chooserTitle(), OverlayTexts::chooserFilter());
    const auto found = find(lost); // the list may have changed while the dialog was open
    if (path.isEmpty() || found == m_images.end())
        return;
    auto raster = std::make_shared<lum::RasterImage>(path);
    if (!raster->isUsable()) {
        LumMessageBox::error(m_host.dialogParent(), OverlayTexts::error(),
                             OverlayTexts::notAdded(1), raster->fault());
        return;
    }
    if (path != lost && find(path) != m_images.end()) { // its other entry shows it already
        m_images.erase(found);
    } else {
        found->entry.path = path;
        found->raster = std::move(raster);
        found->isFaultTold = false;
    }
    store(true);
    redraw();
}
