#include "app/DemoSurveyCommand.h"

#include "app/DemoProject.h"
#include "basalt_utilities/ILogger.h"
#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/Text.h"
#include "project/ProjectPlace.h"
#include "project/ui/ProjectSession.h"
#include "project/ui/ProjectState.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

using Button = LumMessageBox::Button;

constexpr const char* kDemoFile = "demo_project"; // setting: the project file of the demo survey

QString translated(const char* text)
{
    return QCoreApplication::translate("DemoSurveyCommand", text);
}

/// The title of the boxes, and the name of the project and its folder.
QString demoName()
{
    return translated(QT_TRANSLATE_NOOP("DemoSurveyCommand", "Demo Survey"));
}

/// The project file of a demo survey that was made before; empty when there is none.
QString knownDemo()
{
    const QString file = lum::toQString(get_system_ini_parameter().dictionary().text(kDemoFile));
    return QFileInfo::exists(file) ? file : QString();
}

void remember(const QString& file)
{
    SystemParameter& settings = get_system_ini_parameter();
    settings.dictionary().set(kDemoFile, file.toStdString());
    settings.save(); // logs a failure; the next start then asks again
}

} // namespace

void DemoSurveyCommand::execute()
{
    QString file = knownDemo();
    if (!file.isEmpty() && ProjectState::isOpen(file)) {
        LumMessageBox::information(
            host().dialogParent(), demoName(),
            translated(QT_TRANSLATE_NOOP("DemoSurveyCommand", "The demo survey is open already.")));
        return;
    }
    if (file.isEmpty())
        file = make();
    else if (!ProjectSession::closeCurrent(host()))
        return;
    if (!file.isEmpty())
        ProjectSession::openFile(host(), file);
}

/// Asks where to make it. \returns the folder; empty when the user does not want it
QString DemoSurveyCommand::chooseLocation()
{
    QString location = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QDir().mkpath(location);
    if (projectLocationFault(location).isEmpty()) {
        const QString folder =
            QDir::toNativeSeparators(ProjectPlace::planned(location, demoName()).folder);
        const Button answer = LumMessageBox::ask(
            host().dialogParent(),
            {.kind = LumMessageBox::Kind::Question,
             .title = demoName(),
             .text = translated(QT_TRANSLATE_NOOP("DemoSurveyCommand",
                                                  "Make the demo survey in the folder \"%1\"? "
                                                  "With No you choose another place."))
                         .arg(folder),
             .buttons = LumMessageBox::Buttons(Button::Yes) | Button::No | Button::Cancel,
             .details = translated(QT_TRANSLATE_NOOP(
                 "DemoSurveyCommand",
                 "Two crews have staked 4,000 points in six days, and left faults to be found. The "
                 "file csv/faults.csv lists them. The survey is yours to change: to begin anew, "
                 "delete its folder.")),
             .defaultButton = Button::Yes}); // nothing can be lost
        if (answer == Button::Yes)
            return location;
        if (answer == Button::Cancel)
            return {};
    }
    location = FileDialog::getExistingDirectory(
        host().dialogParent(),
        translated(QT_TRANSLATE_NOOP("DemoSurveyCommand", "Folder for the Demo Survey")));
    return location;
}

/// Asks for a place, closes the open project and makes the demo survey.
/// \returns its project file; empty when there is none
QString DemoSurveyCommand::make()
{
    const QString location = chooseLocation();
    if (location.isEmpty())
        return {};
    const ProjectPlace place = ProjectPlace::planned(location, demoName());
    if (!ProjectSession::closeCurrent(host()))
        return {};
    if (!QFileInfo::exists(place.file)) {
        const Outcome making = makeDemoProject(place);
        if (!making.isDone()) {
            basalt::logError("No demo survey was made: " + making.detail());
            LumMessageBox::error(host().dialogParent(), demoName(),
                                 translated(QT_TRANSLATE_NOOP(
                                     "DemoSurveyCommand", "The demo survey could not be made.")),
                                 making.text());
            return {};
        }
    }
    remember(place.file);
    return place.file;
}
