#include "views/AttributeControl.h"

#include "basalt_utilities/Numbers.h"
#include "lum_desktop_sdkx/ComponentParameters.h"
#include "lum_desktop_sdkx/controls/PropertyGridCtrl.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/LengthUnit.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/DpiScale.h"
#include "lum_sdk/events/EventNames.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/Text.h"
#include "map/ui/FindDataLayer.h"
#include "map/ui/IDataLayer.h"
#include "model/CodeTables.h"
#include "project/DataProcessDataManager.h"
#include "project/PointCorrection.h"
#include "protocol/Events.h"
#include "protocol/Payloads.h"
#include "protocol/StatusKeys.h"
#include "quality/QualityDescription.h"
#include "quality/ResurveyResult.h"
#include "views/AttributePage.h"
#include "views/AttributeValues.h"
#include "views/SelectedPoint.h"

#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <cmath>
#include <cstring>

namespace {

constexpr int kMargin = 4;
constexpr int kLastObstacle = 33;
constexpr const char* kSelections =
    "ON_SURVEY_POINT_SELECTED,ON_DESIGN_POINT_SELECTED,ON_STATION_POINT_SELECTED";
constexpr const char* kAntennaHeight = "antenna_height";

std::vector<PropertyGridChoice> obstacles()
{
    std::vector<PropertyGridChoice> choices;
    for (int code = 1; code <= kLastObstacle; ++code)
        choices.push_back({obstacleText(code), obstacleText(code)});
    choices.push_back({obstacleText(0), obstacleText(0)});
    return choices;
}

SurveyCorrection correctionOf(const QString& key, const std::string& value, bool movesHeights)
{
    SurveyCorrection correction;
    correction.movesHeights = movesHeights;
    if (key == QLatin1String(kAntennaHeight))
        correction.antennaHeightM = basalt::parseNumber(value);
    else if (key == QLatin1String("point_mark"))
        correction.pointMark = basalt::parseInteger(value);
    else if (key == QLatin1String("surveyor"))
        correction.surveyor = value;
    else if (key == QLatin1String("remarks"))
        correction.remarks = value;
    else if (key == QLatin1String("obstacle"))
        correction.obstacle = value;
    return correction;
}

QString fixed(double value)
{
    return QString::fromStdString(basalt::formatFixed(value, 3));
}

/// The faults that the last check found in a result, a line each.
QString faultsOf(const SurveyPoint& point)
{
    QStringList lines;
    for (const QualityRow& row : DataProcessDataManager::instance().describeQuality(point)) {
        QString text = row.text();
        if (row.limit < 0) { // of several values
            lines << text;
            continue;
        }
        if (!text.isEmpty() && text.back().isPunct()) // the full stop of any language
            text.chop(1);
        lines << AttributeControl::tr("%1: %2 (limit %3)")
                     .arg(text, fixed(row.value), fixed(row.limit));
    }
    if (const QString fault = resurveyFault(point); !fault.isEmpty())
        lines << fault;
    return lines.join(QLatin1Char('\n'));
}

} // namespace

AttributeControl::AttributeControl(const char* config, IDesktopHost* host)
    : m_host(*host), m_parameters(desktop::componentParameters(config)),
      m_selections(*this, kSelections, host->eventManager()),
      m_changes(*this,
                lum::eventNames({events::kRefreshSurveyTable, events::kRefreshDesignTable,
                                 events::kClearSurveyTable, events::kRefreshSurveyLayer,
                                 events::kRefreshDesignLayer, events::kResurveysChecked,
                                 events::kProjectChanged, events::kSettingViewFinished,
                                 events::kUpdateSystemStatus}),
                host->eventManager()),
      m_pages(new QStackedWidget(this)),
      m_empty(new QLabel(tr("Select a point on the map or in a table."), m_pages)),
      m_survey(new AttributePage(QStringLiteral("SurveyAttribute"), m_pages)),
      m_design(new AttributePage(QStringLiteral("DesignAttribute"), m_pages)),
      m_station(new AttributePage(QStringLiteral("StationAttribute"), m_pages))
{
    m_empty->setWordWrap(true);
    m_empty->setAlignment(Qt::AlignCenter);
    for (QWidget* each : std::initializer_list<QWidget*>{m_empty, m_survey, m_design, m_station})
        m_pages->addWidget(each);
    auto* const close = new QPushButton(tr("Close"), this);
    close->setFocusPolicy(Qt::TabFocus); // a click does not leave the keys with it
    connect(close, &QPushButton::clicked, this,
            [this] { m_host.windows().close(QStringLiteral("AttributeControl")); });
    connect(m_survey, &AttributePage::edited, this, &AttributeControl::editSurvey);
    connect(m_design, &AttributePage::edited, this, &AttributeControl::editDesign);

    for (AttributePage* const each : {m_survey, m_design})
        connect(each->grid().addMenuEntry(tr("&History of This Point")), &QAction::triggered, this,
                &AttributeControl::showHistory);

    auto* const layout = new QVBoxLayout(this);
    const int margin = dpi_scaled(kMargin);
    layout->setContentsMargins(0, 0, 0, margin);
    layout->setSpacing(margin);
    layout->addWidget(m_pages, 1);
    auto* const buttons = new QHBoxLayout;
    buttons->setContentsMargins(margin, 0, margin, 0);
    buttons->addStretch();
    buttons->addWidget(close);
    layout->addLayout(buttons);
}

