#include "map/ui/SeletePointReactor.h"

#include "lum_desktop_sdkx/ILayerRegistry.h"
#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_desktop_sdkx/MouseKeyEventParameters.h"
#include "lum_sdk/events/IEventManager.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/IHost.h"
#include "map/ui/IDataLayer.h"
#include "map/ui/LayerTexts.h"
#include "map/ui/PointHighlight.h"
#include "protocol/Events.h"
#include "protocol/Payloads.h"
#include "protocol/StatusKeys.h"

#include <QPolygonF>

SeletePointReactor::SeletePointReactor(const char* /*config*/, IMapWindow* map) : ReactorBase(map)
{
}

int SeletePointReactor::lButtonDown(const MouseKeyEventParameters& event)
{
    const auto* const layer =
        dynamic_cast<IDataLayer*>(map().layers().find(QStringLiteral("DataProcessLayer")));
    if (layer == nullptr)
        return 0;
    const QPointF place = map().transform().ScreenToSurvey(event.position);
    switch (get_system_status_dictionary().integer(status::kViewShowWhich, 1)) {
    case 0:
        return pickSurvey(*layer, place);
    case 1:
        return pickDesign(*layer, place);
    default:
        return 1;
    }
}

int SeletePointReactor::pickSurvey(const IDataLayer& layer, const QPointF& place)
{
    const QString name = layer.PickSurveyPoint(place.x(), place.y());
    if (name.isEmpty())
        return 0;
    if (name.contains(LayerTexts::basePick()))
        return selectBase(layer, name);
    QString line;
    QPointF measured;
    QPointF design;
    if (!layer.GetSurveyPoint(name, line, measured, design))
        return 0;
    publish(events::kSurveyPointSelected, payload::selectedPoint(name, line));
    PointHighlight::draw(map(), PointHighlight::Kind::Result,
                         QPolygonF(QVector<QPointF>{measured, design}));
    return 1;
}

int SeletePointReactor::selectBase(const IDataLayer& layer, const QString& name)
{
    bool isNumber = false;
    const int index = name.section(QLatin1Char('-'), 1, 1).toInt(&isNumber);
    QPointF position;
    if (!isNumber || !layer.GetBasePosition(index, position))
        return 0;
    publish(events::kStationPointSelected, payload::station(index));
    PointHighlight::draw(map(), PointHighlight::Kind::Station,
                         QPolygonF(QVector<QPointF>{position}));
    return 1;
}

int SeletePointReactor::pickDesign(const IDataLayer& layer, const QPointF& place)
{
    const QString name = layer.PickDesignPoint(place.x(), place.y());
    QString line;
    QPointF position;
    if (name.isEmpty() || !layer.GetDesignPoint(name, line, position))
        return 0;
    publish(events::kDesignPointSelected, payload::selectedPoint(name, line));
    PointHighlight::draw(map(), PointHighlight::Kind::Design,
                         QPolygonF(QVector<QPointF>{position}));
    return 1;
}

int SeletePointReactor::rButtonUp(const MouseKeyEventParameters& /*event*/)
{
    PointHighlight::clear(map());
    return 1;
}

int SeletePointReactor::dblClick(const MouseKeyEventParameters& /*event*/)
{
    PointHighlight::clear(map());
    map().zoomAll();
    return 1;
}

void SeletePointReactor::publish(const char* eventName, const QByteArray& payload)
{
    map().host().eventManager().publish(eventName, payload.constData(), 0);
}
