#include "map/ui/ShownMap.h"

#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/ILayerRegistry.h"
#include "lum_desktop_sdkx/ILayerViewer.h"
#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_desktop_sdkx/map/BoundaryLayer.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/files/SystemKeys.h"
#include "lum_sdk/raster/UserBaseMaps.h"
#include "map/PictureFrame.h"
#include "map/sheet/MapGround.h"
#include "map/ui/BaseMapSwitch.h"
#include "map/ui/SurveyLook.h"
#include "project/DataProcessDataManager.h"
#include "project/OverlayList.h"
#include "project/ui/ProjectState.h"
#include "protocol/StatusKeys.h"
#include "quality/colors/ChosenColors.h"
#include "quality/QualityLimits.h"

#include <QPainter>

#include <vector>

namespace {

IMapWindow* mapOf(IDesktopHost& host)
{
    return host.windows().findAs<IMapWindow>(QStringLiteral("DataMap"));
}

bool isShown(IDesktopHost& host, const char* layer)
{
    IMapWindow* const map = mapOf(host);
    const ILayerViewer* const found =
        map != nullptr ? map->layers().find(QLatin1String(layer)) : nullptr;
    return found == nullptr || found->IsVisible();
}

MapDrawing shownDesign(DataProcessDataManager& manager, const ToMap& toMap)
{
    const IDictionary& shown = get_system_status_dictionary();
    DesignPictureOptions options;
    options.showsReceiverLines = shown.integer(status::kShowReceiverLines, 1) != 0;
    options.showsSourceLines = shown.integer(status::kShowSourceLines, 1) != 0;
    options.numbersNeedRoom = true;
    return drawingOf(manager.designPoints(), manager.designParameters(), toMap, options);
}

MapDrawing shownSurvey(DataProcessDataManager& manager, const ToMap& toMap)
{
    const ResultColors colors =
        colorsOf(chosenColoring(), manager.surveyPoints(), manager.qualityLimits());
    // Names that cover each other cannot be zoomed apart on paper: without a choice of the user's,
    // they stand where there is room, as those of coloured results.
    SurveyPictureOptions options = chosenSurveyOptions(!colors.isNone());
    options.names = chosenSurveyOptions(true).names;
    return drawingOf(manager.surveyPoints(), colors, toMap, options);
}

/// Puts the rectangle around all data under them, where the map has it.
void addBoundary(IDesktopHost& host, MapDrawing& drawing)
{
    const IMapWindow* const map = mapOf(host);
    const IDictionary& shown = get_system_status_dictionary();
    if (map == nullptr || shown.integer(status::kDrawBoundaryRect) != 1 ||
        !isShown(host, "BoundaryLayer"))
        return;
    PaintTarget target;
    target.mapExtent = map->extent();
    target.status.set(status::kDrawBoundaryRect, "1");
    drawing.paint = [layer = std::make_shared<BoundaryLayer>("", nullptr), target,
                     paintData = drawing.paint](const PictureFrame& frame, QPainter& painter) {
        PaintTarget here = target;
        here.transform = frame.transform;
        painter.save();
        layer->Paint(here, frame.transform.visibleExtent(), painter);
        painter.restore();
        paintData(frame, painter);
    };
}

std::shared_ptr<MapGround> shownGround(IDesktopHost& host, const IDictionary& system)
{
    auto ground = std::make_shared<MapGround>(system);
    const lum::BaseMap* const map = BaseMapSwitch::isOn(host) ? lum::lastBaseMap() : nullptr;
    if (map != nullptr && lum::faultOf(*map).isEmpty() && isShown(host, "OnlineMap"))
        ground->setBaseMap(*map);
    if (!isShown(host, "TifLayer"))
        return ground;
    const std::vector<OverlayImage> images = OverlayList::read(
        DataProcessDataManager::instance().project(), ProjectState::place().folder);
    for (auto image = images.rbegin(); image != images.rend(); ++image) {
        // One that cannot be shown is not shown by the map either, which has said why.
        if (image->isVisible && image->opacity > 0)
            (void)ground->addOverlay(image->path, image->opacity);
    }
    return ground;
}

} // namespace

MapSheet shownMap(IDesktopHost& host)
{
    DataProcessDataManager& manager = DataProcessDataManager::instance();
    const IDictionary& system = get_project_coord_transform().parameters();
    const ToMap toMap = toMapOf(system);
    const bool isDesign = get_system_status_dictionary().integer(status::kViewShowWhich, 1) == 1;
    MapSheet sheet;
    sheet.ground = shownGround(host, system);
    sheet.drawing = isDesign ? shownDesign(manager, toMap) : shownSurvey(manager, toMap);
    if (!isShown(host, "DataProcessLayer")) {
        sheet.drawing.paint = [](const PictureFrame&, QPainter&) {};
        sheet.drawing.legend = {};
    }
    addBoundary(host, sheet.drawing);
    nameSheet(sheet, ProjectState::place().name, system);
    return sheet;
}
