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
using Buttons = LumMessageBox::Buttons;

QString translated(const char* text)
{
    return QCoreApplication::translate("ProjectSession", text);
}

void reportFailure(IDesktopHost& host, const ProjectPlace& place, const QString& reason)
{
    if (!QFileInfo::exists(place.file) || !QFileInfo::exists(place.database()))
        RecentProjects::remove(place.file);
    LumMessageBox::error(
        host.dialogParent(), translated(QT_TRANSLATE_NOOP("ProjectSession", "failed")),
        translated(QT_TRANSLATE_NOOP("ProjectSession", "failed to open project!")), reason);
}

/// The question before the project is saved. Enter saves.
Button askToSave(IDesktopHost& host, Buttons buttons, const char* silenceKey)
{
    return LumMessageBox::ask(
        host.dialogParent(),
        {.title = translated(QT_TRANSLATE_NOOP("ProjectSession", "information")),
         .text = translated(QT_TRANSLATE_NOOP("ProjectSession", "save project?")),
         .buttons = buttons,
         .defaultButton = Button::Yes,
         .silenceKey = silenceKey});
}

/// Saves the open project, and tells how that ended. \returns whether it is saved
bool saveNow(IDesktopHost& host)
{
    const Outcome saving = DataProcessDataManager::instance().saveProject(ProjectState::place());
    if (!saving.isDone()) {
        LumMessageBox::error(
            host.dialogParent(), translated(QT_TRANSLATE_NOOP("ProjectSession", "failed")),
            translated(QT_TRANSLATE_NOOP("ProjectSession", "Save project failed!")),
            saving.text() + QLatin1Char('\n') +
                translated(QT_TRANSLATE_NOOP("ProjectSession",
                                             "\"Project > Save a Copy As\" saves it, with all "
                                             "changes, in another folder.")));
        return false;
    }
    LumMessageBox::ask(
        host.dialogParent(),
        {.title = translated(QT_TRANSLATE_NOOP("ProjectSession", "success")),
         .text = translated(QT_TRANSLATE_NOOP("ProjectSession", "Save project success!")),
         .details = saving.text(),
         .silenceKey = saving.text().isEmpty() ? "project_saved" : nullptr});
    return true;
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

void save(IDesktopHost& host)
{
    if (!ProjectState::isOpen() || ProjectState::place().folder.isEmpty())
        return;
    if (askToSave(host, Buttons(Button::Yes) | Button::No, "save_project") == Button::Yes)
        saveNow(host);
}

bool closeCurrent(IDesktopHost& host)
{
    if (!ProjectState::isOpen())
        return true;
    const Button answer = LumMessageBox::ask(
        host.dialogParent(),
        {.title = translated(QT_TRANSLATE_NOOP("ProjectSession", "information")),
         .text = translated(QT_TRANSLATE_NOOP("ProjectSession", "close current project?")),
         .buttons = Buttons(Button::Yes) | Button::No,
         .defaultButton = Button::Yes}); // loses nothing: saving is offered next
    if (answer != Button::Yes)
        return false;
    host.commands().execute(QStringLiteral("Close Project"));
    return !ProjectState::isOpen();
}

bool offerSave(IDesktopHost& host)
{
    if (!ProjectState::isOpen() || ProjectState::place().folder.isEmpty())
        return true;
    const Button answer =
        askToSave(host, Buttons(Button::Yes) | Button::No | Button::Cancel, nullptr);
    if (answer != Button::Yes)
        return answer == Button::No;
    if (saveNow(host))
        return true;
    return LumMessageBox::ask(
               host.dialogParent(),
               {.kind = LumMessageBox::Kind::Warning,
                .title = translated(QT_TRANSLATE_NOOP("ProjectSession", "information")),
                .text = translated(QT_TRANSLATE_NOOP("ProjectSession",
                                                     "The project could not be saved. Close it "
                                                     "all the same and lose the changes?")),
                .buttons = Buttons(Button::Yes) | Button::No,
                .defaultButton = Button::No}) == Button::Yes;
}

void forget(IDesktopHost& host)
{
    DataProcessDataManager::instance().clear();
    ProjectState::closed(host);
}

} // namespace ProjectSession
