#include "project/ui/ProjectSession.h"

#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/ICommandList.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/events/IEventManager.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/Text.h"
#include "project/DataProcessDataManager.h"
#include "project/ProjectPlace.h"
#include "project/RecentProjects.h"
#include "protocol/Events.h"
#include "protocol/StatusKeys.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace ProjectSession {

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("ProjectSession", text);
}

void reportFailure(IDesktopHost& host, const QString& file, const QString& reason)
{
    if (!QFileInfo::exists(file) || !QFileInfo::exists(ProjectPlace::ofFile(file).database()))
        RecentProjects::remove(file);
    LumMessageBox::information(
        host.dialogParent(), translated(QT_TRANSLATE_NOOP("ProjectSession", "failed")),
        translated(QT_TRANSLATE_NOOP("ProjectSession", "failed to open project!")),
        LumMessageBox::Button::Ok, reason);
}

} // namespace

bool isOpen()
{
    return get_system_status_dictionary().integer(status::kProjectOpen) != 0;
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

bool closeCurrent(IDesktopHost& host)
{
    if (!isOpen())
        return true;
    using Button = LumMessageBox::Button;
    const Button answer = LumMessageBox::information(
        host.dialogParent(), translated(QT_TRANSLATE_NOOP("ProjectSession", "information")),
        translated(QT_TRANSLATE_NOOP("ProjectSession", "close current project?")),
        LumMessageBox::Buttons(Button::Yes) | Button::No);
    if (answer != Button::Yes)
        return false;
    host.commands().execute(QStringLiteral("Close Project"));
    return !isOpen();
}

bool open(IDesktopHost& host, const QString& file)
{
    const ProjectPlace place = ProjectPlace::ofFile(file);
    const StoreResult result = DataProcessDataManager::instance()->openProject(place);
    if (!result.isDone) {
        reportFailure(host, place.file, result.message);
        return false;
    }
    IEventManager& events = host.eventManager();
    events.publish(events::kRefreshDesignLayer, nullptr, 0);
    events.publish(events::kRefreshSurveyLayer, nullptr, 0);
    setStatus(host, place);
    RecentProjects::add(place.file);
    events.publish(events::kUpdateSystemStatus, nullptr, 0);
    if (!result.message.isEmpty())
        LumMessageBox::information(host.dialogParent(),
                                   translated(QT_TRANSLATE_NOOP("ProjectSession", "information")),
                                   result.message);
    return true;
}

bool mayForget(IDesktopHost& host)
{
    if (!DataProcessDataManager::instance()->isSaveOwed())
        return true;
    using Button = LumMessageBox::Button;
    return LumMessageBox::warning(
               host.dialogParent(), translated(QT_TRANSLATE_NOOP("ProjectSession", "information")),
               translated(QT_TRANSLATE_NOOP("ProjectSession",
                                            "The project could not be saved. Close it all the same "
                                            "and lose the changes?")),
               LumMessageBox::Buttons(Button::Yes) | Button::No) == Button::Yes;
}

void setStatus(IDesktopHost& host, const ProjectPlace& place)
{
    IDictionary& values = get_system_status_dictionary();
    values.set(status::kProjectOpen, "1");
    values.set(status::kProjectPath, place.folder.toStdString());
    values.set(status::kProjectName, place.name.toStdString());
    host.setDocument(place.name);
}

void clearStatus(IDesktopHost& host)
{
    IDictionary& values = get_system_status_dictionary();
    values.set(status::kProjectOpen, "0");
    values.set(status::kProjectPath, "");
    values.set(status::kProjectName, "");
    host.setDocument(QString());
}

} // namespace ProjectSession
