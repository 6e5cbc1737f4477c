#include "project/ui/NewProjectCommand.h"

#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/events/IEventManager.h"
#include "project/DataProcessDataManager.h"
#include "project/ProjectCreator.h"
#include "project/ProjectPlace.h"
#include "project/RecentProjects.h"
#include "project/ui/DlgNewProject.h"
#include "project/ui/DlgProjectSet.h"
#include "project/ui/ProjectSession.h"
#include "protocol/Events.h"

#include <QCoreApplication>
#include <QDir>

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("NewProjectCommand", text);
}

void reportFailure(IDesktopHost& host, const QString& reason)
{
    LumMessageBox::information(
        host.dialogParent(), translated(QT_TRANSLATE_NOOP("NewProjectCommand", "Error")),
        translated(QT_TRANSLATE_NOOP("NewProjectCommand", "Failed to create project file!")),
        LumMessageBox::Button::Ok, reason);
}

/// Makes the project's folder, or asks whether the one that stands there may be used. Old files in
/// it stay.
bool makeFolder(IDesktopHost& host, const QString& folder)
{
    if (QDir(folder).exists()) {
        using Button = LumMessageBox::Button;
        if (LumMessageBox::information(
                host.dialogParent(),
                translated(QT_TRANSLATE_NOOP("NewProjectCommand", "information")),
                translated(QT_TRANSLATE_NOOP("NewProjectCommand", "project path exist, override?")),
                LumMessageBox::Buttons(Button::Yes) | Button::No) != Button::Yes)
            return false;
        QDir().rmdir(folder); // fails when something is in it
    }
    if (QDir().mkpath(folder))
        return true;
    reportFailure(host, translated(QT_TRANSLATE_NOOP("NewProjectCommand",
                                                     "The folder \"%1\" cannot be made."))
                            .arg(QDir::toNativeSeparators(folder)));
    return false;
}

} // namespace

void NewProjectCommand::execute()
{
    if (!ProjectSession::closeCurrent(host()))
        return;
    DlgNewProject dialog(host().dialogParent());
    if (dialog.exec() != QDialog::Accepted)
        return;
    const ProjectPlace place = ProjectPlace::planned(dialog.projectPath(), dialog.projectName());
    if (!makeFolder(host(), place.folder))
        return;
    basalt::Dictionary project;
    ProjectCreator::describe(place, project);
    DlgProjectSet settings(host(), project);
    if (settings.exec() != QDialog::Accepted) {
        QDir().rmdir(place.folder); // unless something was in it
        return;
    }
    if (const QString fault = ProjectCreator::create(place, project); !fault.isEmpty()) {
        reportFailure(host(), fault);
        return;
    }
    open(place);
}

void NewProjectCommand::open(const ProjectPlace& place)
{
    const StoreResult result = DataProcessDataManager::instance()->openProject(place);
    if (!result.isDone) {
        reportFailure(host(), result.message);
        return;
    }
    ProjectSession::setStatus(host(), place);
    RecentProjects::add(place.file);
    IEventManager& events = host().eventManager();
    events.publish(events::kRefreshDesignLayer, nullptr, 0);
    events.publish(events::kRefreshSurveyLayer, nullptr, 0);
    events.publish(events::kUpdateSystemStatus, nullptr, 0);
}
