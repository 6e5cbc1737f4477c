#include "project/ui/ProjectState.h"

#include "lum_desktop_sdkx/DesktopDocument.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/events/IEventManager.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/Text.h"
#include "project/DataProcessDataManager.h"
#include "project/ProjectPlace.h"
#include "protocol/Events.h"
#include "protocol/StatusKeys.h"

#include <QFileInfo>

namespace ProjectState {

namespace {

void change(IDesktopHost& host, const char* isOpen, const ProjectPlace& place)
{
    IDictionary& values = get_system_status_dictionary();
    values.set(status::kProjectOpen, isOpen);
    values.set(status::kProjectPath, place.folder.toStdString());
    values.set(status::kProjectName, place.name.toStdString());
    values.set(status::kUseGrid, "0"); // no service learns unasked where another project lies
    showTitle(host);
    for (const char* event :
         {events::kRefreshDesignLayer, events::kRefreshSurveyLayer, events::kUpdateSystemStatus})
        host.eventManager().publish(event, nullptr, 0);
}

} // namespace

bool isOpen()
{
    return get_system_status_dictionary().integer(status::kProjectOpen) != 0;
}

bool hasData()
{
    return isOpen() && DataProcessDataManager::hasInstance();
}

ProjectPlace place()
{
    const IDictionary& values = get_system_status_dictionary();
    const QString folder = lum::toQString(values.text(status::kProjectPath));
    QString name = lum::toQString(values.text(status::kProjectName));
    if (name.isEmpty())
        name = folder.section(QLatin1Char('/'), -1);
    return ProjectPlace::in(folder, name);
}

bool isOpen(const QString& file)
{
    return isOpen() && QFileInfo(file) == QFileInfo(place().file);
}

void showTitle(IDesktopHost& host)
{
    if (!isOpen()) {
        host.setDocument({});
        return;
    }
    const DataProcessDataManager& manager = DataProcessDataManager::instance();
    host.setDocument({place().name, manager.isReadOnly(), manager.isChanged()});
}

void opened(IDesktopHost& host, const ProjectPlace& place)
{
    change(host, "1", place);
}

void closed(IDesktopHost& host)
{
    change(host, "0", {});
}

} // namespace ProjectState