AttributeControl::~AttributeControl()
{
    m_survey->disconnect(this); // an open editor closes when this is a panel no more
    m_design->disconnect(this);
}

void AttributeControl::handleEvent(const char* eventName, const char* payload, int /*reserved*/)
{
    basalt::Dictionary values;
    payload::read(payload, values);
    if (std::strcmp(eventName, events::kSurveyPointSelected) == 0)
        select({Kind::Survey, selectedPoint(values)});
    else if (std::strcmp(eventName, events::kDesignPointSelected) == 0)
        select({Kind::Design, selectedPoint(values)});
    else if (std::strcmp(eventName, events::kStationPointSelected) == 0)
        select({Kind::Station, {}, values.integer("stationId", -1)});
    else
        refreshLater();
}

void AttributeControl::select(const Shown& point)
{
    if (AttributePage* const before = page(m_shown.kind))
        before->commit(); // into the point that it was typed for
    if (point == m_shown) {
        refresh();
        return;
    }
    m_shown = point;
    m_movesHeights = true;
    m_antennaNote.clear();
    const auto shown = values();
    AttributePage* const to = page(point.kind);
    if (shown)
        to->showPoint(*shown);
    refresh();
}

/// Not at once: after a change the map's layer, too, has to read what it shows.
void AttributeControl::refreshLater()
{
    if (m_isRefreshDue || m_shown.kind == Kind::None)
        return;
    m_isRefreshDue = true;
    QMetaObject::invokeMethod(this, &AttributeControl::refresh, Qt::QueuedConnection);
}

void AttributeControl::refresh()
{
    m_isRefreshDue = false;
    const auto shown = values();
    if (!shown) {
        m_shown = {};
        m_pages->setCurrentWidget(m_empty);
        return;
    }
    AttributePage* const to = page(m_shown.kind);
    to->update(*shown);
    writeUnits();
    writeNotes();
    m_pages->setCurrentWidget(to);
}

AttributePage* AttributeControl::page(Kind kind) const
{
    switch (kind) {
    case Kind::Survey:
        return m_survey;
    case Kind::Design:
        return m_design;
    case Kind::Station:
        return m_station;
    case Kind::None:
        break;
    }
    return nullptr;
}

std::optional<basalt::Dictionary> AttributeControl::values() const
{
    if (m_shown.kind == Kind::Station)
        return stationValues();
    if (m_shown.kind == Kind::None || !DataProcessDataManager::hasInstance())
        return {};
    DataProcessDataManager& manager = DataProcessDataManager::instance();
    const auto& [line, point] = m_shown.point;
    if (m_shown.kind == Kind::Design) {
        const DesignPoint* const found = manager.designPoints().find(line, point);
        return found == nullptr ? std::nullopt : std::optional(attributesOf(*found));
    }
    const SurveyPoint* const found = manager.surveyPoints().find(line, point);
    if (found == nullptr)
        return {};
    basalt::Dictionary attributes = attributesOf(*found);
    attributes.set(kMovesHeights, m_movesHeights ? "1" : "0");
    return attributes;
}

std::optional<basalt::Dictionary> AttributeControl::stationValues() const
{
    const IDataLayer* const layer = findDataLayer(m_host);
    BaseStation station;
    if (layer == nullptr || !layer->GetBaseRecord(m_shown.station, station))
        return {};
    return attributesOf(station, m_shown.station);
}

