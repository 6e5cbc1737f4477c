#include "project/ui/NewProjectCommand.h"

#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "project/ProjectCreator.h"
#include "project/ProjectPlace.h"
#include "project/ui/CoordSystemQuestions.h"
#include "project/ui/DlgNewProject.h"
#include "project/ui/DlgProjectSet.h"
#include "project/ui/ProjectSession.h"

#include <QCoreApplication>
#include <QDir>

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("NewProjectCommand", text);
}

void reportFailure(IDesktopHost& host, const QString& reason)
{
    LumMessageBox::error(
        host.dialogParent(), translated(QT_TRANSLATE_NOOP("NewProjectCommand", "Error")),
        translated(QT_TRANSLATE_NOOP("NewProjectCommand", "Failed to create project file!")),
        reason);
}

/// Makes the project's folder; asks first when there is one already, whose files stay.
/// \returns whether the folder can be used
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
        QDir().rmdir(folder); // only succeeds when it is empty
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
    const ProjectPlace place = dialog.place();
    if (!makeFolder(host(), place.folder))
        return;
    basalt::Dictionary project;
    ProjectCreator::describe(place, project);
    DlgProjectSet settings(host(), project);
    settings.setSystemQuestion([&](const IDictionary& chosen) {
        return CoordSystemQuestions::mayBegin(&settings, chosen);
    });
    if (settings.exec() != QDialog::Accepted) {
        QDir().rmdir(place.folder); // only succeeds when it is empty
        return;
    }
    Outcome making = ProjectCreator::create(place, project);
    if (making.isDone())
        making = ProjectSession::open(host(), place);
    if (!making.isDone())
        reportFailure(host(), making.text());
}
