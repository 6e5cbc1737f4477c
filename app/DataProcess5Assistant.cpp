#include "app/DataProcess5Assistant.h"

#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/Numbers.h"
#include "exchange/ui/DlgCoordCompare.h"
#include "exchange/ui/FileImports.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/ICoordTransformHelper.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_desktop_sdkx/IWindow.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_sdk/coords/ShownUnit.h"
#include "lum_sdk/events/EventNames.h"
#include "lum_sdk/events/Payload.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "project/ProjectPlace.h"
#include "project/ui/ProjectSession.h"
#include "project/ui/ProjectState.h"
#include "project/ui/StartPage.h"
#include "protocol/Events.h"
#include "protocol/StatusKeys.h"

#include <QCoreApplication>
#include <QPointF>

#include <cstring>
#include <string>

namespace {

void openTable(IWindowRegistry& windows, const char* className, const char* title)
{
    basalt::Dictionary parameters;
    parameters.set("caption", className);
    parameters.set("isSetActive", "1");
    parameters.set("title", title);
    windows.open(QString::fromLatin1(className), parameters);
}

} // namespace

DataProcess5Assistant::DataProcess5Assistant(const char* /*config*/, IDesktopHost* host)
    : m_host(*host),
      m_subscription(*this,
                     lum::eventNames({events::kXyChanged, events::kProjectModified,
                                      events::kUpdateSystemStatus, events::kProjectChanged}),
                     host->eventManager()),
      m_dataManager(std::make_unique<DataProcessDataManager>(host)), m_steps(*host),
      m_follower(*host)
{
    m_dataManager->setOtherSystemHandler([host](const QString& path, SurveyRecords other) {
        DlgCoordCompare::tell(*host, path, std::move(other));
    });
}

int DataProcess5Assistant::onMapViewCreated()
{
    if (IDictionary& values = get_system_status_dictionary();
        !values.contains(status::kViewShowWhich))
        values.set(status::kViewShowWhich, "1");
    addLayer("OnlineMap", "RasterLayerImp", "Online Map");
    addLayer("TifLayer", "TifLayer", "Overlay Image");
    addLayer("BoundaryLayer", "BoundaryLayer", "Survey Boundary");
    m_host.eventManager().publish(events::kSettingViewFinished, nullptr, 0);
    addLayer("DataProcessLayer", "DataProcessLayer", "Design and Survey");
    return 1;
}

int DataProcess5Assistant::openMainWindows()
{
    IWindowRegistry& windows = m_host.windows();
    windows.activate(QStringLiteral("DataProcessView")); // for layouts that have this window
    openTable(windows, "DesignLineTable", "Design Line Table");
    openTable(windows, "SurveyDataTable", "Survey Data Table");
    if (IWindow* const map = windows.find(QStringLiteral("DataMap")))
        new StartPage(m_host, *map->widget()); // the map's widget owns it
    return 1;
}

int DataProcess5Assistant::queryClose()
{
    if (!ProjectSession::offerSave(m_host))
        return 0;
    using Button = LumMessageBox::Button;
    const bool losesChanges = m_dataManager && m_dataManager->isChanged();
    const Button answer = LumMessageBox::ask(
        m_host.dialogParent(),
        {.title = QCoreApplication::translate("DataProcess5Assistant", "提示"),
         .text = QCoreApplication::translate("DataProcess5Assistant", "是否退出程序？"),
         .buttons = LumMessageBox::Buttons(Button::Yes) | Button::No,
         .defaultButton = losesChanges ? Button::No : Button::Yes});
    if (answer != Button::Yes)
        return 0;
    if (ProjectState::isOpen())
        ProjectSession::forget(m_host);
    m_dataManager.reset();
    return 1;
}

bool DataProcess5Assistant::canOpen(const QString& path) const
{
    return hasProjectSuffix(path) || FileImports::canImport(path);
}

int DataProcess5Assistant::openFile(const QString& path)
{
    if (!canOpen(path))
        return 0;
    if (!hasProjectSuffix(path)) {
        FileImports::importFile(m_host, path);
        return 1;
    }
    if (!ProjectState::isOpen(path) && ProjectSession::closeCurrent(m_host))
        ProjectSession::openFile(m_host, path);
    return 1;
}

void DataProcess5Assistant::handleEvent(const char* eventName, const char* payload,
                                        int /*reserved*/)
{
    const auto is = [&](const char* name) { return std::strcmp(eventName, name) == 0; };
    // There is no grid to have a position on, or the grid is another.
    if (!ProjectState::isOpen() || is(events::kProjectChanged)) {
        m_position.clear();
        m_host.eventManager().publish(events::kXyChangedText, "", 0);
    } else if (is(events::kXyChanged)) {
        m_position = payload == nullptr ? "" : payload;
        announcePosition();
    } else if (is(events::kProjectModified)) {
        ProjectState::showTitle(m_host);
    } else if (!m_position.empty()) {
        announcePosition(); // perhaps in another unit
    }
}

void DataProcess5Assistant::addLayer(const char* name, const char* className, const char* caption)
{
    auto* const map = m_host.windows().findAs<IMapWindow>(QStringLiteral("DataMap"));
    if (map == nullptr)
        return; // the frame has logged why there is no map
    basalt::Dictionary properties;
    properties.set("layer_name", name);
    properties.set("caption", caption);
    map->addLayer(QString::fromLatin1(className), properties);
}

void DataProcess5Assistant::announcePosition()
{
    basalt::Dictionary values;
    payload::read(m_position.c_str(), values, ' ');
    double north = 0;
    double east = 0;
    get_instance_ICoordTransformHelper(&m_host)->mapToProject(
        {values.number("E"), values.number("N")}, north, east);
    const lum::ShownUnit unit = lum::shownUnit();
    const std::string text = "N=" + basalt::formatFixed(unit.toShown(north), 3) +
                             "    E=" + basalt::formatFixed(unit.toShown(east), 3);
    m_host.eventManager().publish(events::kXyChangedText, text.c_str(), 0);
}
