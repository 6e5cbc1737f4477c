#include "project/ui/SaveProjectCommand.h"

#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "project/DataProcessDataManager.h"
#include "project/ProjectPlace.h"
#include "project/ui/ProjectState.h"
#include "project/ui/SaveCopyCommand.h"
#include "protocol/StatusKeys.h"

#include <QCoreApplication>

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("SaveProjectCommand", text);
}

bool wantsToSave(IDesktopHost& host)
{
    using Button = LumMessageBox::Button;
    return LumMessageBox::information(
               host.dialogParent(),
               translated(QT_TRANSLATE_NOOP("SaveProjectCommand", "information")),
               translated(QT_TRANSLATE_NOOP("SaveProjectCommand", "save project?")),
               LumMessageBox::Buttons(Button::Yes) | Button::No) == Button::Yes;
}

} // namespace

void SaveProjectCommand::execute()
{
    const IDictionary& values = get_system_status_dictionary();
    if (!ProjectState::isOpen() || values.text(status::kProjectPath).empty())
        return;
    if (!wantsToSave(host()))
        return;
    const Outcome saving = DataProcessDataManager::instance().saveProject(ProjectState::place());
    if (saving.isDone())
        LumMessageBox::information(
            host().dialogParent(), translated(QT_TRANSLATE_NOOP("SaveProjectCommand", "success")),
            translated(QT_TRANSLATE_NOOP("SaveProjectCommand", "Save project success!")));
    else
        LumMessageBox::information(
            host().dialogParent(), translated(QT_TRANSLATE_NOOP("SaveProjectCommand", "failed")),
            translated(QT_TRANSLATE_NOOP("SaveProjectCommand", "Save project failed!")),
            LumMessageBox::Button::Ok,
            saving.text() + QLatin1Char('\n') + SaveCopyCommand::advice());
}
