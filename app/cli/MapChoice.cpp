#include "app/cli/MapChoice.h"

#include "app/cli/CliArguments.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/raster/UserBaseMaps.h"
#include "map/sheet/MapGround.h"
#include "project/DataProcessDataManager.h"
#include "quality/colors/ChosenColors.h"
#include "quality/colors/Colorings.h"
#include "quality/QualityLimits.h"

namespace {

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

Outcome MapChoice::read(const CliArguments& arguments)
{
    const QString& view = arguments.places[1];
    if (view != QLatin1String("design") && view != QLatin1String("survey"))
        return Outcome::refused(QStringLiteral("\"%1\" is neither design nor survey").arg(view));
    m_isSurvey = view == QLatin1String("survey");
    m_overlays = arguments.options.value(QStringLiteral("--overlay"));
    if (Outcome reading = readColoring(arguments.option(QStringLiteral("--color-by")));
        !reading.isDone())
        return reading;
    return readBaseMap(arguments.option(QStringLiteral("--base-map")));
}

Outcome MapChoice::readColoring(const QString& name)
{
    if (name.isEmpty())
        return Outcome::done();
    if (!m_isSurvey)
        return Outcome::refused(QStringLiteral("--color-by goes with survey alone"));
    m_coloring = findColoring(name.toStdString());
    if (m_coloring != nullptr)
        return Outcome::done();
    QStringList names;
    for (const Coloring& each : colorings())
        names << QLatin1String(each.name);
    return Outcome::refused(QStringLiteral("results cannot be coloured by \"%1\", but by %2")
                                .arg(name, names.join(QStringLiteral(", "))));
}

Outcome MapChoice::readBaseMap(const QString& name)
{
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

Outcome MapChoice::open(MapGround& ground) const
{
    if (!m_baseMap.name.isEmpty() && !hasSystem())
        return Outcome::failed(QStringLiteral(
            "The project has no coordinate system, so that no base map can lie under it."));
    ground.setBaseMap(m_baseMap);
    for (const QString& file : m_overlays) {
        if (const QString fault = ground.addOverlay(file); !fault.isEmpty())
            return Outcome::failed(fault);
    }
    return Outcome::done();
}

MapDrawing MapChoice::drawing(DataProcessDataManager& manager,
                              SurveyPictureOptions::Names plainNames) const
{
    const ToMap toMap = toMapOf(get_project_coord_transform().parameters());
    if (!m_isSurvey) {
        DesignPictureOptions options;
        options.numbersNeedRoom = plainNames == SurveyPictureOptions::Names::WithRoom;
        return drawingOf(manager.designPoints(), manager.designParameters(), toMap, options);
    }
    const ResultColors colors =
        colorsOf(m_coloring, manager.surveyPoints(), manager.qualityLimits());
    SurveyPictureOptions options = usualSurveyOptions(!colors.isNone());
    if (colors.isNone())
        options.names = plainNames;
    return drawingOf(manager.surveyPoints(), colors, toMap, options);
}