void AttributeControl::writeUnits()
{
    PropertyGridCtrl& grid = page(m_shown.kind)->grid();
    const QString unit = lum::toQString(
        lum::symbolOf(lum::lengthUnitOf(get_project_coord_transform().parameters())));
    for (const char* key : {"north", "east", "design_north", "design_east", "transversal_deviation",
                            "longitudinal_deviation", "reference_north", "reference_east"})
        grid.setRowUnit(QString::fromLatin1(key), unit);
    const bool isDecimal = get_system_status_dictionary().integer(status::kDegreeFormat) == 0;
    for (const char* key : {"latitude", "longitude", "reference_latitude", "reference_longitude"})
        grid.setRowUnit(QString::fromLatin1(key), isDecimal ? QStringLiteral("\u00b0") : QString());
    if (m_shown.kind == Kind::Survey)
        grid.addRowChoices(QStringLiteral("obstacle"), obstacles());
}

void AttributeControl::writeNotes()
{
    if (m_shown.kind != Kind::Survey)
        return;
    const SurveyPoint* const point = DataProcessDataManager::instance().surveyPoints().find(
        m_shown.point.line, m_shown.point.point);
    PropertyGridCtrl& grid = m_survey->grid();
    grid.setRowNote(QStringLiteral("quality_standard"), faultsOf(*point));
    if (!isSameLength(point->elevation, m_notedElevationM))
        m_antennaNote.clear(); // something else has changed the result since
    grid.setRowNote(QString::fromLatin1(kAntennaHeight), m_antennaNote);
}

void AttributeControl::showHistory()
{
    const QByteArray payload = payload::selectedPoint(lum::toQString(m_shown.point.point),
                                                      lum::toQString(m_shown.point.line));
    m_host.eventManager().publish(events::kShowPointHistory, payload.constData(), 0);
}

void AttributeControl::editSurvey(const QString& key, const QString& value)
{
    if (key == QLatin1String(kMovesHeights)) {
        m_movesHeights = value == QLatin1String("1");
        refresh();
        return;
    }
    DataProcessDataManager& manager = DataProcessDataManager::instance();
    const auto& [line, number] = m_shown.point;
    const SurveyPoint* const point = manager.surveyPoints().find(line, number);
    const SurveyCorrection correction = correctionOf(key, value.toStdString(), m_movesHeights);
    if (const auto fault = faultOf(correction)) {
        m_survey->refuse(key, fault->text);
        return;
    }
    const auto& height = correction.antennaHeightM;
    if (point != nullptr && height && isSameLength(*height, point->antennaHeight))
        return;
    const double before = point == nullptr ? 0 : point->elevation;
    if (manager.correctSurveyPoint(m_shown.point, correction) == 0) {
        refresh(); // it was deleted meanwhile
        return;
    }
    if (height)
        noteMove(*point, before);
    m_host.eventManager().publish(events::kRefreshSurveyTable, nullptr, 0);
    if (correction.pointMark) // the tree shows the kind of a line
        m_host.eventManager().publish(events::kRefreshSurveyLayer, nullptr, 0);
    refresh();
}

void AttributeControl::noteMove(const SurveyPoint& point, double elevationBefore)
{
    const double moved = point.elevation - elevationBefore;
    const QString amount = fixed(std::fabs(moved));
    m_notedElevationM = point.elevation;
    m_antennaNote =
        moved == 0  ? tr("The heights have stayed as they were.")
        : moved < 0 ? tr("The heights are %1 m lower now. The quality is that of the last check.")
                          .arg(amount)
                    : tr("The heights are %1 m higher now. The quality is that of the last "
                         "check.")
                          .arg(amount);
}

void AttributeControl::editDesign(const QString& key, const QString& value)
{
    DataProcessDataManager& manager = DataProcessDataManager::instance();
    const auto& [line, number] = m_shown.point;
    const DesignPoint* const point = manager.designPoints().find(line, number);
    const double typed = basalt::parseNumber(value.toStdString());
    DesignCorrection correction;
    if (key == QLatin1String("azimuth"))
        correction.azimuthDeg = typed;
    else
        correction.elevationM = typed;
    const bool isSame =
        point != nullptr && (correction.azimuthDeg ? isSameAzimuth(typed, point->azimuth)
                                                   : isSameLength(typed, point->elevation));
    if (isSame)
        return;
    if (manager.correctDesignPoint(m_shown.point, correction) != 0)
        m_host.eventManager().publish(events::kRefreshDesignTable, nullptr, 0);
    refresh();
}
