#include "map/ui/AddOverlays.h"

#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/ILayerRegistry.h"
#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "map/ui/OverlayTexts.h"
#include "map/ui/TifLayer.h"
#include "project/DataProcessDataManager.h"
#include "project/ui/ProjectState.h"

#include <QCursor>
#include <QFileInfo>
#include <QGuiApplication>

namespace {

using Button = LumMessageBox::Button;

constexpr const char* kSuffixes[] = {"tif", "tiff", "vrt", "jp2", "img", "mbtiles"};

bool isEmptySurvey()
{
    DataProcessDataManager& manager = DataProcessDataManager::instance();
    return manager.designPoints().empty() && manager.surveyPoints().empty();
}

/// Without points, the picture is all that there is to see.
void zoomToTop(IMapWindow& map, const TifLayer& layer)
{
    const QRectF extent = layer.itemExtent(0);
    if (!extent.isNull())
        map.zoomRect(extent.left(), extent.top(), extent.right(), extent.bottom());
}

void offerOverviews(IDesktopHost& host, TifLayer& layer, const QStringList& large)
{
    QStringList possible;
    QStringList impossible;
    for (const QString& path : large)
        (QFileInfo(QFileInfo(path).absolutePath()).isWritable() ? possible : impossible) << path;
    if (!impossible.isEmpty())
        LumMessageBox::information(host.dialogParent(), OverlayTexts::information(),
                                   OverlayTexts::overviewsImpossible(impossible));
    if (!possible.isEmpty() &&
        LumMessageBox::question(host.dialogParent(), OverlayTexts::information(),
                                OverlayTexts::offerOverviews(possible)) == Button::Yes)
        layer.buildOverviews(possible);
}

} // namespace

namespace AddOverlays {

bool canAdd(const QString& path)
{
    const QString suffix = QFileInfo(path).suffix();
    return std::any_of(std::begin(kSuffixes), std::end(kSuffixes), [&](const char* each) {
        return suffix.compare(QLatin1String(each), Qt::CaseInsensitive) == 0;
    });
}

void add(IDesktopHost& host, const QStringList& paths)
{
    if (!ProjectState::hasData()) {
        LumMessageBox::information(host.dialogParent(), OverlayTexts::information(),
                                   OverlayTexts::needsProject());
        return;
    }
    auto* const map = host.windows().findAs<IMapWindow>(QStringLiteral("DataMap"));
    auto* const layer =
        map != nullptr ? dynamic_cast<TifLayer*>(map->layers().find(QStringLiteral("TifLayer")))
                       : nullptr;
    if (layer == nullptr)
        return; // the frame has logged what is missing
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const TifLayer::Added added = layer->addImages(paths);
    QGuiApplication::restoreOverrideCursor();
    if (added.count > 0) {
        if (isEmptySurvey())
            zoomToTop(*map, *layer);
        host.windows().activate(QStringLiteral("LayerWindow"));
        host.tell(OverlayTexts::added(added.count, added.isOutside));
    }
    if (!added.faults.isEmpty())
        LumMessageBox::error(host.dialogParent(), OverlayTexts::error(),
                             OverlayTexts::notAdded(added.faults.size()),
                             added.faults.join(QLatin1Char('\n')));
    if (!added.large.isEmpty())
        offerOverviews(host, *layer, added.large);
}

} // namespace AddOverlays
