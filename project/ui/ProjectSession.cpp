#include "project/ui/ProjectSession.h"

#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/ICommandList.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "project/DataProcessDataManager.h"
#include "project/ProjectPlace.h"
#include "project/RecentProjects.h"
#include "project/ui/ProjectState.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace ProjectSession {

namespace {

using Button = LumMessageBox::Button;

QString translated(const char* text)
{
    return QCoreApplication::translate("ProjectSession", text);
}

void reportFailure(IDesktopHost& host, const ProjectPlace& place, const QString& reason)
{
    if (!QFileInfo::exists(place.file) || !QFileInfo::exists(place.database()))
        RecentProjects::remove(place.file);
    LumMessageBox::information(
        host.dialogParent(), translated(QT_TRANSLATE_NOOP("ProjectSession", "failed")),
        translated(QT_TRANSLATE_NOOP("ProjectSession", "failed to open project!")), Button::Ok,
        reason);
}

} // namespace

Outcome open(IDesktopHost& host, const ProjectPlace& place)
{
    Outcome opening = DataProcessDataManager::instance().openProject(place);
    if (opening.isDone()) {
        RecentProjects::add(place.file); // first, since the commands read the list on the events
        ProjectState::opened(host, place);
    }
    return opening;
}

void openFile(IDesktopHost& host, const QString& file)
{
    const ProjectPlace place = ProjectPlace::ofFile(file);
    const Outcome opening = open(host, place);
    if (!opening.isDone())
        reportFailure(host, place, opening.text());
    else if (!opening.text().isEmpty())
        LumMessageBox::information(host.dialogParent(),
                                   translated(QT_TRANSLATE_NOOP("ProjectSession", "information")),
                                   opening.text());
}

bool closeCurrent(IDesktopHost& host)
{
    if (!ProjectState::isOpen())
        return true;
    const Button answer = LumMessageBox::information(
        host.dialogParent(), translated(QT_TRANSLATE_NOOP("ProjectSession", "information")),
        translated(QT_TRANSLATE_NOOP("ProjectSession", "close current project?")),
        LumMessageBox::Buttons(Button::Yes) | Button::No);
    if (answer != Button::Yes)
        return false;
    host.commands().execute(QStringLiteral("Close Project"));
    return !ProjectState::isOpen();
}

bool offerSave(IDesktopHost& host)
{
    if (!ProjectState::isOpen())
        return true;
    host.commands().execute(QStringLiteral("Save Project"));
    if (!DataProcessDataManager::instance().isSaveOwed())
        return true;
    return LumMessageBox::warning(
               host.dialogParent(), translated(QT_TRANSLATE_NOOP("ProjectSession", "information")),
               translated(QT_TRANSLATE_NOOP("ProjectSession",
                                            "The project could not be saved. Close it all the same "
                                            "and lose the changes?")),
               LumMessageBox::Buttons(Button::Yes) | Button::No) == Button::Yes;
}

void forget(IDesktopHost& host)
{
    DataProcessDataManager::instance().clear();
    ProjectState::closed(host);
}

} // namespace ProjectSession
